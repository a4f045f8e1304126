#include "journal/reminder_window.h"

#include "core/hover.h"
#include "core/names.h"
#include "journal/reminders.h"
#include "look/fonts.h"
#include "look/running_text.h"
#include "store/tables.h"

#include <QShortcut>

#include <algorithm>
#include <cmath>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double TextWidth = 3060, LeastTextHeight = 1500, AroundText = 1200, TextToBar = 60; // twips
constexpr double MostOfScreen = 0.6; ///< what the window takes of its height

} // namespace

ReminderWindow::ReminderWindow(Reminders& reminders)
    : Form(names::Reminder, Kind::Notice, Ground::Dialog),
      m_reminders(reminders),
      MM1(*reminders.MM1),
      Timer1(new Timer(this, u"Timer1"_s)),
      m_panel(new Frame(this, {})),
      m_pane(new ScrollPane(this)),
      Label1(new Label(this, u"Label1"_s)),
      Command1(new CommandButton(this, u"Command1"_s, u"知道了"_s)),
      Command2(new CommandButton(this, u"Command2"_s, u"停止音乐"_s)) {
    setCaption(u"今日日程"_s);
    m_panel->setRole(Role::InnerFrame);
    auto* bell = new Image(m_panel, {});
    bell->place(210, 240, 720, 720);
    bell->setRole(Role::GlyphDisc);
    bell->setGlyph(Glyph::Bell);
    Label1->setRole(Role::ReminderText);
    Label1->setAccessibleName(u"日程"_s);
    m_pane->setAccessibleName(u"日程内容"_s);
    m_pane->hold(Label1);
    Command2->setGlyph(Glyph::Mute);
    Command1->setGlyph(Glyph::Accept);
    Command1->setRole(Role::Primary);
    for (CommandButton* button : {Command1, Command2})
        showHandOver(button);
    Command1->Click = [this] { Form6_Command1_Click(); };
    Command2->Click = [this] { Form6_Command2_Click(); };
    Timer1->Tick = [this] { Form6_Timer1_Timer(); };
    bindKey();
}

/// Whoever writes in another window of the program answers from there.
void ReminderWindow::bindKey() {
    auto* answer = new QShortcut(Qt::Key_F8, this);
    answer->setContext(Qt::ApplicationShortcut);
    answer->setAutoRepeat(false);
    connect(answer, &QShortcut::activated, this, [this] { Command1->pressFromAfar(); });
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(Command1)})
        part->setToolTip(u"在记账本的窗口里按 F8 也可以回答“知道了”"_s);
}

/// Everything below the plan moves down with its end.
void ReminderWindow::layOut(double textHeight) {
    placeInMiddle(4800, AroundText + textHeight);
    m_panel->place(240, 240, 4320, 180 + textHeight);
    m_pane->place(1380, 330, TextWidth, textHeight);
    Command2->place(1740, 585 + textHeight, 1380, 390);
    Command1->place(3240, 585 + textHeight, 1320, 390);
}

void ReminderWindow::showPlan(const QString& plan) {
    const auto heightIn = [&plan](double width) {
        return std::ceil(runningHeight(plan, fontFor(Role::ReminderText), width / TwipsPerPixel)) * TwipsPerPixel;
    };
    const double most = std::max(LeastTextHeight, roomHeight() * MostOfScreen - AroundText);
    double width = TextWidth, height = std::max(LeastTextHeight, heightIn(width));
    layOut(std::min(height, most));
    if (height > most) {
        width -= m_pane->barWidth() + TextToBar;
        height = heightIn(width);
    }
    Label1->setCaption(plan);
    Label1->place(0, 0, width, height);
}

void ReminderWindow::load() {
    Shared& shared = m_reminders.shared();
    if (!shared.services.instance->tryTake())
        throw handlers::ProgramEnd{0};
    Recordset& plan = m_reminders.due();
    MM1.setFileName(shared.beside(plan.field(columns::PlanMusic).text() + u".wav"_s));
    Timer1->setInterval(1000);
    Timer1->setEnabled(true);
    showPlan(plan.field(columns::PlanText).text());
}

void ReminderWindow::Form6_Timer1_Timer() {
    // Opening and playing again leaves a playing piece alone; one that was taken back to its beginning begins again.
    MM1.setCommand(u"open"_s);
    MM1.setCommand(u"play"_s);
    if (MM1.Position() == MM1.Length())
        MM1.setCommand(u"prev"_s);
}

void ReminderWindow::endMusic() {
    MM1.setCommand(u"stop"_s);
    MM1.setCommand(u"close"_s);
}

void ReminderWindow::Form6_Command1_Click() {
    m_reminders.pause();
    endMusic();
    unload();
}

void ReminderWindow::Form6_Command2_Click() {
    Timer1->setEnabled(false);
    endMusic();
}

void ReminderWindow::unloaded() {
    Timer1->setEnabled(false);
    endMusic();
}

} // namespace qinghe
