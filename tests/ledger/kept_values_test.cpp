#include "ledger/ledger_lists.h"
#include "support/page_rig.h"

// What nobody touched is written back as it lies in the file: a save neither refuses nor converts what another program
// or a failing disk left in a cell that still shows it.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr int TypeMismatch = 13;

class KeptValuesTest : public EveryListTest {
protected:
    /// The table's own name of a column of the grid.
    QString field(int column) {
        return rig
            .sql(
                u"select name from pragma_table_info('%1') where cid = %2"_s.arg(list.table.toString()).arg(column - 1))
            .front();
    }
    /// Puts a value, given as SQL, into a stored row.
    void spoil(int number, int column, const QString& value) {
        rig.sql(
            u"update %1 set %2 = %3 where rowid = %4"_s.arg(list.table.toString(), field(column), value).arg(number));
    }
    /// The cells of the table as they lie there, storage and bytes, rows by number.
    QStringList raw(int column) {
        return stored(u"typeof(%1) || ' ' || hex(%1) || ' ' || printf('%!.20g', %1)"_s.arg(field(column)));
    }
    void saveWell() {
        press(save());
        EXPECT_EQ(rig.lastMessage(), SaveDone);
        EXPECT_TRUE(rig.messages->errors.empty());
    }
    /// Saves a list in whose rows such values have come to lie, with another cell of the last one changed.
    void expectKept(int column, const QStringList& values) {
        const int count = static_cast<int>(values.size());
        store(count + 1);
        for (int row = 1; row <= count; ++row)
            spoil(row, column, values[row - 1]);
        const QStringList before = raw(column);
        open();
        for (int row = 1; row <= count; ++row)
            EXPECT_EQ(grid().objectionTo(row, column), QString()) << row;
        const int other = column == list.text ? lastColumn() : list.text;
        fillCell(count, other, u"改过"_s);
        saveWell();
        EXPECT_EQ(raw(column), before);
        EXPECT_EQ(stored(field(other)).at(count - 1), u"改过"_s);
        saveWell(); // the rows are other records by now
        EXPECT_EQ(raw(column), before);
    }
};

class KeptDatesTest : public KeptValuesTest {};

/// What is the same on every page, looked at on one.
class KeptCellTest : public KeptValuesTest {};

INSTANTIATE_TEST_SUITE_P(Of, KeptValuesTest, ::testing::ValuesIn(LedgerLists), listName);
INSTANTIATE_TEST_SUITE_P(Of, KeptCellTest, ::testing::Values(Budget), listName);
INSTANTIATE_TEST_SUITE_P(Of, KeptDatesTest, ::testing::ValuesIn(DatedLists), listName);

TEST_P(KeptDatesTest, SaveKeepsSpoiltDaysAndEverySpellingOfADay) {
    // Two spoilt bytes; other spellings, which a save would convert; a text that reads as a day of 1950.
    expectKept(list.date,
               {u"'2024-\x5\x7-03'"_s, u"'2024/5/3'"_s, u"'2024-05-03 00:00:00'"_s, u"'0050-05-03'"_s, u"20240503"_s});
}

TEST_P(KeptValuesTest, SaveKeepsTextsWhoseBytesAreNoTextAndMarksBeforeThem) {
    expectKept(list.text, {u"cast(x'E5BCA0FF41' as text)"_s, u"cast(x'EFBBBFE5BCA00041' as text)"_s});
}

TEST_P(KeptValuesTest, SaveKeepsEveryDigitOfAnAmount) {
    expectKept(list.amount, {u"12345678901234567"_s, u"0.1+0.2"_s, u"9e999"_s, u"'12元'"_s});
}

TEST_P(KeptValuesTest, KeptValueGoesWithItsRow) {
    store(5);
    spoil(4, list.amount, u"'十元'"_s);
    open();
    clickCell(2, list.text);
    press(remove());
    press(add());
    for (int column = 1; column <= lastColumn(); ++column)
        grid().setTextMatrix(5, column, grid().TextMatrix(1, column));
    saveWell();
    EXPECT_EQ(stored(field(list.amount)).at(2), u"十元"_s);
    EXPECT_EQ(stored().size(), 5);
}

TEST_P(KeptCellTest, RefusesTheSameTextWhereItWasTyped) {
    store(5);
    spoil(3, list.amount, u"'十元'"_s);
    open();
    grid().setTextMatrix(4, list.amount, u"十元"_s);
    EXPECT_EQ(grid().objectionTo(3, list.amount), QString());
    EXPECT_NE(grid().objectionTo(4, list.amount), QString());
    press(save());
    expectError(TypeMismatch, u"十元"_s);
    EXPECT_EQ(stored(field(list.amount)).at(2), u"十元"_s);
    EXPECT_EQ(stored().size(), 3);
}

TEST_P(KeptCellTest, RefusesAnotherTextOverAKeptValue) {
    store(3);
    spoil(2, list.amount, u"'十元'"_s);
    open();
    grid().setTextMatrix(2, list.amount, u"十一元"_s);
    EXPECT_NE(grid().objectionTo(2, list.amount), QString());
    press(save());
    expectError(TypeMismatch, u"十一元"_s);
}

TEST_P(KeptCellTest, RowTypedWhereTheOnlyRecordWasIsWrittenFromItsTexts) {
    store(1);
    spoil(1, list.amount, u"'十元'"_s);
    open();
    const QStringList texts = grid().rowTexts(1);
    clickCell(1, list.text);
    press(remove());
    for (int column = 1; column <= lastColumn(); ++column)
        grid().setTextMatrix(1, column, texts[column]);
    press(save());
    expectError(TypeMismatch, u"十元"_s);
}

TEST_P(KeptCellTest, CellThatShowsNothingStillCountsAsEmpty) {
    store(2);
    spoil(2, list.amount, u"''"_s);
    open();
    press(save());
    EXPECT_EQ(rig.messages->shown, std::vector{SaveRefused});
}

} // namespace
} // namespace qinghe::testing
