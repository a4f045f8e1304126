#pragma once

#include "controls/combo_box.h"
#include "support/program_test.h"

namespace qinghe::testing {

using namespace Qt::StringLiterals;

constexpr quint32 Red = 255, Black = 0;

/// A whole program and short names for what its first two windows hold.
class CoreTest : public ProgramTest {
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

    void expectEndedWell() const {
        EXPECT_TRUE(rig.messages->errors.empty());
        EXPECT_EQ(rig.process->codes, std::vector<int>{0});
    }

    /// All that lies in the program's folder.
    QStringList folder() const {
        return QDir(rig.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
};

inline const QByteArray Healed("\x01\x00", 2), Spoilt("\x00\x00", 2);

inline bool handOver(const QWidget& control) {
    return control.cursor().shape() == Qt::PointingHandCursor;
}

} // namespace qinghe::testing
