#include "journal/schedule_page.h"

#include "controls/key_presses.h"
#include "core/hover.h"
#include "core/picker_keys.h"
#include "core/plans.h"
#include "core/rescued_texts.h"
#include "core/stored_choice.h"
#include "runtime/blanks.h"
#include "runtime/number_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr PageTab Tabs[] = {{u"Label23", u"  日程", 9720, PageCode::Schedule}};
/// The users' page stays as it stands behind this one, which covers it.
constexpr PageTraits Schedule{u"Frame17", u"日程提醒", 120, 1680, 11655, 6015, Tabs, names::UsersFrame};

constexpr double PickerGap = 500; ///< twips from the top of the date to the picker
constexpr int Pieces = 5, Hours = 24, Minutes = 60;
constexpr qsizetype MostCharacters = 50;
constexpr QStringView HowToWrite = u"先在这里写日程（不到50字），再在右边选日期和时间";

Label* words(Frame* frame, const QString& name, const QString& caption, double left, double top, double width) {
    auto* label = new Label(frame, name, caption);
    label->place(left, top, width, 330);
    return label;
}

CommandButton* button(Frame* frame, const QString& name, const QString& caption, Glyph glyph) {
    auto* made = new CommandButton(frame, name, caption);
    made->setGlyph(glyph);
    return made;
}

QString counted(qsizetype characters) {
    return QString::number(characters) + u"当前字数"_s;
}

} // namespace

SchedulePage::SchedulePage(MainWindow& form)
    : Page(form.navigation(), Schedule),
      m_window(form),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      m_reminders(form),
      MM1(*m_reminders.MM1),
      Frame17(frame()),
      Frame18(new Frame(&Frame17, u"Frame18"_s, u"提醒设置"_s)),
      Label3(new Label(&Frame17, u"Label3"_s)),
      Text3(new LongTextBox(&Frame17, u"Text3"_s)),
      Text4(new TextBox(Frame18, u"Text4"_s)),
      Combo3(new ComboBox(Frame18, u"Combo3"_s, true)),
      Combo4(new ComboBox(Frame18, u"Combo4"_s, true)),
      Combo1(new ComboBox(Frame18, u"Combo1"_s, true)),
      Label22(new Label(Frame18, u"Label22"_s)),
      Check1(new CheckBox(&Frame17, u"Check1"_s, u"登陆定时提醒日程"_s)),
      Command26(button(&Frame17, u"Command26"_s, u"添加新日程"_s, Glyph::Add)),
      Command27(button(&Frame17, u"Command27"_s, u"查看今日日程"_s, Glyph::List)),
      Command28(button(&Frame17, u"Command28"_s, u"保存日程和设置"_s, Glyph::Accept)),
      Command29(button(Frame18, u"Command29"_s, u"确定音乐"_s, Glyph::Music)) {
    Combo1->setText(u"音乐1"_s);
    placeControls();
    bindEvents();
}

void SchedulePage::placeControls() {
    Label3->place(240, 390, 4000, 360);
    Label3->setRole(Role::Total);
    Text3->place(240, 840, 6240, 4140);
    Text3->setPlaceholderText(HowToWrite.toString());
    Frame18->place(6720, 840, 4695, 3300);
    Frame18->setRole(Role::InnerFrame);
    words(Frame18, u"Label9"_s, u"日期设置："_s, 240, 480, 1140);
    Text4->place(1440, 480, 2280, 330);
    words(Frame18, u"Label18"_s, u"时间设置："_s, 240, 1020, 1140);
    Combo3->place(1440, 1020, 900, 330);
    words(Frame18, u"Label19"_s, u"时"_s, 2400, 1020, 300);
    Combo4->place(2820, 1020, 900, 330);
    words(Frame18, u"Label45"_s, u"分"_s, 3780, 1020, 300);
    words(Frame18, u"Label46"_s, u"音乐："_s, 240, 1560, 1140);
    Combo1->place(1440, 1560, 1500, 330);
    Command29->place(3120, 1530, 1335, 390);
    auto* well = new Label(Frame18, {});
    well->place(240, 2160, 4215, 900);
    well->setRole(Role::Well);
    Label22->place(360, 2190, 3975, 840);
    Label22->raise();
    nameBoxes();
    Check1->place(6840, 4440, 3000, 330);
    Command26->place(240, 5280, 1680, 390);
    Command27->place(2040, 5280, 1800, 390);
    Command28->place(9195, 5280, 2220, 390);
    Command28->setRole(Role::Primary);
}

