#include "ledger/categories_rig.h"

namespace qinghe::testing {

using namespace Qt::StringLiterals;

namespace {

QString tableOf(int side) {
    return side == 0 ? u"srflb"_s : u"zcflb"_s;
}

} // namespace

void CategoriesTest::store(const QStringList& rows, Side side) {
    for (const QString& row : rows) {
        QStringList values;
        for (const QString& value : row.split('|'_L1))
            values << (value == "NULL"_L1 ? value : u"'%1'"_s.arg(QString(value).replace('\''_L1, "''"_L1)));
        rig.sql(u"insert into %1 values(%2)"_s.arg(tableOf(side), values.join(','_L1)));
    }
}

QStringList CategoriesTest::stored(Side side) {
    return rig.sql(u"select * from %1 order by rowid"_s.arg(tableOf(side)));
}

void CategoriesTest::open(Side side) {
    clickLabel(pages::Settings);
    press(31);
    if (side == Expense)
        choose(Expense);
}

void CategoriesTest::openWith(const QStringList& rows, Side side) {
    store(rows, side);
    open(side);
}

void CategoriesTest::choose(Side side) {
    rig.click(option(side));
    rig.settle();
}

void CategoriesTest::press(int number) {
    rig.click(command(number));
    rig.settle();
}

void CategoriesTest::clickMajor(int row) {
    rig.clickCell(ms3(), row, 1);
    rig.settle();
}

void CategoriesTest::clickMinor(int row, int col) {
    rig.clickCell(ms4(), row, col);
    rig.settle();
}

void CategoriesTest::clickLabel(const QString& label) {
    rig.click(rig.onMain<Label>(label));
    rig.settle();
}

void CategoriesTest::pressBareForm(int y) {
    QTest::mouseClick(rig.loaded(forms::Main), Qt::LeftButton, {}, QPoint(400, y));
    rig.settle();
}

void CategoriesTest::fillMajor(int row, const QString& text) {
    clickMajor(row);
    typeOver(tx3(), text);
    rig.press(tx3(), Qt::Key_Return);
}

void CategoriesTest::fillMinor(int row, const QString& minor, const QString& code) {
    clickMinor(row);
    for (const QString& text : {minor, code}) {
        typeOver(tx4(), text);
        rig.press(tx4(), Qt::Key_Return);
    }
}

bool CategoriesTest::minorsUsable() {
    const std::array<bool, 4> usable{ms4().isEnabled(), command(10).isEnabled(), command(11).isEnabled(),
                                     command(12).isEnabled()};
    for (const bool one : usable)
        EXPECT_EQ(one, usable.front());
    return usable.front();
}

} // namespace qinghe::testing
