#include "platform/display.h"
#include "qt_printing.h"

#include <QByteArrayList>

#include <gtest/gtest.h>

namespace qinghe::testing {
namespace {

class ArgumentsOfTheApplication : public ::testing::Test {
protected:
    ArgumentsOfTheApplication() { qunsetenv("QT_QPA_PLATFORM"); }
    ~ArgumentsOfTheApplication() override { qputenv("QT_QPA_PLATFORM", m_ours); }

    static QByteArray made(QByteArrayList given) {
        std::vector<char*> values;
        for (QByteArray& value : given)
            values.push_back(value.data());
        values.push_back(nullptr);
        ApplicationArguments arguments(static_cast<int>(given.size()), values.data());
        EXPECT_EQ(arguments.values()[arguments.count()], nullptr);
        QByteArrayList shown;
        for (int i = 0; i < arguments.count(); ++i)
            shown << arguments.values()[i];
        return shown.join(' ');
    }

private:
    const QByteArray m_ours = qgetenv("QT_QPA_PLATFORM");
};

TEST_F(ArgumentsOfTheApplication, NameXWhereNobodyHasNamedAPlatform) {
    EXPECT_EQ(made({"qinghe"}), "qinghe -platform xcb");
    qputenv("QT_QPA_PLATFORM", "");
    EXPECT_EQ(made({"qinghe"}), "qinghe -platform xcb");
}

TEST_F(ArgumentsOfTheApplication, LeaveTheLastWordToTheUsersOwn) {
    EXPECT_EQ(made({"qinghe", "-platform", "offscreen"}), "qinghe -platform xcb -platform offscreen");
}

TEST_F(ArgumentsOfTheApplication, LeaveAPlatformThatTheDesktopNames) {
    qputenv("QT_QPA_PLATFORM", "wayland");
    EXPECT_EQ(made({"qinghe", "-style", "x"}), "qinghe -style x");
}

} // namespace
} // namespace qinghe::testing
