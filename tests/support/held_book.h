#pragma once

#include "store/header_vfs.h"

#include <QFile>
#include <sqlite3.h>

#include <gtest/gtest.h>

namespace qinghe::testing {

/// Another program that holds the book while this lives: nobody else reads or writes it.
class HeldBook {
public:
    explicit HeldBook(const QString& path) {
        EXPECT_EQ(
            sqlite3_open_v2(QFile::encodeName(path).constData(), &m_database, SQLITE_OPEN_READWRITE, headerVfsName()),
            SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(m_database, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    }
    ~HeldBook() { sqlite3_close(m_database); }
    HeldBook(const HeldBook&) = delete;
    HeldBook& operator=(const HeldBook&) = delete;

private:
    sqlite3* m_database = nullptr;
};

} // namespace qinghe::testing
