#include "controls/report_reader.h"
#include "ledger/month_rig.h"
#include "support/pointer.h"

#include <QScrollBar>

// A report that is longer than the list is high.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class MonthReadingTest : public MonthTest {
protected:
    static constexpr int Items = 40;

    MonthReadingTest() {
        for (int i = 1; i <= Items; ++i)
            record(u"2024-10-01"_s, u"'项目%1'"_s.arg(i + 100), u"'甲'"_s, QString::number(i));
        open();
    }
    QScrollBar& bar() { return *ms2().verticalScrollBar(); }
    bool isSeen(int row) { return ms2().cellRoom().contains(ms2().cellRect(row, 1)); }
    void expectAtTop() {
        EXPECT_EQ(ms2().Rows(), Items + 1);
        EXPECT_EQ(ms2().Row(), Items);
        EXPECT_TRUE(isSeen(1));
        EXPECT_FALSE(isSeen(Items));
    }
};

TEST_F(MonthReadingTest, OpensAtItsTop) {
    showItems();
    expectAtTop();
    bar().setValue(bar().maximum());
    showPeople();
    expectAtTop();
    showItems();
    expectAtTop();
}

TEST_F(MonthReadingTest, IsReadToItsEndByThePageKeysOfTheOptionThatWasClicked) {
    showItems();
    rig.settle();
    ASSERT_TRUE(option(income::ByItem).hasFocus());
    for (int page = 0; page < 4; ++page)
        QTest::keyClick(rig.mainWindow().windowHandle(), Qt::Key_PageDown);
    EXPECT_TRUE(isSeen(Items));
    for (int page = 0; page < 4; ++page)
        QTest::keyClick(rig.mainWindow().windowHandle(), Qt::Key_PageUp);
    EXPECT_TRUE(isSeen(1));
    EXPECT_TRUE(option(income::ByItem).Value());
}

TEST_F(MonthReadingTest, IsGoneAlongByKeysAndNothingOpens) {
    showItems();
    rig.settle();
    auto* reader = frame().findChild<ReportReader*>();
    ASSERT_TRUE(reader && reader->isVisible());
    QTest::keyClick(rig.mainWindow().focusWidget(), Qt::Key_Tab); // the buttons are disabled
    ASSERT_EQ(rig.mainWindow().focusWidget(), reader);
    EXPECT_FALSE(ms2().marksCurrent());
    QTest::keyClick(reader, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(reader, Qt::Key_Down);
    EXPECT_EQ(current(), u"2,1");
    EXPECT_TRUE(ms2().marksCurrent());
    QTest::keyClick(reader, Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(isSeen(Items));
    const QStringList before = rows();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F2, Qt::Key_A, Qt::Key_Delete, Qt::Key_Insert})
        QTest::keyClick(reader, key);
    EXPECT_EQ(rows(), before);
    EXPECT_FALSE(tx2().Visible());
    EXPECT_TRUE(rig.messages->shown.empty());
    choose(income::Records);
    EXPECT_FALSE(reader->Visible());
}

TEST_F(MonthReadingTest, IsReadByTheWheelAndTheBar) {
    showItems();
    pointer::wheel(*ms2().viewport(), QPoint(100, 100));
    EXPECT_FALSE(isSeen(1));
    pointer::click(bar(), QPoint(bar().width() / 2, bar().height() - 3));
    pointer::click(bar(), QPoint(bar().width() / 2, bar().height() - 3));
    EXPECT_TRUE(isSeen(Items));
    EXPECT_EQ(ms2().Row(), Items);
}

TEST_F(MonthReadingTest, TakesNoClickWhereverItWasMovedTo) {
    showItems();
    bar().setValue(10);
    const QString text = row(12);
    pointer::click(*ms2().viewport(), QPoint(100, 30));
    EXPECT_FALSE(tx2().Visible());
    EXPECT_EQ(row(12), text);
    EXPECT_EQ(ms2().Row(), Items);
    EXPECT_EQ(bar().value(), 10);
    EXPECT_FALSE(ms2().isEnabled());
    EXPECT_FALSE(ms2().hasFocus());
}

TEST_F(MonthReadingTest, LooksLikeSomethingToRead) {
    showItems();
    EXPECT_EQ(ms2().role(), Role::Report);
    showEntry();
    EXPECT_EQ(ms2().role(), Role::Plain);
    showPeople();
    open();
    EXPECT_EQ(ms2().role(), Role::Plain);
}

} // namespace
} // namespace qinghe::testing
