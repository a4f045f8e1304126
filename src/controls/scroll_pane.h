#pragma once

#include "controls/placed.h"

#include <QScrollArea>

namespace qinghe {

/// An opening through which a control is seen that may be higher than it. Wheel and upright bar move the control; the
/// keyboard stays where it is.
class ScrollPane : public QScrollArea, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    explicit ScrollPane(QWidget* parent);

    /// Takes the control in, which keeps the size that it has.
    void hold(QWidget* control);
    /// What an upright bar takes of the width, in twips.
    double barWidth() const;
};

} // namespace qinghe
