#pragma once

#include "controls/cell_hints.h"
#include "controls/event.h"
#include "controls/grid_changes.h"
#include "controls/grid_columns.h"
#include "controls/ground_words.h"
#include "controls/placed.h"
#include "controls/press_tracker.h"

#include <QTableView>

#include <algorithm>
#include <functional>
#include <vector>

namespace qinghe {

class GridModel;
class GridRim;
class ReadingBar;

/// A list that cannot be typed into: row 0 holds the captions, column 0 is a narrow marker column; data lie in rows 1
/// to Rows - 1 and columns 1 to Cols - 1. One cell is current (Row, Col), and its text is Text. A fresh grid has two
/// rows and two columns and stands on cell 1,1.
///
/// Writing Row, Col, Rows and texts costs no more than writing them: the view is brought up to date at the next
/// boundary, or when a place is asked for, with one scroll to the current cell. A row or column out of range is a
/// RuntimeError (subscript out of range). Sizes and places are twips.
///
/// A disabled grid is read, not touched: its clicks are its container's, and its upright bar, the wheel and the Page
/// keys that reach its container move it (ReadingBar). Where the columns reach a little too far to the right, the last
/// one gives way to the list's end or its upright bar (ColWidth stays as told); nothing moves sideways for a few
/// pixels.
class MSFlexGrid : public QTableView, public Placed {
    Q_OBJECT
    QINGHE_CONTROL
    Q_PROPERTY(int Rows READ Rows WRITE setRows)
    Q_PROPERTY(int Cols READ Cols WRITE setCols)
    Q_PROPERTY(int Row READ Row WRITE setRow)
    Q_PROPERTY(int Col READ Col WRITE setCol)
    Q_PROPERTY(QString Text READ Text WRITE setText)

public:
    MSFlexGrid(QWidget* parent, const QString& name);
    ~MSFlexGrid() override;

    static constexpr double DefaultRowHeight = 300; ///< twips

    int Rows() const;
    void setRows(int rows);
    int Cols() const;
    void setCols(int cols);
    int Row() const { return m_row; }
    void setRow(int row);
    int Col() const { return m_col; }
    void setCol(int col);
    QString Text() const;
    void setText(const QString& text) { setTextMatrix(m_row, m_col, text); }

    Q_INVOKABLE QString TextMatrix(int row, int col) const;
    /// All texts of a row, the one of the marker column first; quicker than cell by cell.
    QStringList rowTexts(int row) const;
    /// Whether the cell holds no text; quicker than asking for it.
    bool isEmpty(int row, int col) const;
    /// The first cell without text from column `from` on; `behindLast` when all before that column have text.
    int firstEmpty(int row, int from, int behindLast) const;
    void setTextMatrix(int row, int col, const QString& text);
    Q_INVOKABLE double ColWidth(int col) const;
    void setColWidth(int col, double twips);
    Q_INVOKABLE double RowHeight(int row) const;
    void setRowHeight(int row, double twips);
    /// A number that whoever fills the grid gives a row; it goes with the row. 0 for one that was given none.
    int RowData(int row) const;
    void setRowData(int row, int number);
    /// Places inside the grid; they follow the scroll, so a cell that is scrolled out lies outside.
    double ColPos(int col);
    double RowPos(int row);
    /// Takes a data row out. A row that is not there is a RuntimeError.
    void RemoveItem(int row);

    /// Columns whose texts stand on the right.
    void setAmountColumns(std::vector<int> columns);
    bool isAmountColumn(int col) const { return std::ranges::count(m_amounts, col) > 0; }

    /// The list shows so many records of its table as they are; until it rests it is looked whether the two differ.
    void watchChanges(int records) { m_changes.begin(records), changed(); }
    void restChanges() { m_changes.rest(); }
    /// A record of the list has been deleted in its table.
    void recordDeleted() { m_changes.recordDeleted(), changed(); }
    bool differsFromTable() const { return m_changes.any(); }

    /// Tells why the table will refuse what stands in a cell, in words for a tool tip; nothing where it takes it. Asked
    /// for the cells on view as they are painted.
    std::function<QString(int row, int col)> objection;
    QString objectionTo(int row, int col) const;

    /// Shows the list from its first row on, wherever the current cell is, until a cell is made current again.
    void showTop();
    /// While this control is on view the grid's own keys leave the current cell, over which it lies, where it is.
    void setCover(const QWidget* cover) { m_cover = cover; }

    /// Gives the grid the keyboard; nothing happens while its page is hidden.
    void takeFocus();

    /// Moves the current cell as a key asks; false for a key that is none of a list's.
    bool walk(const QKeyEvent& key);

    /// For those outside: a cell's place in the widget's own pixels, and the scroll that brings it into view.
    Q_INVOKABLE QRect cellRect(int row, int col);
    Q_INVOKABLE void ensureVisible(int row, int col);
    /// The room of the data cells, in the widget's own pixels.
    QRect cellRoom() const;

    Event<> Click;
    Event<> MouseMove;

    CellHints hints{*this};
    GroundWords ground{*this};
    CellFit fit(int row, int col) const;

    /// For the style: whether marks of the current cell are drawn.
    bool marksCurrent() const { return isEnabled() || m_marked; }
    /// Draws them in a disabled list too, where something was looked for and found.
    void setMarked(bool marked);

signals:
    /// The cells have moved under the widgets that lie on them.
    void scrolled();
    /// What was written before is on view.
    void refreshed();

protected:
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void paintEvent(QPaintEvent*) override;
    bool viewportEvent(QEvent*) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent*) override;
    void changeEvent(QEvent*) override;
    void contextMenuEvent(QContextMenuEvent*) override;
    void updateGeometries() override;

private:
    enum class Scroll { None, ToCurrent, ToTop };

    void changed(); ///< the model: rows, columns or texts
    void bringUpToDate();
    void layColumns();
    /// Takes from the last column what it has too much.
    void fitLastColumn();

    GridModel* m_model;
    GridChanges m_changes;
    int m_row = 1, m_col = 1;
    GridColumns m_columns;
    std::vector<int> m_amounts;
    bool m_marked = false;
    bool m_stale = false;        ///< something was written that the view does not show yet
    bool m_staleColumns = false; ///< a column's width was
    Scroll m_due = Scroll::None;
    QPointer<const QWidget> m_cover;
    PressTracker m_press;
    ReadingBar* m_bar;
    GridRim* m_rim;
};

} // namespace qinghe
