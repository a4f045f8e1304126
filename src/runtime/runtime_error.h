#pragma once

#include <QString>

#include <exception>

namespace qinghe {

/// A run-time error: stops the handler in which it is thrown and ends the program at the guard around it.
/// `number` is the runtime's own error number, `text` says in Chinese what happened and names the value at fault, in
/// words that a user can act on. Every other exception that leaves a handler becomes InternalError.
class RuntimeError : public std::exception {
public:
    RuntimeError(int number, QString text);

    int number() const { return m_number; }
    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return m_utf8.constData(); }

    // The numbers in use.
    static constexpr int InvalidCall = 5;
    static constexpr int Overflow = 6;
    static constexpr int OutOfMemory = 7;
    static constexpr int SubscriptOutOfRange = 9;
    static constexpr int DivisionByZero = 11;
    static constexpr int TypeMismatch = 13;
    static constexpr int InternalError = 51; ///< a fault of the program itself
    static constexpr int FileNotFound = 53;
    static constexpr int DeviceFailure = 57; ///< reading or writing the disk failed
    static constexpr int DiskFull = 61;
    static constexpr int FileLocked = 70; ///< another program holds the file
    static constexpr int PathFileAccess = 75;
    static constexpr int PathNotFound = 76;
    static constexpr int ObjectNotSet = 91; ///< a recordset asked for before the first refresh
    static constexpr int InvalidPicture = 481;
    static constexpr int NoCurrentRecord = 3021;  ///< a value read at EOF, moveFirst on an empty set
    static constexpr int QueryFailure = 3075;     ///< the store refuses a query text
    static constexpr int NoSuchField = 3265;      ///< a field that the recordset does not have
    static constexpr int StoreFailure = 3343;     ///< what is in the file is no readable store
    static constexpr int ProviderUnknown = 3706;  ///< a connection text that names no store
    static constexpr int RowNotRemovable = 30015; ///< the last row of a grid

private:
    int m_number;
    QString m_text;
    QByteArray m_utf8;
};

} // namespace qinghe
