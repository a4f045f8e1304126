#include "qt_printing.h"
#include "runtime/shown_value.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace qinghe {
namespace {

TEST(ShownValue, IsShownWholeUpToFortyCharacters) {
    EXPECT_EQ(shownValue({}), QString());
    EXPECT_EQ(shownValue(u"12元"), u"12元"_s);
    EXPECT_EQ(shownValue(QString(40, u'长')), QString(40, u'长'));
}

TEST(ShownValue, IsCutBehindFortyCharactersAndSaysHowManyThereAre) {
    EXPECT_EQ(shownValue(QString(41, u'长')), QString(40, u'长') + u"…（共 41 个字）"_s);
    EXPECT_EQ(shownValue(QString(1'000'000, u'a'), 3), u"aaa…（共 1000000 个字）"_s);
}

TEST(ShownValue, CutsNoCharacterInTwo) {
    EXPECT_EQ(shownValue(u"甲"_s + u"😀"_s.repeated(30), 4), u"甲😀…（共 31 个字）"_s);
}

} // namespace
} // namespace qinghe
