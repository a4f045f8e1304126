#include "tools/date_picker.h"

#include "controls/accessible.h"
#include "controls/key_presses.h"
#include "core/ink.h"

#include <QKeyEvent>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int Week = 7, MonthsInYear = 12;

} // namespace

DatePicker::DatePicker(Shared& shared)
    : FieldTool(names::DatePicker, Kind::QuietTool, Ground::Pine, shared.forms.loaded(names::Main)),
      m_shared(shared),
      m_month(shared.services.clock->today()),
      Command1(new CommandButton(this, u"Command1"_s, {})),
      Command2(new CommandButton(this, u"Command2"_s, {})),
      Label1(new Label(this, u"Label1"_s)),
      Label2(new Label(this, u"Label2"_s, u" 日  一  二 三  四 五  六"_s)) {
    setCaption(m_month.captionText());
    setAccessibleName(u"选择日期"_s);
    setForeColor(ink::White);
    setBackColor(ink::Pine);
    place(0, 0, 3420, 3120);
    Command2->place(135, 75, 480, 390);
    Command1->place(2805, 75, 480, 390);
    Command2->setGlyph(Glyph::Back);
    Command1->setGlyph(Glyph::Forward);
    Command2->setAccessibleName(u"上个月"_s);
    Command1->setAccessibleName(u"下个月"_s);
    for (CommandButton* arrow : {Command1, Command2}) {
        arrow->setRole(Role::PickerArrow);
        arrow->setFocusPolicy(Qt::NoFocus);
    }
    Label1->place(840, 75, 1740, 390);
    Label1->setRole(Role::MonthTitle);
    Label2->place(135, 510, 3150, 315);
    Label2->setRole(Role::WeekRow);
    Command1->Click = [this] { Form1_Command1_Click(); };
    Command2->Click = [this] { Form1_Command2_Click(); };
    for (int i = 0; i < MonthGrid::CellCount; ++i) {
        auto* day = new Label(this, u"Label3(%1)"_s.arg(i));
        day->place(135 + 450 * (i % 7), 855 + 360 * (i / 7), 450, 360);
        day->setRole(Role::DayCell);
        day->Click = [this, i] { Form1_Label3_Click(i); };
        day->DblClick = [this, i] { Form1_Label3_DblClick(i); };
        Label3[static_cast<std::size_t>(i)] = day;
    }
    showMonth();
}

void DatePicker::serve(const FieldTarget& field) {
    FieldTool::serve(field);
    // It stays above the window that it was asked from.
    if (field.box && field.box->window() != parentWidget())
        setParent(field.box->window(), windowFlags());
}

void DatePicker::showMonth() {
    Label1->setCaption(m_month.labelText());
    for (int i = 0; i < MonthGrid::CellCount; ++i) {
        const MonthGrid::Cell& cell = m_month.cell(i);
        Label& day = *Label3[static_cast<std::size_t>(i)];
        day.setCaption(cell.caption);
        day.setAccessibleName(m_month.spokenDay(i));
        day.setForeColor(cell.neighbour ? ink::Yellow : ForeColor());
        day.setBackColor(cell.marked ? ink::Blue : BackColor());
        day.setRole(m_day != 0 && m_month.cellOfDay(m_day) == i ? Role::WalkedDay : Role::DayCell);
    }
}

// ---- keys

void DatePicker::setTakesKeys(bool takes) {
    if (takes == (m_day != 0))
        return;
    m_day = 0;
    takes ? walkTo(m_month.todayDay()) : showMonth();
}

/// To a day of the month on show, or so many days before or behind its ends.
void DatePicker::walkTo(int day) {
    for (; day < 1; day += daysOfMonth(m_month.shownYear(), m_month.shownMonth()))
        Form1_Command2_Click();
    for (int last = 0; day > (last = daysOfMonth(m_month.shownYear(), m_month.shownMonth())); day -= last)
        Form1_Command1_Click();
    m_day = day;
    const int cell = m_month.cellOfDay(day);
    Form1_Label3_Click(cell);
    accessible::tell(*Label3[static_cast<std::size_t>(cell)], QAccessible::Focus);
}

void DatePicker::walkMonths(int months) {
    for (int step = 0; step < std::abs(months); ++step)
        months > 0 ? Form1_Command1_Click() : Form1_Command2_Click();
    walkTo(std::min(m_day, daysOfMonth(m_month.shownYear(), m_month.shownMonth())));
}

bool DatePicker::walk(const QKeyEvent& key) {
    const int months = key.modifiers() & Qt::ControlModifier ? MonthsInYear : 1;
    switch (key.key()) {
    case Qt::Key_Left:
        return walkTo(m_day - 1), true;
    case Qt::Key_Right:
        return walkTo(m_day + 1), true;
    case Qt::Key_Up:
        return walkTo(m_day - Week), true;
    case Qt::Key_Down:
        return walkTo(m_day + Week), true;
    case Qt::Key_PageUp:
        return walkMonths(-months), true;
    case Qt::Key_PageDown:
        return walkMonths(months), true;
    case Qt::Key_Home:
        return walkTo(1), true;
    case Qt::Key_End:
        return walkTo(daysOfMonth(m_month.shownYear(), m_month.shownMonth())), true;
    default:
        return false;
    }
}

bool DatePicker::takeKey(const QKeyEvent& key) {
    if (m_day == 0)
        return false;
    const bool takes = key_presses::isEnter(key.key()), closes = key.key() == Qt::Key_Escape;
    if ((takes || closes) && key.isAutoRepeat())
        return true;
    if (takes)
        Form1_Label3_DblClick(m_month.cellOfDay(m_day));
    else if (closes)
        unload();
    else if (!walk(key) && key_presses::codeOf(key) != key_presses::None) // it is typed, into the field
        return setTakesKeys(false), false;
    return true;
}

void DatePicker::Form1_Command1_Click() {
    m_month.stepForward();
    showMonth();
}

void DatePicker::Form1_Command2_Click() {
    m_month.stepBack();
    showMonth();
}

void DatePicker::Form1_Label3_Click(int index) {
    m_month.select(index);
    showMonth();
}

void DatePicker::Form1_Label3_DblClick(int index) {
    if (m_field.box) {
        m_field.box->setBoxText(m_month.dateTextOf(index));
        if (m_field.grid)
            m_field.grid->setText(m_field.box->Text());
    }
    unload();
}

void DatePicker::unloaded() {
    if (m_shared.pickerGone)
        m_shared.pickerGone();
}

} // namespace qinghe
