#pragma once

#include "controls/event.h"

#include <QTimer>

namespace qinghe {

/// Ticks between handlers only: while one is at work a tick waits, one at most, and is dropped when the timer has been
/// disabled meanwhile. Enabling a running timer does not start it afresh.
class Timer : public QTimer {
    Q_OBJECT
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(int Interval READ interval WRITE setInterval) ///< ms

public:
    Timer(QObject* parent, const QString& name);
    ~Timer() override;

    bool Enabled() const { return isActive(); }
    void setEnabled(bool enabled);

    Event<> Tick;
};

} // namespace qinghe
