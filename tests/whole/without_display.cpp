#include "started.h"

#include <gtest/gtest.h>

using namespace whole;

namespace {

const std::pair<QString, QString> noPlatform{QStringLiteral("QT_QPA_PLATFORM"), {}};
const std::pair<QString, QString> noDisplay{QStringLiteral("DISPLAY"), {}};
const std::pair<QString, QString> noWayland{QStringLiteral("WAYLAND_DISPLAY"), {}};

testing::AssertionResult says(const Ended& refusal, const std::string& words) {
    if (refusal.words.find(words) != std::string::npos)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "not " << words << " but: " << refusal.words;
}

void expectHelp(const Ended& refusal) {
    EXPECT_EQ(refusal.code, 1);
    EXPECT_TRUE(says(refusal, "青禾家庭记账本不能启动"));
    EXPECT_TRUE(says(refusal, "XWayland"));
    EXPECT_TRUE(says(refusal, "ssh -X"));
}

} // namespace

TEST(WithoutDisplay, AMachineWithoutADisplayIsToldWhatHelps) {
    const LedgerFolder folder;
    const Ended refusal = started(folder, {noPlatform, noDisplay, noWayland});
    expectHelp(refusal);
    EXPECT_TRUE(says(refusal, "DISPLAY 没有设置"));
    EXPECT_EQ(folder.header(), "00 00");
}

TEST(WithoutDisplay, ADisplayThatCannotBeReachedIsNamed) {
    const LedgerFolder folder;
    const Ended refusal = started(folder, {noPlatform, {QStringLiteral("DISPLAY"), QStringLiteral(":999")}, noWayland});
    expectHelp(refusal);
    EXPECT_TRUE(says(refusal, "连不上 X 显示 :999"));
}

TEST(WithoutDisplay, ADesktopWithoutXIsToldTheSame) {
    const LedgerFolder folder;
    const Ended refusal =
        started(folder, {noPlatform, noDisplay, {QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-0")}});
    expectHelp(refusal);
    EXPECT_TRUE(says(refusal, "DISPLAY 没有设置"));
}

TEST(WithoutDisplay, APlatformThatSomebodyNamesAndThatIsNotThereIsTold) {
    const LedgerFolder folder;
    const Ended refusal = started(folder, {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nowhere")}});
    expectHelp(refusal);
    EXPECT_TRUE(says(refusal, "QT_QPA_PLATFORM=nowhere"));
}
