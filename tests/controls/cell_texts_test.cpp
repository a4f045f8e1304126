#include "controls/cell_texts.h"
#include "qt_printing.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

CellTexts table(int rows, int cols) {
    CellTexts texts;
    texts.resize(rows, cols);
    return texts;
}

/// A full list as a ledger fills it.
CellTexts ledger(int rows) {
    CellTexts texts = table(1, 8);
    for (int row = 1; row < rows; ++row) {
        texts.resize(row + 1, 8);
        const QString number = QString::number(row);
        for (int col = 1; const QString& text : {u"B"_s + number, u"2024-5-3"_s, u"项目12"_s, u"家人3"_s, u"1234.56"_s,
                                                 u"账户1"_s, u"备注"_s + number})
            texts.setText(row, col++, text);
    }
    return texts;
}

TEST(CellTexts, NewCellsAreBlank) {
    const CellTexts texts = table(3, 2);
    EXPECT_EQ(texts.rows(), 3);
    EXPECT_EQ(texts.cols(), 2);
    for (int row = 0; row < 3; ++row)
        for (int col = 0; col < 2; ++col)
            EXPECT_EQ(texts.text(row, col), QString());
}

TEST(CellTexts, EveryTextComesBackAsItWas) {
    const QStringList kinds{u"2024-5-3"_s,
                            u"café ÿ"_s,
                            u"Ā"_s,
                            u"午饭"_s,
                            u"🍚"_s,
                            QString(QChar(0xD83C)),
                            QString(1, QChar(0)),
                            QString(62, u'x'),
                            QString(63, u'x'),
                            QString(9000, u'饭'),
                            QString(40'000, u'1'),
                            u" \r\n\t"_s};
    CellTexts texts = table(2, static_cast<int>(kinds.size()) + 2);
    for (int row = 0; row < 2; ++row)
        for (int col = 0; col < kinds.size(); ++col)
            texts.setText(row, col + 1, kinds[col]);
    for (int row = 0; row < 2; ++row)
        for (int col = 0; col < kinds.size(); ++col)
            EXPECT_EQ(texts.text(row, col + 1), kinds[col]) << row << ' ' << col;
    EXPECT_EQ(texts.text(0, 0), QString());
    EXPECT_EQ(texts.text(0, texts.cols() - 1), QString());
}

TEST(CellTexts, EmptyCellBetweenFilledOnesIsEmpty) {
    CellTexts texts = table(2, 4);
    for (int row = 0; row < 2; ++row) // the first one is packed, the second one lies open
        texts.setText(row, 2, u"饭"_s);
    for (int row = 0; row < 2; ++row)
        for (int col = 0; col < 4; ++col)
            EXPECT_EQ(texts.isEmpty(row, col), col != 2) << row << ' ' << col;
}

TEST(CellTexts, FewerColumnsDropTheirCellsForGood) {
    CellTexts texts = table(2, 3);
    for (int col = 0; col < 3; ++col)
        texts.setText(1, col, QString::number(col));
    texts.resize(2, 1);
    texts.resize(2, 3);
    EXPECT_EQ(texts.text(1, 0), u"0"_s);
    EXPECT_EQ(texts.text(1, 1), QString());
    EXPECT_EQ(texts.text(1, 2), QString());
}

TEST(CellTexts, FewerRowsDropTheirCellsForGood) {
    CellTexts texts = table(3, 1);
    texts.setText(1, 0, u"甲"_s);
    texts.setText(2, 0, u"乙"_s);
    texts.resize(2, 1);
    texts.resize(3, 1);
    EXPECT_EQ(texts.text(1, 0), u"甲"_s);
    EXPECT_EQ(texts.text(2, 0), QString());
}

TEST(CellTexts, RowTakenOutLetsTheOthersMoveUp) {
    CellTexts texts = table(4, 1);
    for (int row = 0; row < 4; ++row)
        texts.setText(row, 0, QString::number(row));
    texts.removeRow(1);
    texts.removeRow(2);
    EXPECT_EQ(texts.rows(), 2);
    EXPECT_EQ(texts.text(0, 0), u"0"_s);
    EXPECT_EQ(texts.text(1, 0), u"2"_s);
}

TEST(CellTexts, TableLargerThanItsPiecesKeepsEveryCell) {
    const CellTexts texts = ledger(2000);
    for (int row = 1; row < 2000; ++row) {
        EXPECT_EQ(texts.text(row, 0), QString());
        EXPECT_EQ(texts.text(row, 1), u"B"_s + QString::number(row));
        EXPECT_EQ(texts.text(row, 7), u"备注"_s + QString::number(row));
    }
}

TEST(CellTexts, AgreesWithPlainTextsUnderAnyChanges) {
    std::mt19937 random(1);
    const auto below = [&](int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random); };
    std::vector<QStringList> plain(5, QStringList(4));
    CellTexts texts = table(5, 4);
    int cols = 4, row = 0, col = 0;
    const auto resize = [&](int rows, int newCols) {
        texts.resize(rows, cols = newCols);
        plain.resize(static_cast<std::size_t>(rows));
        for (QStringList& line : plain)
            line.resize(cols);
    };
    for (int step = 0; step < 20'000; ++step) {
        const int rows = texts.rows();
        const int what = below(100);
        if (what == 0)
            resize(1 + below(40), 1 + below(8));
        else if (what == 1 && rows > 1)
            plain.erase(plain.begin() + step % rows), texts.removeRow(step % rows);
        // Often the next cell to the right of the last one, as a list is filled.
        const bool onwards = below(3) > 0 && row < texts.rows() && col + 1 < cols;
        row = onwards ? row : below(texts.rows());
        col = onwards ? col + 1 : below(cols);
        const QString text(below(what == 2 ? 5000 : 12), what % 2 ? u'米' : u'8');
        plain[static_cast<std::size_t>(row)][col] = text;
        texts.setText(row, col, text);
        const int otherRow = below(texts.rows()), otherCol = below(cols);
        ASSERT_EQ(texts.text(otherRow, otherCol), plain[static_cast<std::size_t>(otherRow)][otherCol]) << step;
        ASSERT_EQ(texts.isEmpty(otherRow, otherCol), plain[static_cast<std::size_t>(otherRow)][otherCol].isEmpty());
        const auto& line = plain[static_cast<std::size_t>(otherRow)];
        const auto blank = std::find(line.begin() + otherCol, line.end(), QString());
        ASSERT_EQ(texts.firstEmpty(otherRow, otherCol, cols), static_cast<int>(blank - line.begin())) << step;
        ASSERT_EQ(texts.rowTexts(otherRow), plain[static_cast<std::size_t>(otherRow)]) << step;
    }
}

TEST(CellTexts, LongListTakesLittleMoreThanItsCharacters) {
    constexpr int rows = 32'768;
    // Eight heads and ends, and 53 bytes of characters at most; a place a row, whose list may be half empty.
    EXPECT_LT(ledger(rows).footprint(), static_cast<std::size_t>(rows) * (8 + 57 + 2 * sizeof(char*)));
}

TEST(CellTexts, RewrittenCellsDoNotPileUp) {
    CellTexts texts = table(3, 1);
    for (int i = 0; i < 5000; ++i) {
        texts.setText(i % 3, 0, QString(i % 200, u'x'));
        texts.setText((i + 1) % 3, 0, {});
    }
    EXPECT_LT(texts.footprint(), 64u * 1024);
}

TEST(CellTexts, MemoryOfALongListGoesWithIt) {
    CellTexts texts = ledger(20'000);
    texts.resize(2, 8);
    EXPECT_EQ(texts.text(1, 1), u"B1"_s);
    EXPECT_LT(texts.footprint(), 64u * 1024);
}

} // namespace
} // namespace qinghe