/// As their captions beside them say, in words that stand by themselves.
void SchedulePage::nameBoxes() {
    Text3->setAccessibleName(u"日程内容"_s);
    Text4->setAccessibleName(u"日程日期"_s);
    Combo3->setAccessibleName(u"提醒时间，几时"_s);
    Combo4->setAccessibleName(u"提醒时间，几分"_s);
    Combo1->setAccessibleName(u"提醒音乐"_s);
}

void SchedulePage::bindEvents() {
    Text3->KeyPress = [this](int key) { Form2_Text3_KeyPress(key); };
    Text4->Click = [this] { Form2_Text4_Click(); };
    Text4->setSelectsWhenClicked();
    new PickerKeys(m_shared, *Text4);
    Combo1->Click = [this] { Form2_Combo1_Click(); };
    Command26->Click = [this] { Form2_Command26_Click(); };
    Command27->Click = [this] { Form2_Command27_Click(); };
    Command28->Click = [this] { Form2_Command28_Click(); };
    Command29->Click = [this] { Form2_Command29_Click(); };
    markHovered(Frame17, {Command26, Command27, Command28});
    markHovered(*Frame18, {Command29});
    Check1->Click = [this] { Form2_Check1_Click(); };
    showHandOver(Check1);
    Check1->setToolTip(
        u"从下次登陆起算数，不会开始或停止本次运行里的提醒。\n点“保存日程和设置”时，也按这里的勾记下。"_s);
}

void SchedulePage::windowLoads() {
    if (!remindsAtSignIn(Adodc1))
        return;
    Check1->setValue(true);
    m_reminders.watch();
}

void SchedulePage::Form2_Check1_Click() {
    storeReminderTick(m_shared, Adodc1, *Check1);
}

void SchedulePage::Form2_Label23_Click() {
    navigation().leaveOthers(*this, PageCode::Schedule);
    navigation().bringForward(*this);
    fillLists();
    scheduleNumber = 1;
    Label3->setCaption(QString::number(scheduleNumber) + u"日程安排"_s);
    Text3->setBoxText({});
}

void SchedulePage::fillLists() {
    // Not emptied first, which would take what is chosen in them: each visit adds the same entries once more.
    for (int piece = 1; piece <= Pieces; ++piece)
        Combo1->addEntry(u"音乐"_s + QString::number(piece));
    for (int hour = 0; hour < Hours; ++hour)
        Combo3->addEntry(QString::number(hour));
    for (int minute = 0; minute < Minutes; ++minute)
        Combo4->addEntry(QString::number(minute));
}

void SchedulePage::Form2_Text3_KeyPress(int KeyAscii) {
    // The key goes into the box afterwards in every case, so the text is counted as it will be.
    const qsizetype before = key_presses::characterCount(Text3->Text());
    Label3->setCaption(counted(before + 1));
    if (before == MostCharacters - 1 && KeyAscii != key_presses::Backspace) {
        m_shared.tell(u"日程提醒内容不能超过50字,请重新设置内容。"_s, u"系统提示"_s);
        // The whole text goes, not only what is too much: that is how the limit is kept. Ctrl+Z brings it back.
        Text3->setBoxText({});
        Label3->setCaption(counted(1));
    }
    if (KeyAscii == key_presses::Backspace)
        Label3->setCaption(counted(key_presses::characterCount(withoutBlanksAround(Text3->Text())) - 1));
}

void SchedulePage::Form2_Text4_Click() {
    m_shared.openDatePicker(DateField::Schedule, FieldTarget(Text4), placeBelow(*Text4, PickerGap));
}

void SchedulePage::Form2_Combo1_Click() {
    m_shared.unloadDatePicker();
    MM1.setCommand(u"close"_s);
    MM1.setFileName(m_shared.beside(Combo1->Text() + u".wav"_s));
    MM1.setCommand(u"open"_s);
    MM1.setCommand(u"play"_s);
}

