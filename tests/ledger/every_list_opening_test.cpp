#include "core/grid_page.h"
#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

// The way in to every list.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

using EveryListOpeningTest = EveryListTest;

INSTANTIATE_TEST_SUITE_P(Of, EveryListOpeningTest, ::testing::ValuesIn(LedgerLists), listName);

TEST_P(EveryListOpeningTest, ShowsItsCaptionsAndWhatIsStored) {
    openWith(1);
    EXPECT_EQ(row(0), list.captions);
    EXPECT_EQ(rows(), QStringList{list.firstRow.toString()});
    EXPECT_EQ(grid().ColWidth(0), 300);
}

TEST_P(EveryListOpeningTest, BringsThePageForwardAndMarksItsLabel) {
    open();
    for (const LabelledPage& page : LabelledPages) {
        const bool own = QString(page.label) == QString(list.label);
        EXPECT_EQ(rig.at(page.label).ForeColor(), own ? 255u : 0u) << std::string(page.label);
        EXPECT_EQ(rig.at(page.frame).isVisible(), QString(page.frame) == QString(list.frame));
        EXPECT_EQ(rig.mainWindow().navigation().currentPage == page.number, own);
    }
}

TEST_P(EveryListOpeningTest, PicksADateAndReckonsAnAmountInANewRow) {
    open();
    if (list.date != 0) {
        clickCell(1, list.date);
        EXPECT_EQ(tools(), forms::DatePicker);
        rig.doubleClick(rig.at(date_picker::Day[6]));
        EXPECT_EQ(grid().TextMatrix(1, list.date), u"2024-6-1");
    }
    clickCell(1, list.amount);
    EXPECT_EQ(tools(), forms::Calculator);
    calculate(u"600"_s);
    EXPECT_EQ(grid().TextMatrix(1, list.amount), u"600");
}

TEST_P(EveryListOpeningTest, SaysOnItsGroundWhatToDoFirstUntilSomethingStandsThere) {
    open();
    EXPECT_EQ(grid().ground.shown(), GridPage::HowToBegin);
    const QImage told = grid().viewport()->grab().toImage();
    grid().setTextMatrix(1, 1, u" "_s); // paints nothing
    EXPECT_EQ(grid().ground.shown(), QString());
    EXPECT_NE(grid().viewport()->grab().toImage(), told);
}

TEST_P(EveryListOpeningTest, SaysNothingOnItsGroundBesideRecords) {
    openWith(1);
    EXPECT_EQ(grid().ground.shown(), QString());
}

} // namespace
} // namespace qinghe::testing
