#include "ledger/ledger_lists.h"
#include "ledger/month_rig.h"

#include <QScrollBar>

// Lists that are longer than they are high: nothing moves sideways, and the last row is seen whole.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int Many = 40;

void expectSeenWhole(MSFlexGrid& grid) {
    QCoreApplication::processEvents();
    const int row = grid.Rows() - 1, col = grid.Cols() - 1;
    grid.ensureVisible(row, col);
    EXPECT_TRUE(grid.verticalScrollBar()->isVisible());
    EXPECT_FALSE(grid.horizontalScrollBar()->isVisible());
    EXPECT_EQ(grid.ColPos(1), 300);
    EXPECT_TRUE(grid.cellRoom().contains(grid.cellRect(row, col)));
}

class ListWidth : public EveryListTest {};

TEST_P(ListWidth, NeedsNoBarAcross) {
    openWith(Many);
    const double width = grid().ColWidth(lastColumn());
    expectSeenWhole(grid());
    EXPECT_EQ(grid().ColWidth(lastColumn()), width);
}

INSTANTIATE_TEST_SUITE_P(OfTheLedger, ListWidth, ::testing::ValuesIn(LedgerLists), listName);

class BorrowedListWidth : public PageTest {
protected:
    BorrowedListWidth() : PageTest(Borrowed) {}
};

TEST_F(BorrowedListWidth, NeedsNoBarAcrossWithItsWiderRemark) {
    store(Many);
    rig.click(rig.at(loans::Picture));
    EXPECT_EQ(grid().ColWidth(8), 3200);
    expectSeenWhole(grid());
}

TEST_F(BorrowedListWidth, NeedsNoBarAcrossForAFewRowsEither) {
    store(3);
    rig.click(rig.at(loans::Picture));
    rig.settle();
    EXPECT_FALSE(grid().horizontalScrollBar()->isVisible());
    EXPECT_TRUE(grid().cellRoom().contains(grid().cellRect(3, 8)));
}

class ReportWidth : public MonthTest {};

TEST_F(ReportWidth, NeedsNoBarAcross) {
    for (int i = 1; i <= Many; ++i)
        record(u"2024-10-01"_s, u"'项目%1'"_s.arg(i + 100), u"'甲'"_s, QString::number(i));
    open();
    showItems();
    EXPECT_EQ(ms2().ColWidth(2), 5508);
    expectSeenWhole(ms2());
    showPeople();
    EXPECT_EQ(ms2().ColWidth(3), 3672);
    expectSeenWhole(ms2());
}

} // namespace
} // namespace qinghe::testing
