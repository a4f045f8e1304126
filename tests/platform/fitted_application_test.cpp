#include "platform/fitted_application.h"

#include <gtest/gtest.h>

namespace qinghe {
namespace {

TEST(FittedApplication, KeepsTheDesktopsScaleWhereTheWindowFits) {
    EXPECT_EQ(shareThatFits({800, 540}, {1366, 768}), 1);
    EXPECT_EQ(shareThatFits({800, 540}, {800, 540}), 1);
}

TEST(FittedApplication, TakesTheLargestHundredthThatFits) {
    EXPECT_DOUBLE_EQ(shareThatFits({800, 540}, {910, 512}), 0.94); // 1366 x 768 at one and a half
    EXPECT_DOUBLE_EQ(shareThatFits({800, 540}, {910, 492}), 0.91); // with a panel
    EXPECT_DOUBLE_EQ(shareThatFits({800, 540}, {683, 540}), 0.85);
}

} // namespace
} // namespace qinghe
