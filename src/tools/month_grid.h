#pragma once

#include "runtime/integers.h"

#include <QDate>
#include <QString>

#include <array>

namespace qinghe {

/// The month on show in the date picker: what stands in its 42 cells, six weeks of seven days from Sunday on, and how
/// they are coloured. It knows no window; the picker paints the cells and passes clicks on.
///
/// It reckons on from today and from the month on show, never from a calendar. A Sunday that is the 5th, 12th, 19th or
/// 26th opens the month with its first day on Saturday, and the months stepped to from there are off as well: meant.
class MonthGrid {
public:
    static constexpr int CellCount = 42;
    static constexpr int DayCellCount = 37; ///< only these cells can hold a day of the month on show

    struct Cell {
        QString caption;
        bool neighbour = false; ///< a day of the month before or after: yellow, else the form's ForeColor
        bool marked = false;    ///< today's number or the selection: blue, else the form's BackColor
        bool operator==(const Cell&) const = default;
    };

    /// Shows the month of `today`, which must be a valid date.
    explicit MonthGrid(const QDate& today);

    void stepForward();
    void stepBack();
    /// Marks cell `index` (0 to 41) and no other; an empty one as well.
    void select(int index);

    /// Cell `index`, 0 to 41.
    const Cell& cell(int index) const { return m_cells.at(static_cast<std::size_t>(index)); }
    /// The text that picking cell `index` gives: year and month on show and the caption, "2024-5-3". A neighbour's
    /// caption is joined to the month on show too, and an empty cell gives "2024-5-".
    QString dateTextOf(int index) const;
    /// The day in cell `index` in words, to be heard: "2024年5月3日，星期五"; "" for an empty cell.
    QString spokenDay(int index) const;
    /// "2024 年 5月"; with one blank behind after a step.
    QString labelText() const;
    /// The form's caption, the day that was today: "2024\5\3". Steps leave it alone.
    const QString& captionText() const { return m_captionText; }

    int shownYear() const { return m_shownYear; }
    int shownMonth() const { return m_shownMonth; }
    int todayDay() const { return m_todayDay; }
    /// Cells before the first day of the month on show, 0 to 6.
    int firstCellOffset() const { return m_firstCellOffset; }
    /// The day in cell 1 to 37, counted from 1; 0 in a cell outside the month on show.
    int dayOfCell(int cell) const { return m_dayOfCell.at(static_cast<std::size_t>(cell - 1)); }
    /// The index (0 to 36) of the cell with a day of the month on show.
    int cellOfDay(int day) const { return m_firstCellOffset + day - 1; }

private:
    using Days = std::array<Int16, DayCellCount>;

    void changeMonth(int step);
    int lastCell() const;
    Cell& cellAt(int number) { return m_cells.at(static_cast<std::size_t>(number - 1)); }
    void fill();
    void fillMonth();
    void fillLeading();
    void fillTrailing();
    void fillNextMonth(int first, int last);
    void markToday();

    std::array<Cell, CellCount> m_cells;
    Days m_dayOfCell;
    Int16 m_shownYear;
    Int16 m_shownMonth;
    Int16 m_todayDay;
    Int16 m_firstCellOffset;
    QString m_captionText;
    bool m_stepped = false;
};

/// The length of a month, 28 to 31; `month` 1 to 12, or 0 for the December before.
int daysOfMonth(int year, int month);

} // namespace qinghe
