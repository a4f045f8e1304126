#include "ledger/categories_rig.h"
#include "support/find_bar.h"

// Looking for words in the two lists of the categories, and on a page that is wider than they are.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class CategoriesFindTest : public CategoriesTest {
protected:
    FindBarRig bar{rig};
};

TEST_F(CategoriesFindTest, LooksInTheMajorsUntilTheMinorsHaveTheKeyboard) {
    openWith({u"工资|基本|a"_s, u"利息|活期|b"_s, u"利息|定期|c"_s});
    bar.look(u"利息"_s);
    const int row = ms3().Row();
    EXPECT_EQ(ms3().Text(), u"利息");
    EXPECT_EQ(bar.bar().parentWidget(), ms3().parentWidget());
    clickMajor(row);
    ms4().setFocus();
    bar.look(u"c"_s);
    EXPECT_EQ(bar.bar().parentWidget(), ms4().parentWidget());
    EXPECT_EQ(ms4().Text(), u"c");
}

} // namespace
} // namespace qinghe::testing
