#include "controls/grid_model.h"
#include "qt_printing.h"
#include "runtime/runtime_error.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

QString shown(const GridModel& model, int row, int column) {
    return model.data(model.index(row, column), Qt::DisplayRole).toString();
}

TEST(GridModel, ViewIsShownTheDataCellsAndTheCaptions) {
    GridModel model(nullptr);
    model.resize(3, 3);
    model.setCell(0, 2, u"金额"_s);
    model.setCell(2, 2, u"12.5"_s);
    model.announce();
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(shown(model, 1, 1), u"12.5"_s);
    EXPECT_EQ(shown(model, 0, 0), QString());
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"金额"_s);
    EXPECT_FALSE(model.headerData(1, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST(GridModel, ViewHearsOfAnotherSizeWhenItIsAnnounced) {
    GridModel model(nullptr);
    model.announce();
    int resets = 0;
    QObject::connect(&model, &GridModel::modelReset, [&] { ++resets; });
    model.resize(10, 4);
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.columnCount(), 1);
    model.announce();
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(model.rowCount(), 9);
    EXPECT_EQ(model.columnCount(), 3);
}

TEST(GridModel, RowsThatWentUnannouncedShowNothing) {
    GridModel model(nullptr);
    model.resize(4, 2);
    model.setCell(3, 1, u"甲"_s);
    model.announce();
    model.resize(2, 1);
    EXPECT_EQ(shown(model, 2, 0), QString());
    EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).isValid());
}

TEST(GridModel, RefusesRowsAndColumnsThatAreNotThere) {
    GridModel model(nullptr);
    model.resize(3, 4);
    const auto refused = [](const auto& call) {
        try {
            call();
        } catch (const RuntimeError& error) {
            return error.number() == RuntimeError::SubscriptOutOfRange;
        }
        return false;
    };
    EXPECT_TRUE(refused([&] { model.cell(3, 0); }));
    EXPECT_TRUE(refused([&] { model.setCell(0, 4, u"甲"_s); }));
    EXPECT_TRUE(refused([&] { model.rowTexts(-1); }));
    EXPECT_TRUE(refused([&] { model.isEmpty(0, -1); }));
    EXPECT_TRUE(refused([&] { model.firstEmpty(1, 1, 5); }));
    EXPECT_TRUE(refused([&] { model.resize(0, 4); }));
    EXPECT_TRUE(refused([&] { model.resize(3, 0); }));
    EXPECT_FALSE(refused([&] { model.firstEmpty(1, 1, 4); }));
}

} // namespace
} // namespace qinghe