void SchedulePage::Form2_Command29_Click() {
    m_shared.unloadDatePicker();
    Label22->setCaption(u"设置为："_s + Text4->Text() + u"日"_s + Combo3->Text() + u"时 "_s + Combo4->Text() +
                        u"分，提醒音乐为："_s + Combo1->Text());
    MM1.setCommand(u"stop"_s);
}

// ---- writing plans

bool SchedulePage::refusesGap() {
    if (!Text3->Text().isEmpty() && !Text4->Text().isEmpty())
        return false;
    m_shared.tell(u"日程安排和提醒日期不能为空，请输入提醒内容！"_s, u"提示"_s);
    return true;
}

void SchedulePage::writePlan(const DateValue& setAt) {
    scheduleSaved = true;
    Recordset& plans = Adodc1.open(tables::Schedule.toString());
    plans.addNew();
    plans.field(columns::WrittenOn).setValue(setAt);
    plans.field(columns::PlanNumber).setValue(static_cast<int>(scheduleNumber));
    plans.field(columns::PlanDay).setValue(Text4->Text());
    plans.field(columns::PlanTime).setValue(Combo3->Text() + ' '_L1 + Combo4->Text());
    plans.field(columns::PlanText).setValue(Text3->Text());
    plans.field(columns::PlanMusic).setValue(Combo1->Text());
    plans.field(columns::RowNumber).setValue(plans.recordCount() + 1);
    plans.update();
    Text3->forgetTyped();
    m_kept = Text3->Text();
}

void SchedulePage::rescue(RescuedTexts& texts) const {
    if (Text3->Text().isEmpty() || Text3->Text() == m_kept)
        return;
    texts.add(Frame17.Caption(),
              {u"日期：%1"_s.arg(Text4->Text()), u"时间：%1时 %2分"_s.arg(Combo3->Text(), Combo4->Text()),
               u"音乐：%1"_s.arg(Combo1->Text()), u"内容："_s, Text3->Text()});
}

void SchedulePage::Form2_Command28_Click() {
    m_shared.unloadDatePicker();
    if (refusesGap())
        return;
    const QDateTime now = m_shared.services.clock->now();
    writePlan({now.date(), now.time()});
    m_reminders.watch();
    Command28->setUsable(false);
    RemindAtSignIn.rewrite(*m_window.Adodc2, Check1->Value());
    m_shared.tell(u"保存成功！"_s, u"保存提示"_s);
}

void SchedulePage::openFreshPlan() {
    Command28->setUsable(true);
    ++scheduleNumber;
    Label3->setCaption(QString::number(scheduleNumber) + u"日程"_s);
    scheduleSaved = false;
    Text3->setBoxText({});
}

void SchedulePage::Form2_Command26_Click() {
    if (scheduleSaved)
        return openFreshPlan();
    if (Text3->Text().isEmpty()) {
        m_shared.tell(u"当前您可以在左侧添加新的日程安排！"_s, u"操作提示"_s);
        return;
    }
    if (m_shared.services.say(u"是否保存当前安排"_s, MessageStyle::YesNoQuestion, u"提醒"_s) != Answer::Yes) {
        Text3->setBoxText({});
        return;
    }
    if (refusesGap())
        return;
    // Kept in passing, on the way to the next plan: with the day alone, and without a word to the reminders.
    writePlan({m_shared.services.clock->today(), {}});
    m_shared.tell(u"当前记录以保存！"_s, u"提示"_s);
    Command28->setUsable(false);
}

void SchedulePage::Form2_Command27_Click() {
    Recordset& plans = plans::ofDay(Adodc1, m_shared.services.clock->today());
    QString list;
    for (int i = 1; !plans.eof(); ++i, plans.moveNext())
        list += u"日程"_s + spacedNumberText(i) + u"："_s + plans.field(columns::PlanText).text() + u"  提醒时间："_s +
                plans.field(columns::PlanDay).text() + u"日"_s + plans.field(columns::PlanTime).text() +
                u"分，设置日期为："_s + plans.field(columns::WrittenOn).text() + u"\r\n"_s;
    Text3->setBoxText(list.isEmpty() ? plans::NoneToday.toString() : list);
    m_kept = Text3->Text();
    Command28->setUsable(false);
    scheduleSaved = true;
}

} // namespace qinghe
