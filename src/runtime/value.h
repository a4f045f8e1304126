#pragma once

#include "runtime/date_text.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace qinghe {

/// One value of a column, or none (NULL). Kinds: NULL, text, number (double), integer, boolean, date, binary.
class Value {
public:
    Value() = default; ///< NULL
    Value(QString text) : m_data(std::move(text)) {}
    Value(const char16_t* text) : m_data(QString::fromUtf16(text)) {}
    Value(double number) : m_data(number) {}
    Value(int integer) : m_data(static_cast<qint64>(integer)) {}
    Value(qint64 integer) : m_data(integer) {}
    Value(bool flag) : m_data(flag) {}
    Value(DateValue date) : m_data(date) {}
    Value(QByteArray bytes) : m_data(std::move(bytes)) {}
    /// Any other pointer would become a boolean.
    template<typename T>
    Value(const T*) = delete;

    bool operator==(const Value&) const = default;

    bool isNull() const { return std::holds_alternative<std::monostate>(m_data); }

    /// The text form; "" for NULL. A boolean reads "True" or "False". Binary values have no text form: throws
    /// RuntimeError (type mismatch).
    QString text() const;
    /// The value as a number; a text goes through the full conversion, true is -1. Throws RuntimeError (type mismatch)
    /// for NULL and for what is no number.
    double number() const;
    /// The same, or nothing where number() would throw.
    std::optional<double> numberIfAny() const;
    /// True for true and for any number but 0, as a text too ("True", "-1"); false for NULL. Throws RuntimeError (type
    /// mismatch) for other texts and kinds.
    bool truth() const;
    /// The bytes of a binary value, empty for NULL. Throws RuntimeError (type mismatch) for other kinds.
    QByteArray bytes() const;

    /// Neither NULL nor the empty string: what every test in this program calls "holds something".
    bool holdsText() const { return !isNull() && !text().isEmpty(); }

    const auto& data() const { return m_data; }

private:
    std::variant<std::monostate, QString, double, qint64, bool, DateValue, QByteArray> m_data;
};

} // namespace qinghe
