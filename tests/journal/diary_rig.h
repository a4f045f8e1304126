#pragma once

#include "journal/diary_page.h"
#include "support/program_test.h"

namespace qinghe::testing {

/// A program whose diary page is open, in write mode.
class DiaryTest : public ProgramTest {
protected:
    DiaryTest() {
        rig.signIn();
        open();
    }

    void open() { rig.click(rig.at(pages::Diary)); }
    void find() { rig.click(rig.at(diary_page::Find)); }
    void write() { rig.click(rig.at(diary_page::Write)); }

    MSFlexGrid& ms8() { return rig.at(diary_page::Grid); }
    TextBox& tx9() { return rig.at(diary_page::Box); }
    LongTextBox& tx8() { return rig.at(diary_page::Text); }
    CommandButton& add() { return rig.at(diary_page::Add); }
    CommandButton& remove() { return rig.at(diary_page::Remove); }
    CommandButton& save() { return rig.at(diary_page::Save); }

    /// Types date and title along the row, and the text behind them; Enter in the text is a line end.
    void fill(const QString& date, const QString& title, const QStringList& lines = {}) {
        rig.clickCell(ms8(), 1, 1);
        typeOver(tx9(), date);
        rig.press(tx9(), Qt::Key_Return);
        typeOver(tx9(), title);
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
    QStringList rows() { return rig.sql(u"select * from rjb order by rowid"_s); }
    QString path(const QString& title) { return rig.file(u"mydiary/%1.dll"_s.arg(title)); }
    QByteArray bytes(const QString& title) { return ProgramTest::bytes(u"mydiary/%1.dll"_s.arg(title)); }
};

inline const ShownMessage DiarySaved{u"日志已经保存！"_s, 0, u"保存提示"_s};

} // namespace qinghe::testing
