#pragma once

#include "qt_printing.h"
#include "runtime/runtime_error.h"
#include "store/adodc.h"
#include "store/connection_text.h"
#include "store/schema.h"

#include <QTemporaryDir>
#include <sqlite3.h>

#include <functional>
#include <gtest/gtest.h>

namespace qinghe {

using namespace Qt::StringLiterals;

/// The number of the run-time error that `action` throws, 0 when it throws none. The error's text must hold `named`.
int errorOf(const std::function<void()>& action, const QString& named = {});

/// A connection of another program to the data file, through the header shim; aborts the test on any failure.
class OtherProgram {
public:
    explicit OtherProgram(const QString& path, const char* vfs = nullptr);
    ~OtherProgram();
    void run(const QString& sql);
    /// All rows, fields joined with "|", NULL as "NULL".
    QStringList rows(const QString& sql);
    QString row(const QString& sql) { return rows(sql).join(u'\n'); }

private:
    sqlite3* m_database = nullptr;
};

/// A program folder with a fresh data file, a store in the year 2024 and two data controls on it.
class StoreTest : public testing::Test {
protected:
    StoreTest();

    QString path() const { return folder.filePath(u"data.dll"_s); }
    /// Puts a file of this version, as it was delivered once, in the place of the new one.
    void useVersion(int version) const;
    QByteArray fileBytes() const;
    void setFileBytes(const QByteArray& bytes) const;
    /// Adds a row through `control` to its open recordset.
    static void add(Recordset& set, const std::vector<std::pair<QString, Value>>& fields);
    /// The texts of a column from the first row to EOF, NULL as "NULL".
    static QStringList column(Recordset& set, const QString& name);
    /// An income row with what the queries look at.
    void addIncome(const QString& date, const QString& item, double amount);

    QTemporaryDir folder;
    Store store{[] { return 2024; }};
    Adodc control{store, u"Adodc1"_s, connectionText(folder.path())};
    Adodc second{store, u"Adodc2"_s, connectionText(folder.path()).chopped(1)}; // names the same file
};

} // namespace qinghe
