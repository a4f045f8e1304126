#pragma once

#include "controls/combo_box.h"
#include "qt_printing.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace qinghe::testing {

using namespace Qt::StringLiterals;

constexpr quint32 Red = 255, Black = 0;

/// A whole program and short names for what its first two windows hold.
class CoreTest : public ::testing::Test {
protected:
    // The sign-in.
    ComboBox& name() { return rig.at(sign_in::User); }
    TextBox& password() { return rig.at(sign_in::Password); }
    CheckBox& remember() { return rig.at(sign_in::Remember); }
    Label& signInButton() { return rig.at(sign_in::Enter); }
    /// Types name and password and presses the sign-in button.
    void trySignIn(const QString& user, const QString& word) {
        name().setText(user);
        password().setText(word);
        rig.click(signInButton());
    }

    // The main window.
    MainWindow& main() { return rig.mainWindow(); }
    Label& label(const QString& name) { return rig.onMain<Label>(name); }
    QString caption(const QString& name) { return label(name).Caption(); }
    void click(const QString& name) {
        rig.click(label(name));
        rig.settle();
    }
    /// Opens the date picker and the calculator.
    void openTools() {
        handlers::enter([this] {
            rig.program->shared().openDatePicker(DateField::None, {}, {3000, 3000});
            rig.program->shared().openCalculator(AmountField::None, {}, {6000, 3000});
        });
        ASSERT_TRUE(rig.loaded(forms::DatePicker) && rig.loaded(forms::Calculator));
    }
    bool toolsOpen() { return rig.loaded(forms::DatePicker) || rig.loaded(forms::Calculator); }

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
    void expectEndedWell() const {
        EXPECT_TRUE(rig.messages->errors.empty());
        EXPECT_EQ(rig.process->codes, std::vector<int>{0});
    }

    QByteArray bytes(const QString& file) const {
        QFile opened(rig.file(file));
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("(missing)");
    }
    void write(const QString& file, const QByteArray& content) const {
        QFile opened(rig.file(file));
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
        opened.write(content);
    }
    /// All that lies in the program's folder.
    QStringList folder() const {
        return QDir(rig.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    ProgramRig rig;
};

inline const QByteArray Healed("\x01\x00", 2), Spoilt("\x00\x00", 2);

inline bool handOver(const QWidget& control) {
    return control.cursor().shape() == Qt::PointingHandCursor;
}

} // namespace qinghe::testing
