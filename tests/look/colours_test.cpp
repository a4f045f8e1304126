#include "look/colours.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <ostream>

namespace qinghe::testing {
namespace {

double channel(int value) {
    const double v = value / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& c) {
    return 0.2126 * channel(c.red()) + 0.7152 * channel(c.green()) + 0.0722 * channel(c.blue());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

struct Pair {
    const char* what;
    QColor text, ground;
    double least;
};

void PrintTo(const Pair& pair, std::ostream* out) {
    *out << pair.what;
}

class Legible : public ::testing::TestWithParam<Pair> {};

TEST_P(Legible, HasEnoughContrast) {
    EXPECT_GE(contrast(GetParam().text, GetParam().ground), GetParam().least) << GetParam().what;
}

constexpr double Text = 4.5, LargeText = 3, ControlEdge = 3;

INSTANTIATE_TEST_SUITE_P(
    Colours, Legible,
    ::testing::Values(Pair{"text", colour::Ink, colour::White, 14}, Pair{"help", colour::Ink2, colour::DialogTo, Text},
                      Pair{"text of the current cell", colour::Ink, colour::LeafSel, Text},
                      Pair{"text of a pressed button", colour::Ink, colour::Pressed, Text},
                      Pair{"axis", colour::Ink3, colour::White, Text},
                      Pair{"inner tag", colour::LeafDark, colour::LeafTag, 6},
                      Pair{"primary button, hovered", colour::LeafDark, colour::Hovered, 5.5},
                      Pair{"grid caption", colour::LeafDark, colour::LeafPale, Text},
                      Pair{"page tag", colour::White, colour::LeafDeep, 5.5},
                      Pair{"link", colour::LeafLink, colour::White, Text}, Pair{"day", colour::White, colour::Pine, 10},
                      Pair{"neighbouring day", colour::Neighbour, colour::Pine, 9},
                      Pair{"today", colour::White, colour::Today, 8},
                      Pair{"head line of the picker", colour::PineWords, colour::Pine, Text},
                      Pair{"caution", colour::AmberText, colour::AmberPale, Text},
                      Pair{"selected page label, large and on its own tab", colour::Red, colour::White, LargeText},
                      Pair{"edge of a control", colour::Ctl, colour::White, ControlEdge}));

TEST(Colours, BlueOnPineNeedsItsEdge) {
    EXPECT_LT(contrast(colour::Today, colour::Pine), 3);
    EXPECT_GE(contrast(colour::TodayEdge, colour::Pine), 3);
}

} // namespace
} // namespace qinghe::testing
