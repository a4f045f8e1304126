#pragma once

#include "controls/control.h"

#include <QElapsedTimer>
#include <QProgressBar>

namespace qinghe {

/// Shows how far a long work has come while no events are processed: a new value is painted at once, though never more
/// than 60 times a second.
class ProgressBar : public Control<QProgressBar> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    ProgressBar(QWidget* parent, const QString& name);

    /// Both count in a unit of the owner's, from 0 on; what Qt's own bar cannot count goes into it in larger steps.
    void setMax(qint64 max);
    void setValue(qint64 value);

private:
    qint64 m_step = 1; ///< of the owner's units
    QElapsedTimer m_sincePainted;
};

} // namespace qinghe
