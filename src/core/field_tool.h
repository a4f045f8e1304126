#pragma once

#include "controls/controls.h"
#include "controls/form.h"
#include "controls/ms_flex_grid.h"

#include <QPointer>

namespace qinghe {

/// What a tool window fills: a box by itself, or a box over a cell of a grid. Box and grid may be gone before the tool
/// is. Made without either it names nothing.
struct FieldTarget {
    FieldTarget() = default;
    explicit FieldTarget(TextBox* asking) : box(asking) {}
    /// The cell is the current one of the grid.
    FieldTarget(TextBox* asking, MSFlexGrid* behind)
        : box(asking), grid(behind), row(behind->Row()), col(behind->Col()) {}

    QPointer<TextBox> box;
    QPointer<MSFlexGrid> grid;
    int row = 0, col = 0; ///< where the box stood when the tool was opened
};

/// The place on the screen at a control's left edge, so many twips below its upper one; for a tool that hangs there.
QPointF placeBelow(const QWidget& control, double twips);

/// A window that hangs under a field and fills it. Asked for anew while it is open it serves the new field.
class FieldTool : public Form {
    Q_OBJECT

public:
    using Form::Form;

    virtual void serve(const FieldTarget& field) = 0;
};

} // namespace qinghe
