#include "tools/month_grid.h"

#include "runtime/date_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int Week = 7;
constexpr int Months = 12;
constexpr QStringView WeekDays = u"日一二三四五六";
constexpr int LastCellOfPlainFebruary = 28; ///< of one that begins on Sunday, the shortest grid
constexpr int LastCellOfFifthWeek = 35;

bool isLeapYear(int year) {
    return year % 100 == 0 ? year % 400 == 0 : year % 4 == 0;
}

/// The offset of a month's first cell from that of another, `days` later (or earlier, when negative).
int shiftedOffset(int offset, int days) {
    return ((offset + days) % Week + Week) % Week;
}

/// The cells before the first day of today's month. A Sunday the 5th, 12th, 19th or 26th puts it on Saturday: meant.
int openingOffset(const QDate& today) {
    const bool sunday = today.dayOfWeek() == Qt::Sunday;
    if (sunday && today.day() % Week == 5)
        return Week - 1;
    return shiftedOffset(today.dayOfWeek() % Week, 1 - today.day());
}

} // namespace

int daysOfMonth(int year, int month) {
    constexpr int Lengths[] = {31, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : Lengths[month];
}

MonthGrid::MonthGrid(const QDate& today)
    : m_shownYear(today.year()),
      m_shownMonth(today.month()),
      m_todayDay(today.day()),
      m_firstCellOffset(openingOffset(today)),
      m_captionText(dateText(today).replace(u'-', u'\\')) {
    fill();
}

void MonthGrid::stepForward() {
    m_firstCellOffset = lastCell() % Week;
    changeMonth(1);
    fill();
}

void MonthGrid::stepBack() {
    changeMonth(-1);
    m_firstCellOffset = shiftedOffset(m_firstCellOffset, -daysOfMonth(m_shownYear, m_shownMonth));
    fill();
}

void MonthGrid::changeMonth(int step) {
    m_stepped = true;
    m_shownMonth += step;
    if (m_shownMonth >= 1 && m_shownMonth <= Months)
        return;
    m_shownMonth += -Months * step;
    m_shownYear += step;
}

/// The last cell with a day, counted from 1: 28 to 37.
int MonthGrid::lastCell() const {
    return m_firstCellOffset + daysOfMonth(m_shownYear, m_shownMonth);
}

void MonthGrid::fill() {
    fillMonth();
    fillLeading();
    fillTrailing();
    markToday();
}

void MonthGrid::fillMonth() {
    m_dayOfCell.fill(0); // an old remainder would mark a second day
    for (int number = m_firstCellOffset + 1; number <= lastCell(); ++number) {
        const int day = number - m_firstCellOffset;
        m_dayOfCell[static_cast<std::size_t>(number - 1)] = day;
        cellAt(number).caption = QString::number(day);
        cellAt(number).neighbour = false;
    }
}

void MonthGrid::fillLeading() {
    const int daysBefore = daysOfMonth(m_shownYear, m_shownMonth - 1);
    for (int number = 1; number <= m_firstCellOffset; ++number) {
        cellAt(number).caption = QString::number(daysBefore - m_firstCellOffset + number);
        cellAt(number).neighbour = true;
    }
}

void MonthGrid::fillTrailing() {
    const int last = lastCell();
    if (last == LastCellOfPlainFebruary)
        return; // the cells behind keep what they show from the month before
    if (last > LastCellOfFifthWeek) {
        fillNextMonth(last + 1, CellCount);
        return;
    }
    fillNextMonth(last + 1, LastCellOfFifthWeek);
    for (int number = LastCellOfFifthWeek + 1; number <= CellCount; ++number) {
        cellAt(number).caption.clear();
        cellAt(number).neighbour = false;
    }
}

void MonthGrid::fillNextMonth(int first, int last) {
    for (int number = first; number <= last; ++number) {
        cellAt(number).caption = QString::number(number - first + 1);
        cellAt(number).neighbour = true;
    }
}

/// Marks today's number whatever the month; a selection behind the cells that hold days stays marked.
void MonthGrid::markToday() {
    for (int number = 1; number <= DayCellCount; ++number)
        cellAt(number).marked = dayOfCell(number) == m_todayDay;
}

void MonthGrid::select(int index) {
    for (Cell& cell : m_cells)
        cell.marked = false;
    cellAt(index + 1).marked = true;
}

QString MonthGrid::dateTextOf(int index) const {
    return u"%1-%2-"_s.arg(shownYear()).arg(shownMonth()) + cell(index).caption;
}

QString MonthGrid::spokenDay(int index) const {
    const Cell& shown = cell(index);
    if (shown.caption.isEmpty())
        return {};
    if (shown.neighbour)
        return (index < m_firstCellOffset ? u"上个月%1日"_s : u"下个月%1日"_s).arg(shown.caption);
    return u"%1年%2月%3日，星期%4"_s.arg(QString::number(m_shownYear), QString::number(m_shownMonth), shown.caption,
                                         WeekDays[index % Week]);
}

QString MonthGrid::labelText() const {
    const QString label = u"%1 年 %2月"_s.arg(shownYear()).arg(shownMonth());
    return m_stepped ? label + u' ' : label;
}

} // namespace qinghe
