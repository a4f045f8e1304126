#pragma once

#include "controls/control.h"

#include <QGroupBox>

namespace qinghe {

/// A container of controls.
class Frame : public WithClicks<WithMoves<QGroupBox>> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    Frame(QWidget* parent, const QString& name, const QString& caption = {});

    QString Caption() const { return title(); }
    void setCaption(const QString& caption) { setTitle(caption); }

protected:
    void mouseDoubleClickEvent(QMouseEvent*) override;
};

} // namespace qinghe
