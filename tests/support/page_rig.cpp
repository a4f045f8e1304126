#include "support/page_rig.h"

namespace qinghe::testing {

using namespace Qt::StringLiterals;

void storeRows(ProgramRig& rig, const GridList& list, int count) {
    rig.sql(u"with recursive n(n) as (select 1 union all select n + 1 from n where n < %1) "
            "insert into %2 select %3 from n"_s.arg(count)
                .arg(list.table.toString(), list.values.toString()));
}

void PageTest::open(const GridList& other) {
    press(rig.at(other.label));
    if (other.option)
        choose(*other.option);
}

void PageTest::openWith(int count) {
    store(count);
    open();
}

void PageTest::restart() {
    rig.stop();
    rig.signIn();
    open();
}

QStringList PageTest::stored(const GridList& other, const QString& columns) {
    return rig.sql(u"select %1 from %2 order by rowid"_s.arg(columns, other.table.toString()));
}

void PageTest::fillCell(int row, int col, const QString& text) {
    clickCell(row, col);
    write(text);
    enter();
}

void PageTest::calculate(const QString& keys) {
    Form* calculator = rig.loaded(forms::Calculator);
    ASSERT_NE(calculator, nullptr) << "no calculator at " << current().toStdString();
    rig.type(*calculator, keys);
    calculator->close();
    rig.settle();
}

void PageTest::calculateAndWalkOn(const QString& keys) {
    Form* calculator = rig.loaded(forms::Calculator);
    ASSERT_NE(calculator, nullptr) << "no calculator at " << current().toStdString();
    rig.type(*calculator, keys);
    rig.press(*calculator, Qt::Key_Return);
    rig.settle();
}

void PageTest::clickFrame() {
    QTest::mouseClick(&frame(), Qt::LeftButton, {}, QPoint(frame().width() / 2, frame().height() - 3));
}

QString PageTest::tools() {
    QStringList open;
    for (const FormName& name : {forms::DatePicker, forms::Calculator})
        if (Form* form = rig.loaded(name); form && form->isVisible())
            open << name;
    return open.isEmpty() ? u"none"_s : open.join('+'_L1);
}

void PageTest::expectUnderEditor(const FormName& tool) {
    const Form* form = rig.loaded(tool);
    ASSERT_NE(form, nullptr) << std::string(tool);
    EXPECT_DOUBLE_EQ(form->Left(), frame().Left() + box().Left() + rig.mainWindow().Left());
    EXPECT_DOUBLE_EQ(form->Top(), frame().Top() + box().Top() + box().Height() + rig.mainWindow().Top());
}

} // namespace qinghe::testing
