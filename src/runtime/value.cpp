#include "runtime/value.h"

#include "runtime/number_text.h"
#include "runtime/runtime_error.h"

#include <type_traits>

namespace qinghe {

namespace {

constexpr double kTrueNumber = -1; // all bits set

[[noreturn]] void throwMismatch(const QString& problem) {
    throw RuntimeError(RuntimeError::TypeMismatch, QStringLiteral("类型不匹配：") + problem);
}

/// Names a value for an error's text.
QString named(const Value& value) {
    if (value.isNull())
        return QStringLiteral("空值");
    const bool binary = std::holds_alternative<QByteArray>(value.data());
    return binary ? QStringLiteral("二进制数据") : u'“' + value.text() + u'”';
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
                          [](bool flag) { return flag ? QStringLiteral("True") : QStringLiteral("False"); },
                          [](const DateValue& date) { return date.text(); },
                          [](const QByteArray&) -> QString { throwMismatch(QStringLiteral("二进制数据没有文本。")); },
                      },
                      m_data);
}

double Value::number() const {
    std::optional<double> number;
    if (const auto* text = std::get_if<QString>(&m_data))
        number = fullNumber(*text);
    else if (const auto* real = std::get_if<double>(&m_data))
        number = *real;
    else if (const auto* integer = std::get_if<qint64>(&m_data))
        number = static_cast<double>(*integer);
    else if (const auto* flag = std::get_if<bool>(&m_data))
        number = *flag ? kTrueNumber : 0;
    if (!number)
        throwMismatch(named(*this) + QStringLiteral("不是数字。"));
    return *number;
}

bool Value::truth() const {
    if (isNull())
        return false;
    if (const auto* text = std::get_if<QString>(&m_data)) {
        const auto flag = truthOfText(*text);
        if (!flag)
            throwMismatch(named(*this) + QStringLiteral("既不是真也不是假。"));
        return *flag;
    }
    return number() != 0;
}

QByteArray Value::bytes() const {
    if (isNull())
        return {};
    const auto* bytes = std::get_if<QByteArray>(&m_data);
    if (!bytes)
        throwMismatch(named(*this) + QStringLiteral("不是二进制数据。"));
    return *bytes;
}

} // namespace qinghe
