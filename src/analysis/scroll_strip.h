#pragma once

#include <QScrollBar>

namespace qinghe {

/// A scroll bar without a ground of its own: a round groove and a round thumb, both as high as the bar.
class ScrollStrip : public QScrollBar {
public:
    explicit ScrollStrip(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {}

protected:
    void paintEvent(QPaintEvent*) override;
};

} // namespace qinghe
