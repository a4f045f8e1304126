#include "ledger/loans_rig.h"

// Opening the page of loans: by its label on the lent list, by the picture in the title band on the borrowed one; and
// going from list to list.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr quint32 Red = 255, Black = 0;

TEST_F(LoansTest, RestsUnderTheCaptionOfBothLists) {
    EXPECT_EQ(frame().Caption(), u"借入—借出");
    EXPECT_FALSE(frame().isVisible());
}

TEST_F(LoansTest, OpensOnTheLentListByItsLabel) {
    store(Borrowed, 1);
    openWith(2);
    EXPECT_EQ(row(0), u"账户|日期|借出金额|已还金额|余额|借出人|借给人|备注");
    EXPECT_EQ(frame().Caption(), u"借出表");
    EXPECT_TRUE(option(loans::Lent).Value());
    EXPECT_FALSE(option(loans::Borrowed).Value());
    EXPECT_EQ(rows(), (QStringList{u"户1|2024-5-1|100|1|90|甲|乙|备1"_s, u"户2|2024-5-2|100|2|90|甲|乙|备2"_s}));
    EXPECT_EQ(adodc1().recordSource(), u"jcb");
    EXPECT_FALSE(adodc1().isVisible());
}

TEST_F(LoansTest, PutsFrameGridAndColumnsInTheirPlacesByItsLabel) {
    open();
    EXPECT_EQ(frame().Left(), 120);
    EXPECT_EQ(frame().Top(), 1680);
    EXPECT_EQ(frame().Width(), 11655);
    EXPECT_EQ(frame().Height(), 6255);
    EXPECT_EQ(grid().Left(), 120);
    EXPECT_EQ(grid().Top(), 840);
    EXPECT_EQ(grid().Width(), 11415);
    EXPECT_EQ(grid().Height(), 4815);
    EXPECT_EQ(grid().Cols(), 9);
    EXPECT_EQ(grid().ColWidth(0), 300);
    for (int col = 1; col <= 7; ++col)
        EXPECT_EQ(grid().ColWidth(col), 1150);
    EXPECT_EQ(grid().ColWidth(8), 2800);
    EXPECT_EQ(grid().RowHeight(0), 300);
    EXPECT_EQ(grid().RowHeight(1), 300);
}

TEST_F(LoansTest, MarksItsLabelAlone) {
    open();
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 1);
    EXPECT_EQ(rig.at(pages::Loans).ForeColor(), Red);
    EXPECT_EQ(rig.at(pages::Desktop).ForeColor(), Black);
}

TEST_F(LoansTest, OpensOnTheBorrowedListByThePictureWithAWiderRemark) {
    store(Borrowed, 2);
    store(1);
    clickImage();
    EXPECT_TRUE(frame().isVisible());
    EXPECT_EQ(row(0), u"账户|日期|借入金额|已还金额|余额|借出人|借给人|备注");
    EXPECT_EQ(frame().Caption(), u"借入记录");
    EXPECT_TRUE(option(loans::Borrowed).Value());
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(adodc1().recordSource(), u"jrb");
    EXPECT_EQ(grid().ColWidth(8), 3200);
    for (int col = 1; col <= 7; ++col)
        EXPECT_EQ(grid().ColWidth(col), 1150);
}

TEST_F(LoansTest, NarrowsTheRemarkAgainWhenTheOtherListFollowsThePicture) {
    clickImage();
    chooseLent();
    EXPECT_EQ(grid().ColWidth(8), 2800);
    clickImage();
    EXPECT_EQ(grid().ColWidth(8), 3200);
    clickLabel();
    EXPECT_EQ(grid().ColWidth(8), 2800);
}

TEST_F(LoansTest, LeavesLabelsAndPageNumberAloneByThePicture) {
    open(Expense);
    clickImage();
    EXPECT_EQ(rig.mainWindow().navigation().currentPage, 21);
    EXPECT_EQ(rig.at(pages::Expense).ForeColor(), Red);
    EXPECT_EQ(rig.at(pages::Loans).ForeColor(), Black);
}

TEST_F(LoansTest, HidesEveryOtherPageByThePicture) {
    for (const LabelledPage& other : LabelledPages) {
        press(rig.at(other.label));
        clickImage();
        for (const Page* page : rig.mainWindow().navigation().pages())
            EXPECT_EQ(page->frame().Visible(), &page->frame() == &frame()) << std::string(other.label);
    }
}

