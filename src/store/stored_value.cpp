#include "store/stored_value.h"

#include "runtime/number_text.h"
#include "runtime/runtime_error.h"

#include <cmath>

namespace qinghe {

namespace {

constexpr qint64 BeyondDigits = 1'000'000'000'000'000; ///< from here on a text has not all digits of a whole number

StoredValue storedText(const QString& text) {
    return {.storage = Storage::Text, .bytes = text.toUtf8()};
}

struct Encoder {
    StoredValue operator()(std::monostate) const { return {}; }
    StoredValue operator()(const QString& text) const { return storedText(text); }
    StoredValue operator()(double number) const { return {.storage = Storage::Real, .real = number}; }
    StoredValue operator()(qint64 integer) const { return {.storage = Storage::Integer, .integer = integer}; }
    StoredValue operator()(bool flag) const { return {.storage = Storage::Integer, .integer = flag}; }
    StoredValue operator()(const DateValue& date) const { return storedText(date.iso()); }
    StoredValue operator()(const QByteArray& bytes) const { return {.storage = Storage::Blob, .bytes = bytes}; }
};

Value decodedInteger(qint64 integer, ColumnKind kind) {
    if (kind == ColumnKind::Boolean)
        return integer != 0;
    return kind == ColumnKind::Number ? Value(static_cast<double>(integer)) : Value(integer);
}

Value decodedText(const QString& text, ColumnKind kind) {
    const auto date = kind == ColumnKind::Date ? parseIsoDate(text) : std::nullopt;
    return date ? Value(*date) : Value(text);
}

} // namespace

StoredValue encoded(const Value& value) {
    return std::visit(Encoder(), value.data());
}

Value decoded(const StoredValue& stored, ColumnKind kind) {
    switch (stored.storage) {
    case Storage::Null:
        return {};
    case Storage::Integer:
        return decodedInteger(stored.integer, kind);
    case Storage::Real:
        return stored.real;
    case Storage::Text:
        return decodedText(QString::fromUtf8(stored.bytes), kind);
    case Storage::Blob:
        if (kind != ColumnKind::Binary)
            return QString::fromUtf8(stored.bytes);
        return QByteArray(stored.bytes.constData(), stored.bytes.size());
    }
    return {};
}

QString decodedText(const StoredValue& stored, ColumnKind kind) {
    if (stored.storage == Storage::Text && kind != ColumnKind::Date)
        return QString::fromUtf8(stored.bytes);
    if (stored.storage == Storage::Text)
        if (const auto day = textOfIsoDay(stored.bytes))
            return *day;
    if (stored.storage == Storage::Real)
        return numberText(stored.real);
    return decoded(stored, kind).text();
}

namespace {

/// Qt drops the mark and puts another character for what is no UTF-8.
bool isPlainText(const StoredValue& stored, const QString& text) {
    static constexpr QByteArrayView Mark = "\xEF\xBB\xBF";
    return !stored.bytes.startsWith(Mark) &&
           (!text.contains(QChar::ReplacementCharacter) || text.toUtf8() == stored.bytes);
}

/// A number column keeps whole numbers as integers, however they were given.
bool isSameNumber(double one, const StoredValue& other) {
    constexpr double Exact = 1LL << 53;
    if (other.storage == Storage::Real)
        return one == other.real;
    return other.storage == Storage::Integer && std::abs(one) < Exact && static_cast<qint64>(one) == other.integer;
}

bool isSame(const StoredValue& one, const StoredValue& other) {
    if (one.storage == Storage::Real)
        return isSameNumber(one.real, other);
    return one.storage == other.storage && one.integer == other.integer && one.bytes == other.bytes;
}

/// Whether a text is a day as the store writes it, of a year from 1000 on: others may read as other days. A day that
/// every month has needs no calendar.
bool isPlainDay(QByteArrayView iso) {
    const auto number = [iso](qsizetype at) {
        const int tens = iso[at] - '0', ones = iso[at + 1] - '0';
        return tens < 0 || tens > 9 || ones < 0 || ones > 9 ? -1 : tens * 10 + ones;
    };
    if (iso.size() != 10 || iso[4] != '-' || iso[7] != '-' || number(0) < 10 || number(2) < 0)
        return false;
    const int month = number(5), day = number(8);
    return month >= 1 && month <= 12 && day >= 1 && (day <= 28 || textOfIsoDay(iso));
}

/// What nearly all values of a book are, told without writing them once more.
bool isOrdinary(const StoredValue& stored, const QString& text, ColumnKind kind) {
    switch (stored.storage) {
    case Storage::Null:
        return true;
    case Storage::Text:
        if (kind == ColumnKind::Date)
            return isPlainDay(stored.bytes);
        return kind == ColumnKind::Text && isPlainText(stored, text);
    case Storage::Integer:
        return kind == ColumnKind::Number && -BeyondDigits < stored.integer && stored.integer < BeyondDigits;
    case Storage::Real:
        return kind == ColumnKind::Number && isAmount(stored.real);
    case Storage::Blob:
        break;
    }
    return false;
}

} // namespace

bool comesBack(const StoredValue& stored, const QString& text, ColumnKind kind) {
    if (isOrdinary(stored, text, kind))
        return true;
    try {
        return isSame(encoded(converted({{}, kind}, text)), stored);
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace qinghe
