#include "ledger/income_rig.h"

namespace qinghe::testing {

using namespace Qt::StringLiterals;

void IncomeTest::store(int rows, const QString& table) {
    rig.sql(u"with recursive n(i) as (select 1 union all select i + 1 from n where i < %2) "
            "insert into %1 select i, date('2024-05-01', (i - 1) || ' days'), '项目' || i, '人' || i, i + 0.5, "
            "'账户' || i, '备注' || i, i from n"_s.arg(table)
                .arg(rows));
}

void IncomeTest::open(int side) {
    rig.click(rig.onMain<Label>(u"Label2(%1)"_s.arg(side)));
    rig.settle();
}

void IncomeTest::openWith(int rows) {
    store(rows);
    open();
}

void IncomeTest::fillCell(int row, int col, const QString& text) {
    clickCell(row, col);
    tx2().selectAll();
    rig.type(tx2(), text);
    enter();
}

void IncomeTest::fillRow(int row, const QStringList& texts) {
    for (int col = 1; col <= 7; ++col) {
        const QString& text = texts.at(col - 1);
        if (text.isEmpty())
            continue;
        if (col != 5) {
            fillCell(row, col, text);
            continue;
        }
        clickCell(row, col);
        rig.type(*rig.loaded(u"Form9"_s), text);
        rig.press(*rig.loaded(u"Form9"_s), Qt::Key_Return);
    }
}

QStringList IncomeTest::rows() {
    QStringList texts;
    for (int row = 1; row < ms2().Rows(); ++row)
        texts << ProgramRig::rowText(ms2(), row);
    return texts;
}

QString IncomeTest::tools() {
    QStringList open;
    for (const QString& name : {u"Form1"_s, u"Form9"_s})
        if (Form* form = rig.loaded(name); form && form->isVisible())
            open << name;
    return open.isEmpty() ? u"none"_s : open.join('+'_L1);
}

void IncomeTest::expectEditorOver(int row, int col) {
    EXPECT_DOUBLE_EQ(tx2().Left(), ms2().Left() + ms2().ColPos(col));
    EXPECT_DOUBLE_EQ(tx2().Top(), ms2().Top() + ms2().RowPos(row));
    EXPECT_DOUBLE_EQ(tx2().Width(), ms2().ColWidth(col));
    EXPECT_DOUBLE_EQ(tx2().Height(), 300);
    EXPECT_EQ(tx2().geometry(), ms2().cellRect(row, col).translated(ms2().pos()));
}

} // namespace qinghe::testing
