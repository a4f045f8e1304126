#pragma once

#include "controls/ms_flex_grid.h"
#include "controls/text_box.h"

#include <functional>

namespace qinghe {

/// The text box that floats over the cells of a grid on the same frame. It lies exactly over the cell that was current
/// when it was placed, follows that cell when the grid scrolls, and is out of sight while the cell is. It shows when
/// its text is not the cell's (only Enter brings it there), and when the table will refuse the cell. What its keys do
/// is the page's; menu and tool tip of the cell are there over the box too.
class CellEditor : public TextBox {
    Q_OBJECT

public:
    CellEditor(QWidget* frame, const QString& name, MSFlexGrid& grid);

    /// What the list is about, for a screen reader: the box is called after it and the column's caption, where the
    /// caption does not begin with it.
    void setSubject(QStringView subject) { m_subject = subject.toString(); }

    /// Moves over the current cell and keeps the text.
    void place();
    /// Moves over the current cell and takes its text.
    void lay();

    /// Whether the box hears its clicks while it is disabled, too; else they are its frame's. Asked at each press.
    std::function<bool()> hearsWhenClosed;

    /// Whether what stands in the box on view is not what stands in its cell.
    bool differsFromCell() const;
    /// Why the table will refuse the cell under the box as it is; nothing while the box differs from it.
    QString objection() const;
    const MSFlexGrid& grid() const { return m_grid; }
    int row() const { return m_row; } ///< of the cell under the box
    int col() const { return m_col; }

protected:
    bool event(QEvent*) override;

private:
    bool closedEvent(QEvent& event);
    void tell(const QPoint& at) const;
    bool isOverCell() const { return m_row < m_grid.Rows() && m_col < m_grid.Cols(); }
    void followCell();
    void keepInSight();

    QString columnName() const;

    MSFlexGrid& m_grid;
    QString m_subject;
    int m_row = 1, m_col = 1; ///< the cell under the box
};

} // namespace qinghe
