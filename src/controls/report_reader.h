#pragma once

#include "controls/control.h"
#include "controls/ms_flex_grid.h"

namespace qinghe {

/// Reads a list by keys while it is disabled, which keeps the keyboard from the list itself. It lies over the list
/// then, and Tab comes to it: the keys that move the current cell go along the list and mark the row. Nothing is
/// opened. The mouse passes it.
class ReportReader : public Control<QWidget> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    explicit ReportReader(MSFlexGrid& list);

    MSFlexGrid& list() const { return m_list; }

protected:
    void keyPressEvent(QKeyEvent*) override;
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();

    MSFlexGrid& m_list;
};

} // namespace qinghe
