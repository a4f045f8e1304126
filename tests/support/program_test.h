#pragma once

#include "qt_printing.h"
#include "support/program_rig.h"

#include <QFile>

#include <algorithm>
#include <gtest/gtest.h>

namespace qinghe::testing {

/// A whole program, and what the tests of all pages ask of it.
class ProgramTest : public ::testing::Test {
protected:
    /// Of a file in the program's folder; "(missing)" when there is none.
    QByteArray bytes(const QString& name) const {
        QFile file(rig.file(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    void write(const QString& name, const QByteArray& content) const {
        QFile file(rig.file(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// The texts of all message boxes so far.
    QStringList texts() const {
        QStringList texts;
        for (const ShownMessage& message : rig.messages->shown)
            texts << message.text;
        return texts;
    }
    /// The program has told this run-time error, once, in Chinese and with the words given, and has ended with 1.
    void expectError(int number, const QString& words) const {
        ASSERT_EQ(rig.messages->errors.size(), 1u);
        const auto& [told, text] = rig.messages->errors.front();
        EXPECT_EQ(told, number) << text.toStdString();
        EXPECT_TRUE(text.contains(words)) << text.toStdString();
        EXPECT_TRUE(std::any_of(text.begin(), text.end(), [](QChar c) { return c.script() == QChar::Script_Han; }));
        EXPECT_EQ(rig.process->codes, std::vector<int>{1});
    }

    ProgramRig rig;
};

} // namespace qinghe::testing
