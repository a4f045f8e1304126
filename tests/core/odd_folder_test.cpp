#include "qt_printing.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

// Folders with names that are legal on this system and look like something else.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class OddFolder : public ::testing::TestWithParam<QString> {
protected:
    /// From the sign-in to a saved record and the way out.
    void saveABudgetRow() {
        rig.signIn();
        ASSERT_FALSE(rig.ended()) << rig.messages->errors.front().second.toStdString();
        rig.click(rig.at(pages::Budget));
        rig.settle();
        auto& grid = rig.at(budget::Grid);
        const QStringList texts{u"2024-6-18"_s, u"米"_s, u"12.5"_s, u"五斤"_s};
        handlers::enter([&] {
            for (int col = 1; col <= texts.size(); ++col)
                grid.setTextMatrix(1, col, texts.at(col - 1));
        });
        rig.click(rig.at(budget::Save));
        rig.settle();
    }

    ProgramRig rig{GetParam()};
};

TEST_P(OddFolder, HoldsAProgramThatFindsItsDataAndKeepsARecord) {
    ASSERT_NO_FATAL_FAILURE(saveABudgetRow());
    ASSERT_TRUE(rig.messages->errors.empty()) << rig.messages->errors.front().second.toStdString();
    EXPECT_EQ(rig.lastMessage().text, u"保存成功");
    EXPECT_EQ(rig.sql(u"select 预算时间,预算项目,预算金额 from ysb"_s), QStringList{u"2024-06-18|米|12.5"_s});
    rig.click(rig.at(title::Close));
    EXPECT_EQ(rig.exitCode(), 0);
    EXPECT_EQ(QDir(rig.folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{u"data.dll"_s, u"mydiary"_s}));
    EXPECT_EQ(QDir(rig.file(u".."_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{GetParam()});
}

INSTANTIATE_TEST_SUITE_P(Names, OddFolder, ::testing::Values(u"账本\\"_s, u"a\\b"_s, u"a;b "_s, u"data.dll"_s));

} // namespace
} // namespace qinghe::testing