TEST_F(LoansTest, StandsHigherByThePictureUnlessThatAlsoChangesTheList) {
    clickImage(); // sets the option, whose click moves the page to its common place
    EXPECT_EQ(frame().Top(), 1680);
    clickImage();
    EXPECT_EQ(frame().Top(), 1560);
    EXPECT_EQ(frame().Left(), 120);
    EXPECT_EQ(frame().Width(), 11655);
    EXPECT_EQ(frame().Height(), 6255);
    clickLabel();
    EXPECT_EQ(frame().Top(), 1680);
}

TEST_F(LoansTest, UnloadsNoToolByThePictureItself) {
    store(Borrowed, 1);
    clickImage();
    for (const auto& [col, tool] : {std::pair{2, forms::DatePicker}, std::pair{3, forms::Calculator}}) {
        clickCell(1, col);
        clickImage();
        EXPECT_EQ(tools(), tool);
        EXPECT_FALSE(box().Visible());
    }
}

TEST_F(LoansTest, UnloadsTheToolsByThePictureWhenItChangesTheList) {
    for (const int col : {2, 3}) {
        openWith(1);
        clickCell(1, col);
        clickImage();
        EXPECT_EQ(tools(), u"none");
    }
}

TEST_F(LoansTest, UnloadsTheToolsByItsLabel) {
    for (const int col : {2, 3}) {
        openWith(1);
        clickCell(1, col);
        clickLabel();
        EXPECT_EQ(tools(), u"none");
        EXPECT_FALSE(box().Visible());
    }
}

TEST_F(LoansTest, GoesFromListToListByItsOptions) {
    store(Borrowed, 2);
    openWith(1);
    clickCell(1, 2);
    chooseBorrowed();
    EXPECT_EQ(tools(), u"none");
    EXPECT_FALSE(box().Visible());
    EXPECT_EQ(frame().Caption(), u"借入记录");
    EXPECT_EQ(grid().TextMatrix(0, 3), u"借入金额");
    EXPECT_EQ(grid().ColWidth(8), 2800);
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(adodc1().recordSource(), u"jrb");
    chooseLent();
    EXPECT_EQ(frame().Caption(), u"借出表");
    EXPECT_EQ(grid().TextMatrix(0, 3), u"借出金额");
    EXPECT_EQ(rows().size(), 1);
    EXPECT_EQ(adodc1().recordSource(), u"jcb");
}

TEST_F(LoansTest, DropsUnsavedEditsByAnOptionButNotByTheOneThatIsSet) {
    openWith(1);
    fillCell(1, 1, u"改过"_s);
    chooseLent();
    EXPECT_TRUE(row(1).startsWith(u"改过"_s));
    chooseBorrowed();
    chooseLent();
    EXPECT_EQ(row(1), u"户1|2024-5-1|100|1|90|甲|乙|备1");
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(LoansTest, ClosesTheEditorOfIncomeByItsOptions) {
    store(Income, 1);
    open(Income);
    auto& tx2 = rig.at(income::Box);
    tx2.setShown(true);
    clickImage();
    EXPECT_FALSE(tx2.Visible());
    tx2.setShown(true);
    chooseLent();
    EXPECT_FALSE(tx2.Visible());
}

TEST_F(LoansTest, ShowsOneBlankRowForAnEmptyTableByItsOptions) {
    openWith(2);
    chooseBorrowed();
    EXPECT_EQ(rows(), QStringList{blankRow()});
}

TEST_F(LoansTest, KeepsTheFirstRowOfAnEmptyTableWhenTheOptionWasSetBefore) {
    openWith(2);
    rig.sql(u"delete from jcb"_s);
    clickLabel();
    EXPECT_EQ(rows(), QStringList{u"户1|2024-5-1|100|1|90|甲|乙|备1"_s});
}

TEST_F(LoansTest, SkipsNullFieldsInTheFill) {
    storeLoan(Lent, u"5,null,null"_s);
    open();
    EXPECT_EQ(rows(), QStringList{u"户|2024-5-3|5|||甲|乙|"_s});
}

TEST_F(LoansTest, ShowsTheHandOverPictureAndOptions) {
    open();
    for (QWidget* control :
         {static_cast<QWidget*>(&rig.at(loans::Picture)), static_cast<QWidget*>(&option(loans::Borrowed)),
          static_cast<QWidget*>(&option(loans::Lent))}) {
        rig.hover(*control);
        EXPECT_EQ(control->cursor().shape(), Qt::PointingHandCursor);
    }
}

} // namespace
} // namespace qinghe::testing
