#include "display.h"
#include "walked.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    whole::chooseWalked(argc, argv);
    const QCoreApplication application(argc, argv);
    const whole::Display display;
    return RUN_ALL_TESTS();
}
