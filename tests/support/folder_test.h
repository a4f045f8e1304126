#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace qinghe::testing {

/// A folder of the test's own, and what lies in it.
class FolderTest : public ::testing::Test {
protected:
    QString at(const QString& name) const { return dir.filePath(name); }
    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray bytes(const QString& name) const {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    QTemporaryDir dir;
};

} // namespace qinghe::testing
