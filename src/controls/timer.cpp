#include "controls/timer.h"

namespace qinghe {

Timer::Timer(QObject* parent, const QString& name) : QTimer(parent) {
    setObjectName(name);
    setInterval(1000);
    connect(this, &QTimer::timeout, this, [this] {
        handlers::tick(this, [this] {
            if (Enabled())
                Tick.raise();
        });
    });
}

Timer::~Timer() {
    handlers::forgetTick(this);
}

void Timer::setEnabled(bool enabled) {
    if (enabled == isActive())
        return;
    if (enabled) {
        start();
    } else {
        stop();
        handlers::forgetTick(this);
    }
}

} // namespace qinghe
