#pragma once

#include "qt_printing.h"
#include "support/program_rig.h"

#include <QBuffer>
#include <QFile>

#include <gtest/gtest.h>

namespace qinghe::testing {

/// A program whose settings page is open.
class SettingsTest : public ::testing::Test {
protected:
    SettingsTest() { start(); }

    void start() {
        rig.signIn();
        open();
    }
    void startAgain() {
        rig.stop();
        start();
    }
    void open() { go(pages::Settings); }
    void go(const QString& label) {
        rig.click(rig.onMain<Label>(label));
        rig.settle();
    }

    /// Every handler points the shared data control at the data file itself.
    void pointElsewhere() { rig.mainWindow().Adodc1->setConnectionString(u"Data Source=none.dll"_s); }
    CheckBox& box(const QString& name) { return rig.onMain<CheckBox>(name); }
    /// As a user does, beside the caption.
    static void tick(CheckBox& box) { QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2}); }

    QByteArray bytes(const QString& name) const {
        QFile file(rig.file(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    void write(const QString& name, const QByteArray& content) const {
        QFile file(rig.file(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QStringList texts() const {
        QStringList texts;
        for (const ShownMessage& message : rig.messages->shown)
            texts << message.text;
        return texts;
    }
    /// The program has told this run-time error in these words, and has ended with 1.
    void expectError(int number, const QString& words) const {
        ASSERT_EQ(rig.messages->errors.size(), 1u);
        const auto& [told, text] = rig.messages->errors.front();
        EXPECT_EQ(told, number) << text.toStdString();
        EXPECT_TRUE(text.contains(words)) << text.toStdString();
        EXPECT_EQ(rig.exitCode(), 1);
    }

    ProgramRig rig;
};

} // namespace qinghe::testing
