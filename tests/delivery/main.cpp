#include <QGuiApplication>

#include <gtest/gtest.h>

/// The pictures need fonts, and these a GUI application; no display is needed.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
