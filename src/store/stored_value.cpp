#include "store/stored_value.h"

#include "runtime/number_text.h"

namespace qinghe {

namespace {

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

} // namespace qinghe
