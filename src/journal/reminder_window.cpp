#include "journal/reminder_window.h"

#include "core/hover.h"
#include "journal/reminders.h"

namespace qinghe {

using namespace Qt::StringLiterals;

ReminderWindow::ReminderWindow(Reminders& reminders)
    : Form(u"Form6"_s, Kind::Notice, Ground::Dialog),
      m_reminders(reminders),
      MM1(*reminders.MM1),
      Timer1(new Timer(this, u"Timer1"_s)),
      Label1(new Label(this, u"Label1"_s)),
      Command1(new CommandButton(this, u"Command1"_s, u"知道了"_s)),
      Command2(new CommandButton(this, u"Command2"_s, u"停止音乐"_s)) {
    setCaption(u"今日日程"_s);
    placeInMiddle(4800, 2700);
    auto* panel = new Frame(this, {});
    panel->place(240, 240, 4320, 1680);
    panel->setRole(Role::InnerFrame);
    auto* bell = new Image(panel, {});
    bell->place(210, 240, 720, 720);
    bell->setRole(Role::GlyphDisc);
    bell->setGlyph(Glyph::Bell);
    Label1->place(1380, 330, 3060, 1500);
    Label1->setRole(Role::ReminderText);
    Label1->raise();
    Command2->place(1740, 2085, 1380, 390);
    Command2->setGlyph(Glyph::Mute);
    Command1->place(3240, 2085, 1320, 390);
    Command1->setGlyph(Glyph::Accept);
    Command1->setRole(Role::Primary);
    for (CommandButton* button : {Command1, Command2})
        showHandOver(button);
    Command1->Click = [this] { Form6_Command1_Click(); };
    Command2->Click = [this] { Form6_Command2_Click(); };
    Timer1->Tick = [this] { Form6_Timer1_Timer(); };
}

void ReminderWindow::load() {
    Workbench& bench = m_reminders.workbench();
    if (!bench.services.instance->tryTake())
        throw handlers::ProgramEnd{0};
    Recordset& plan = m_reminders.due();
    MM1.setFileName(bench.beside(plan.field(u"提醒音乐"_s).text() + u".wav"_s));
    Timer1->setInterval(1000);
    Timer1->setEnabled(true);
    Label1->setCaption(plan.field(u"日程内容"_s).text());
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
    m_reminders.workbench().forms.unload(objectName());
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
