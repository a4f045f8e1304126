#pragma once

#include "controls/controls.h"
#include "controls/form.h"
#include "controls/ms_flex_grid.h"

#include <QPointer>

#include <functional>

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
    int row = 0, col = 0;          ///< where the box stood when the tool was opened
    std::function<void()> entered; ///< what Enter in the box does

    /// Whether both name the same cell.
    bool isCellOf(const FieldTarget& other) const;
    /// Whether the cell is still being written into: its box lies open in a grid that takes input and still has it.
    bool isOpen() const;
    /// Puts a text into the box and into the cell.
    void fill(const QString& text) const;
    /// Gives the keyboard back to the box, or to the grid where the box takes none.
    void takeKeyboard() const;
};

/// The place on the screen at a control's left edge, so many twips below its upper one; for a tool that hangs there.
QPointF placeBelow(const QWidget& control, double twips);

/// A window that hangs under a field and fills it. Asked for anew while it is open it serves the new field.
class FieldTool : public Form {
    Q_OBJECT

public:
    using Form::Form;

    virtual void serve(const FieldTarget& field) { m_field = field; }
    bool serves(const FieldTarget& field) const { return m_field.isCellOf(field); }
    /// The user goes on elsewhere: what stands in the tool goes into its field, where the tool has anything to give. It
    /// stays open, to be unloaded or to serve another field.
    virtual void handBack() {}

    /// Whether it is open for this box.
    bool serves(const TextBox& box) const { return m_field.box == &box; }
    /// A tool that leaves the keyboard with its field can take the keys that are pressed there (PickerKeys).
    virtual void setTakesKeys(bool takes) { Q_UNUSED(takes) }
    /// Whether it has taken this one.
    virtual bool takeKey(const QKeyEvent& key) {
        Q_UNUSED(key)
        return false;
    }

protected:
    FieldTarget m_field;
};

} // namespace qinghe
