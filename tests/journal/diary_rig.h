#pragma once

#include "journal/diary_page.h"
#include "qt_printing.h"
#include "support/program_rig.h"

#include <QFile>

#include <gtest/gtest.h>

namespace qinghe::testing {

/// A program whose diary page is open, in write mode.
class DiaryTest : public ::testing::Test {
protected:
    DiaryTest() {
        rig.signIn();
        open();
    }

    void open() { rig.click(rig.onMain<Label>(QStringLiteral("Label8"))); }
    void find() { rig.click(rig.onMain<OptionButton>(QStringLiteral("Option5"))); }
    void write() { rig.click(rig.onMain<OptionButton>(QStringLiteral("Option6"))); }

    MSFlexGrid& ms8() { return rig.onMain<MSFlexGrid>(QStringLiteral("ms8")); }
    TextBox& tx9() { return rig.onMain<TextBox>(QStringLiteral("tx9")); }
    LongTextBox& tx8() { return rig.onMain<LongTextBox>(QStringLiteral("tx8")); }
    CommandButton& add() { return rig.onMain<CommandButton>(QStringLiteral("Command22")); }
    CommandButton& remove() { return rig.onMain<CommandButton>(QStringLiteral("Command23")); }
    CommandButton& save() { return rig.onMain<CommandButton>(QStringLiteral("Command24")); }

    /// Types date and title along the row, and the text behind them; Enter in the text is a line end.
    void fill(const QString& date, const QString& title, const QStringList& lines = {}) {
        rig.clickCell(ms8(), 1, 1);
        over(tx9(), date);
        rig.press(tx9(), Qt::Key_Return);
        over(tx9(), title);
        rig.press(tx9(), Qt::Key_Return);
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (i > 0)
                rig.press(tx8(), Qt::Key_Return);
            rig.type(tx8(), lines[i]);
        }
    }
    void saveEntry(const QString& date, const QString& title, const QStringList& lines = {}) {
        rig.click(add());
        fill(date, title, lines);
        rig.click(save());
    }
    /// Shows the entry of a row of the list.
    QString shown(int row) {
        rig.clickCell(ms8(), row, 2);
        return tx8().Text();
    }
    QStringList rows() { return rig.sql(QStringLiteral("select * from rjb order by rowid")); }
    QString path(const QString& title) { return rig.file(QStringLiteral("mydiary/%1.dll").arg(title)); }
    QByteArray bytes(const QString& title) {
        QFile file(path(title));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    ProgramRig rig;

private:
    void over(TextBox& box, const QString& text) {
        box.selectAll();
        rig.type(box, text);
    }
};

inline const ShownMessage DiarySaved{QStringLiteral("日志已经保存！"), 0, QStringLiteral("保存提示")};

} // namespace qinghe::testing
