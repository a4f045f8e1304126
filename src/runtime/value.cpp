#include "runtime/value.h"

#include "runtime/number_text.h"
#include "runtime/runtime_error.h"
#include "runtime/shown_value.h"

#include <type_traits>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double TrueNumber = -1; // all bits set

[[noreturn]] void throwMismatch(const QString& problem) {
    throw RuntimeError(RuntimeError::TypeMismatch, u"类型不匹配："_s + problem);
}

/// Names a value for an error's text.
QString named(const Value& value) {
    if (value.isNull())
        return u"空值"_s;
    const bool binary = std::holds_alternative<QByteArray>(value.data());
    return binary ? u"二进制数据"_s : u'“' + shownValue(value.text()) + u'”';
}

template<class... Cases>
struct Choice : Cases... {
    using Cases::operator()...;
};
template<class... Cases>
Choice(Cases...) -> Choice<Cases...>;

std::optional<bool> truthOfText(const QString& text) {
    for (const bool flag : {true, false}) {
        if (text.trimmed().compare(Value(flag).text(), Qt::CaseInsensitive) == 0)
            return flag;
    }
    const auto number = fullNumber(text);
    return number ? std::optional(*number != 0) : std::nullopt;
}

} // namespace

QString Value::text() const {
    return std::visit(Choice{
                          [](std::monostate) { return QString(); },
                          [](const QString& text) { return text; },
                          [](double number) { return numberText(number); },
                          [](qint64 integer) { return QString::number(integer); },
                          [](bool flag) { return flag ? u"True"_s : u"False"_s; },
                          [](const DateValue& date) { return date.text(); },
                          [](const QByteArray&) -> QString { throwMismatch(u"二进制数据没有文本。"_s); },
                      },
                      m_data);
}

std::optional<double> Value::numberIfAny() const {
    if (const auto* text = std::get_if<QString>(&m_data))
        return fullNumber(*text);
    if (const auto* real = std::get_if<double>(&m_data))
        return *real;
    if (const auto* integer = std::get_if<qint64>(&m_data))
        return static_cast<double>(*integer);
    if (const auto* flag = std::get_if<bool>(&m_data))
        return *flag ? TrueNumber : 0;
    return std::nullopt;
}

double Value::number() const {
    const auto number = numberIfAny();
    if (!number)
        throwMismatch(named(*this) + u"不是数字。"_s);
    return *number;
}

bool Value::truth() const {
    if (isNull())
        return false;
    if (const auto* text = std::get_if<QString>(&m_data)) {
        const auto flag = truthOfText(*text);
        if (!flag)
            throwMismatch(named(*this) + u"既不是真也不是假。"_s);
        return *flag;
    }
    return number() != 0;
}

QByteArray Value::bytes() const {
    if (isNull())
        return {};
    const auto* bytes = std::get_if<QByteArray>(&m_data);
    if (!bytes)
        throwMismatch(named(*this) + u"不是二进制数据。"_s);
    return *bytes;
}

} // namespace qinghe
