#include "ledger/income_rig.h"

// The cell under the box stays the current one while the box is on view.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class CoveredCellTest : public IncomeTest {
protected:
    CoveredCellTest() { openWith(3); }
    void key(Qt::Key key) { QTest::keyClick(rig.mainWindow().windowHandle(), key); }
};

TEST_F(CoveredCellTest, StaysCurrentAfterAHandBack) {
    const QStringList before = rows();
    clickCell(1, 5);
    calculate(u"80"_s);
    rig.mainWindow().activateWindow();
    rig.settle();
    ASSERT_TRUE(ms2().hasFocus());
    for (const Qt::Key move : {Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home, Qt::Key_Left})
        key(move);
    EXPECT_EQ(current(), u"1,5");
    clickForm();
    EXPECT_EQ(row(1), u"1|2024-5-1|项目1|人1|80|账户1|备注1");
    EXPECT_EQ(rows().mid(1), before.mid(1));
    EXPECT_FALSE(tx2().Visible());
    key(Qt::Key_Down); // the box is gone, the grid's keys are its own again
    EXPECT_EQ(current(), u"2,5");
}

TEST_F(CoveredCellTest, KeepsTheAmountFromOtherCellsWhenARowIsAdded) {
    clickCell(1, 5);
    calculate(u"80"_s);
    rig.mainWindow().activateWindow();
    rig.settle();
    key(Qt::Key_Right);
    press(add());
    EXPECT_EQ(row(1), u"1|2024-5-1|项目1|人1|80|账户1|备注1");
}

} // namespace
} // namespace qinghe::testing
