#include "controls/grid_changes.h"
#include "controls/grid_model.h"

#include <gtest/gtest.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// A list of three records and two columns, as it was filled.
class GridChangesTest : public ::testing::Test {
protected:
    GridChangesTest() {
        texts.resize(4, 3);
        for (int row = 1; row < 4; ++row)
            for (int col = 1; col < 3; ++col)
                texts.setCell(row, col, u"%1/%2"_s.arg(row).arg(col));
        changes.begin(3);
    }
    void write(int row, int col, const QString& text) {
        changes.writing(row, col, text);
        texts.setCell(row, col, text);
    }
    void removeRow(int row) {
        texts.removeRow(row);
        changes.rowRemoved(row);
    }
    void addRow() { texts.resize(texts.rows() + 1, 3); }

    GridModel texts{nullptr};
    GridChanges changes{texts};
};

TEST_F(GridChangesTest, AreNoneInAListThatWasJustFilled) {
    EXPECT_FALSE(changes.any());
    write(2, 1, u"2/1"_s);
    EXPECT_FALSE(changes.any());
}

TEST_F(GridChangesTest, LastUntilEveryOldTextStandsInItsCellAgain) {
    write(2, 1, u"甲"_s);
    write(3, 2, u"乙"_s);
    write(2, 1, u"丙"_s);
    EXPECT_TRUE(changes.any());
    write(2, 1, u"2/1"_s);
    EXPECT_TRUE(changes.any());
    write(3, 2, u"3/2"_s);
    EXPECT_FALSE(changes.any());
}

TEST_F(GridChangesTest, AreARowMoreUntilItIsGone) {
    addRow();
    EXPECT_TRUE(changes.any());
    write(4, 1, u"新"_s);
    removeRow(4);
    EXPECT_FALSE(changes.any());
}

TEST_F(GridChangesTest, AreNoneWhenRowAndRecordGoTogether) {
    for (const int row : {3, 1}) { // the last one, and one before others
        changes.recordDeleted();
        removeRow(row);
        EXPECT_FALSE(changes.any()) << row;
    }
    changes.recordDeleted();
    EXPECT_TRUE(changes.any());
    write(1, 1, {}); // the last row stays
    write(1, 2, {});
    EXPECT_FALSE(changes.any());
}

TEST_F(GridChangesTest, StayWithTheirCellsWhenRowsBeforeThemGo) {
    write(3, 1, u"甲"_s);
    changes.recordDeleted();
    removeRow(1);
    EXPECT_TRUE(changes.any());
    write(2, 1, u"3/1"_s);
    EXPECT_FALSE(changes.any());
}

TEST_F(GridChangesTest, AreARowWhoseRecordStaysAndARecordWhoseRowStays) {
    removeRow(2);
    addRow(); // as many rows as before
    EXPECT_TRUE(changes.any());
    changes.begin(3);
    EXPECT_FALSE(changes.any());
    changes.recordDeleted();
    EXPECT_TRUE(changes.any());
}

TEST_F(GridChangesTest, AreNotLookedForUntilTheNextFill) {
    changes.rest();
    write(1, 1, u"甲"_s);
    addRow();
    EXPECT_FALSE(changes.any());
    changes.begin(4);
    EXPECT_FALSE(changes.any());
}

TEST_F(GridChangesTest, AreAnyTextInAListWithoutRecords) {
    texts.resize(2, 3);
    changes.begin(0);
    EXPECT_TRUE(changes.any());
    write(1, 1, {});
    write(1, 2, {});
    EXPECT_FALSE(changes.any());
    addRow();
    EXPECT_TRUE(changes.any());
}

} // namespace
} // namespace qinghe::testing
