#pragma once

#include "core/find_bar.h"
#include "support/program_test.h"

namespace qinghe::testing {

/// The bar of a running program, as a user works with it. What stands on it has no told names.
class FindBarRig {
public:
    explicit FindBarRig(ProgramRig& program) : m_rig(program) {}

    /// Ctrl+F, wherever the keyboard is.
    void open() {
        QWidget* const holder = m_rig.mainWindow().focusWidget();
        QTest::keyClick(holder ? holder : &m_rig.mainWindow(), Qt::Key_F, Qt::ControlModifier);
        m_rig.settle();
    }
    bool isUp() {
        const auto* bar = m_rig.mainWindow().findChild<FindBar*>();
        return bar && bar->isVisible();
    }
    FindBar& bar() { return *m_rig.mainWindow().findChild<FindBar*>(); }
    TextBox& words() { return *bar().findChild<TextBox*>(); }
    QString note() { return bar().findChild<Label*>()->Caption(); }
    CommandButton& button(const QString& caption) {
        for (auto* button : bar().findChildren<CommandButton*>())
            if (button->text() == caption)
                return *button;
        qFatal("no button %s on the bar", qPrintable(caption));
    }

    void look(const QString& text) {
        open();
        words().selectAll();
        m_rig.type(words(), text);
        m_rig.settle();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(&words(), key, with);
        m_rig.settle();
    }
    void next() { key(Qt::Key_Return); }
    void previous() { key(Qt::Key_Return, Qt::ShiftModifier); }

private:
    ProgramRig& m_rig;
};

} // namespace qinghe::testing
