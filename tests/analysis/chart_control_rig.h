#pragma once

#include "analysis/ms_chart.h"
#include "qt_printing.h"

#include <QHelpEvent>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>
#include <gtest/gtest.h>
namespace qinghe::testing {

using namespace Qt::StringLiterals;

inline QVariantList row(const QString& label, const QVariant& value) {
    return {label, value};
}

/// The chart as a control, without a program around it.
class ChartControlTest : public ::testing::Test {
protected:
    ChartControlTest() : chart(&window, u"MSC1"_s) {
        window.resize(800, 320);
        chart.place(120, 240, 10815, 4335);
        window.show();
        QTest::qWait(1);
    }

    void fill(const std::vector<double>& values, const QString& label = u"现金"_s) {
        QVariantList rows;
        for (size_t i = 0; i < values.size(); ++i)
            rows << QVariant(row(label + QString::number(i), values[i]));
        chart.setChartData(rows);
    }

    /// What the chart draws, on white.
    QImage drawn(double scale = 1) {
        QImage image((QSizeF(chart.size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        chart.paintOn(image);
        return image;
    }

    static bool isColumn(QRgb pixel) { return qGreen(pixel) - qBlue(pixel) > 60 && qGreen(pixel) > qRed(pixel); }
    static bool isAmber(QRgb pixel) { return qRed(pixel) - qBlue(pixel) > 150; }
    static bool isInk(QRgb pixel) { return qGray(pixel) < 110; }
    static bool isWritten(QRgb pixel) { return qGray(pixel) < 170; }
    /// Pixels of a kind in a part of the picture.
    template<class Kind>
    static int count(const QImage& image, const QRectF& part, Kind kind) {
        const double scale = image.devicePixelRatio();
        const QRect area = QRectF(part.topLeft() * scale, part.size() * scale).toAlignedRect() & image.rect();
        int found = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                found += kind(image.pixel(x, y));
        return found;
    }
    int columnPixels() { return count(drawn(), QRectF(chart.rect()), isColumn); }

    /// Everything that is written in view.
    std::vector<QRectF> writtenBoxes() {
        const ChartLayout& places = chart.places();
        std::vector<QRectF> boxes;
        const ChartLayout::Rows rows = places.rowsInView(chart.scrolled());
        for (int i = rows.first; i < rows.behindLast; ++i) {
            if (!places.valueText(i).isEmpty())
                boxes.push_back(places.valueBox(i, chart.scrolled()));
            const QStringList lines = places.label(i).lines;
            for (int line = 0; line < lines.size(); ++line)
                boxes.push_back(places.labelBox(i, line, lines[line], chart.scrolled()));
        }
        return boxes;
    }
    std::vector<QRectF> axisBoxes() {
        const ChartLayout& places = chart.places();
        std::vector<QRectF> boxes{places.unitBox()};
        for (int i = 0; i < places.scale().lineCount(); ++i)
            boxes.push_back(places.axisBox(places.lineY(i), places.scale().text(i)));
        return boxes;
    }
    void expectNothingOverlaps() {
        const QRectF plot = chart.places().plot();
        // What reaches over the sides of the plot is not painted.
        const QRectF sides(plot.left(), 0, plot.width(), chart.height());
        std::vector<QRectF> boxes = axisBoxes();
        for (const QRectF& box : writtenBoxes())
            boxes.push_back(box & sides);
        boxes.push_back(chart.places().strip());
        for (size_t i = 0; i < boxes.size(); ++i) {
            EXPECT_TRUE(QRectF(chart.rect()).contains(boxes[i]) || boxes[i].isEmpty()) << i;
            for (size_t j = 0; j < i; ++j)
                EXPECT_FALSE(boxes[i].adjusted(0.1, 0.1, -0.1, -0.1).intersects(boxes[j])) << i << " over " << j;
        }
    }

    QScrollBar* strip() { return chart.findChild<QScrollBar*>(); }
    bool scrolls() { return strip() && strip()->isVisible(); }
    void wheel(int steps) {
        const QPointF at = chart.rect().center();
        QWheelEvent event(at, chart.mapToGlobal(at), {}, {0, 120 * steps}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&chart, &event);
        EXPECT_TRUE(event.isAccepted());
    }
    QString tipOver(int row) {
        const QPoint at(qRound(chart.places().middle(row, chart.scrolled())), 100);
        QHelpEvent help(QEvent::ToolTip, at, chart.mapToGlobal(at));
        QCoreApplication::sendEvent(&chart, &help);
        const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
        QToolTip::hideText();
        return text;
    }

    QWidget window;
    MSChart chart;
};

} // namespace qinghe::testing
