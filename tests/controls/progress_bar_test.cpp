#include "window_fixture.h"

#include <QElapsedTimer>

namespace qinghe::testing {
namespace {

class ProgressBarTest : public WindowTest {
protected:
    /// Counts how often the bar is painted.
    class PaintCounter : public QObject {
    public:
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::Paint;
            return false;
        }
        int count = 0;
    };

    void SetUp() override {
        WindowTest::SetUp();
        bar.installEventFilter(&paints);
    }

    Frame& frame = put<Frame>(form, u"Frame1"_s, {0, 0, 4500, 1500});
    ProgressBar& bar = *new ProgressBar(&frame, u"Pro1"_s);
    PaintCounter paints;
};

TEST_F(ProgressBarTest, WhatFitsIsCountedAsItIs) {
    bar.setMax(2'000'005);
    bar.setValue(1'234'567);
    EXPECT_EQ(bar.maximum(), 2'000'005);
    EXPECT_EQ(bar.value(), 1'234'567);
    bar.setValue(0);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(ProgressBarTest, SizesBeyondTwoGigabytesKeepTheirShare) {
    const qint64 size = qint64{5} << 30;
    bar.setMax(size + 5);
    bar.setValue(size / 4);
    EXPECT_EQ(bar.text(), u"24%"); // rounded down
    bar.setMax(size + 5);
    bar.setValue(size + 1);
    EXPECT_EQ(bar.text(), u"99%");
    EXPECT_LE(bar.value(), bar.maximum());
}

TEST_F(ProgressBarTest, ItMovesWhileNoEventsAreProcessedAtMostSixtyTimesASecond) {
    bar.place(240, 600, 4000, 285);
    bar.setShown(true);
    bar.setMax(1'000'000);
    QElapsedTimer timer;
    timer.start();
    qint64 value = 0;
    while (timer.elapsed() < 500)
        bar.setValue(value = timer.elapsed() * 2000);
    EXPECT_GE(paints.count, 4); // on a busy machine too
    EXPECT_LE(paints.count, 32);
    EXPECT_GT(bar.value(), value / 2);
}

TEST_F(ProgressBarTest, OutOfViewItIsNotPainted) {
    bar.setShown(false);
    bar.setMax(100);
    for (int value = 0; value < 100; ++value)
        bar.setValue(value);
    EXPECT_EQ(paints.count, 0);
}

} // namespace
} // namespace qinghe::testing
