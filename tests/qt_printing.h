#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

#include <ostream>

// Lets GoogleTest print Qt's values as a reader knows them.

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(QStringView text, std::ostream* out) {
    PrintTo(text.toString(), out);
}

inline void PrintTo(const QDate& day, std::ostream* out) {
    *out << day.toString(Qt::ISODate).toStdString();
}

inline std::ostream& operator<<(std::ostream& out, QStringView text) {
    PrintTo(text, &out);
    return out;
}
