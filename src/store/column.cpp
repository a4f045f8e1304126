#include "store/column.h"

#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"

#include <array>
#include <cmath>
#include <limits>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

struct KindRow {
    ColumnKind kind;
    QStringView declared;
    QStringView wanted; ///< what to say when a value is no such thing
};

constexpr std::array<KindRow, 6> Kinds{{
    {ColumnKind::Text, u"TEXT", u"文字"},
    {ColumnKind::Number, u"NUMBER", u"数字"},
    {ColumnKind::Integer, u"INTEGER", u"整数"},
    {ColumnKind::Boolean, u"BOOLEAN", u"是或否"},
    {ColumnKind::Date, u"DATE", u"日期，例如 2024-5-3"},
    {ColumnKind::Binary, u"BLOB", u"二进制数据"},
}};

const KindRow& rowOf(ColumnKind kind) {
    return Kinds.at(static_cast<size_t>(kind));
}

[[noreturn]] void throwRefusal(const Column& column, const Value& value) {
    const bool binary = std::holds_alternative<QByteArray>(value.data());
    const QString shown = binary ? u"二进制数据"_s : u'“' + shownValue(value.text()) + u'”';
    throw RuntimeError(RuntimeError::TypeMismatch, u"类型不匹配：“%1”一栏需要%2，不能存放%3。"_s.arg(
                                                       column.name, rowOf(column.kind).wanted, shown));
}

/// Rounds half to even, as everywhere in the runtime.
Value integerOf(const Column& column, double number) {
    using Limits = std::numeric_limits<qint32>;
    const double rounded = std::nearbyint(number);
    if (rounded < Limits::min() || rounded > Limits::max())
        throw RuntimeError(RuntimeError::Overflow,
                           u"溢出：“%1”一栏放不下 %2。"_s.arg(column.name, Value(number).text()));
    return static_cast<qint64>(rounded);
}

double numberOf(const Column& column, const Value& value) {
    const double number = value.number();
    if (!std::isfinite(number))
        throwRefusal(column, value);
    return number;
}

/// A time of midnight is no time: such a moment reads, compares and sorts as its day.
Value dateOf(const Column& column, const Value& value, const ThisYear& thisYear) {
    std::optional<DateValue> date;
    if (const auto* given = std::get_if<DateValue>(&value.data()))
        date = *given;
    else if (const auto* text = std::get_if<QString>(&value.data())) // a number is no day, though its text may read so
        date = parseDate(*text, thisYear);
    if (!date || !date->day.isValid())
        throwRefusal(column, value);
    if (date->time == QTime(0, 0))
        date->time = QTime();
    return *date;
}

Value convertedTo(const Column& column, const Value& value, const ThisYear& thisYear) {
    switch (column.kind) {
    case ColumnKind::Text:
        return value.text();
    case ColumnKind::Number:
        return numberOf(column, value);
    case ColumnKind::Integer:
        return integerOf(column, numberOf(column, value));
    case ColumnKind::Boolean:
        return value.truth();
    case ColumnKind::Date:
        return dateOf(column, value, thisYear);
    case ColumnKind::Binary:
        return value.bytes();
    }
    throwRefusal(column, value);
}

} // namespace

QString declaredType(ColumnKind kind) {
    return rowOf(kind).declared.toString();
}

ColumnKind kindOfDeclaredType(const QString& type) {
    for (const KindRow& row : Kinds) {
        if (type.compare(row.declared, Qt::CaseInsensitive) == 0)
            return row.kind;
    }
    throw RuntimeError(RuntimeError::StoreFailure, u"账本文件的格式不对：不认识的列类型“%1”。"_s.arg(shownValue(type)));
}

Value converted(const Column& column, const Value& value, const ThisYear& thisYear) {
    if (value.isNull())
        return value;
    try {
        return convertedTo(column, value, thisYear);
    } catch (const RuntimeError& error) {
        if (error.number() != RuntimeError::TypeMismatch)
            throw;
        throwRefusal(column, value); // the same, naming the column
    }
}

QString refusal(const Column& column, const Value& value, const ThisYear& thisYear) {
    try {
        converted(column, value, thisYear);
        return {};
    } catch (const RuntimeError&) {
        return u"不是"_s + rowOf(column.kind).wanted.toString().section(u'，', 0, 0);
    }
}

} // namespace qinghe
