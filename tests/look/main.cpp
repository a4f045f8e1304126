#include "look/look.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    qinghe::dress(app);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
