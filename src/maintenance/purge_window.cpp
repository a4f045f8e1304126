#include "maintenance/purge_window.h"

#include "core/grid_rows.h"
#include "core/hover.h"
#include "core/picker_keys.h"
#include "platform/front_window.h"
#include "runtime/blanks.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int Accounts = 4, Plans = 6; ///< places among the kinds
constexpr double PickerGap = 400;      ///< twips from the foot of the box to the picker: the title bar's height

} // namespace

struct PurgeWindow::Records {
    QStringView box;
    QStringView caption;
    QStringView source; ///< up to the date; a table by its name goes altogether
    QStringView done;
    QStringView none;
    bool dated = true;
};

const std::array<PurgeWindow::Records, 7> PurgeWindow::Kinds{{
    {u"Check1(0)", u"收入记录", u"select * from srb where 时间<=", u"收入记录已清空！", u"当前收入记录为空！"},
    {u"Check1(1)", u"支出记录", u"select * from zcb where 时间<= ", u"支出记录已清空！", u"当前支出记录为空！"},
    {u"Check1(2)", u"借入记录", u"select * from jrb where 日期< = ", u"借入记录已清空", u"当前借入记录为空！"},
    {u"Check1(3)", u"借出记录", u"select * from jcb where 日期<= ", u"借出记录已清空", u"当前借出记录为空！"},
    {u"Check1(4)", u"储蓄账户", u"zhb", u"账户记录已清空", u"当前账户记录为空！", false},
    {u"Check1(5)", u"预算记录", u"select * from ysb where 预算时间<= ", u"预算记录已清空", u"当前预算记录为空！"},
    {u"Check2", u"日程提醒记录", u"select * from rcb where 日程日期<=", u"日程记录已清空", u"当前日程记录为空！"},
}};

PurgeWindow::PurgeWindow(Shared& shared)
    : Form(names::Purge, Kind::Dialog, Ground::Dialog, shared.forms.loaded(names::Main)),
      m_shared(shared),
      Adodc1(shared.newControl(u"Adodc1"_s, this)),
      Frame1(new Frame(this, u"Frame1"_s, u"（删除记录）项目"_s)) {
    setCaption(u"设置-删除"_s);
    placeInMiddle(6600, 4680, shared.forms.loaded(names::Main));
    Frame1->place(240, 240, 6120, 2160);
    Frame1->setRole(Role::InnerFrame);
    makeBoxes();
    makeDate();
    keepInSight(*Frame1); // the question is about what is ticked there
    makeHelp();
    Command1 = new CommandButton(this, u"Command1"_s, u"开始删除"_s);
    Command1->place(4980, 4020, 1380, 390);
    Command1->setGlyph(Glyph::Remove);
    Command1->setRole(Role::Primary);
    Command1->Click = [this] { Form3_Command1_Click(); };
    Command1->handKeyboardTo(this);
    markHovered(*this, {Command1}, {Frame1, Frame2});
    m_safety = new Label(this, {});
    m_safety->place(240, 3990, 4560, 510);
    m_safety->setRole(Role::Help);
    SafetyCopies::promise(*m_safety, Occasion::Purge);
}

void PurgeWindow::makeBoxes() {
    constexpr int InARow = 4;
    for (int i = 0; i < static_cast<int>(Kinds.size()); ++i) {
        const Records& kind = Kinds[static_cast<std::size_t>(i)];
        auto* box = new CheckBox(Frame1, kind.box.toString(), kind.caption.toString());
        box->place(240 + 1440 * (i % InARow), 480 + 480 * (i / InARow), i == Plans ? 1740 : 1380, 330);
        box->Click = [this, i] { i == Plans ? Form3_Check2_Click() : Form3_Check1_Click(); };
        m_checks[static_cast<std::size_t>(i)] = box;
    }
}

void PurgeWindow::makeDate() {
    Label2 = new Label(Frame1, u"Label2"_s, u"删除日期在"_s);
    Label2->place(240, 1560, 1140, 330);
    Text1 = new TextBox(Frame1, u"Text1"_s);
    Text1->place(1440, 1560, 1800, 330);
    Text1->setAccessibleName(u"删除到哪一天"_s);
    Text1->setFocusRefuge(this); // and not the next button
    Text1->Click = [this] { Form3_Text1_Click(); };
    Text1->setSelectsWhenClicked();
    new PickerKeys(m_shared, *Text1);
    Label3 = new Label(Frame1, u"Label3"_s, u"以前的记录"_s);
    Label3->place(3360, 1560, 1500, 330);
}

void PurgeWindow::makeHelp() {
    Frame2 = new Frame(this, u"Frame2"_s, u"操作说明"_s);
    Frame2->place(240, 2580, 6120, 1260);
    Frame2->setRole(Role::InnerFrame);
    auto* words =
        new Label(Frame2, u"Label1"_s,
                  u"<  删除的记录将无法恢复，请您在确定删除后再进行删除操作，选中需要删除的项目然后在文本框中选择日期，"
                  u"点击“确定”按钮在选择日期以前的记录（包括选择的日期）将被删除。>"_s);
    words->place(240, 270, 5640, 930);
    words->setRole(Role::Help);
}

void PurgeWindow::load() {
    // The date is typed nowhere: it is closed again as soon as the picker is gone.
    m_shared.pickerGone = [loaded = QPointer(this)] {
        PurgeWindow* const window = loaded;
        if (window && window->Visible())
            window->Text1->setUsable(false);
    };
}

void PurgeWindow::unloaded() {
    m_shared.unloadDatePicker();
    m_shared.pickerGone = {};
    Gone.raise();
}

void PurgeWindow::Form3_Text1_Click() {
    m_shared.openDatePicker(DateField::Purge, FieldTarget(Text1), placeBelow(*Text1, Text1->Height() + PickerGap));
}

void PurgeWindow::setDateShown(bool shown) {
    Text1->setShown(shown);
    Label2->setShown(shown);
    Label3->setShown(shown);
}

void PurgeWindow::Form3_Check1_Click() {
    // The date picker has closed it.
    Text1->setUsable(true);
    const bool accounts = m_checks[Accounts]->Value();
    if (accounts) {
        // Accounts have no date, so none stands there; other kinds that are ticked ask for one then.
        Text1->setBoxText({});
        Frame2->setShown(true);
    }
    setDateShown(!accounts);
}

void PurgeWindow::Form3_Check2_Click() {
    Text1->setUsable(true);
}

void PurgeWindow::tell(QStringView text) {
    m_shared.tell(text.toString(), u"提示"_s);
}

void PurgeWindow::Form3_Command1_Click() {
    if (m_shared.services.say(u"是否确定清空选择的记录？"_s, MessageStyle::YesNoQuestion, u"提示"_s) != Answer::Yes)
        return;
    m_hasCopy = false;
    for (std::size_t i = 0; i < Kinds.size(); ++i)
        if (m_checks[i]->Value())
            purge(Kinds[i]);
}

/// Before the first row of a run goes.
void PurgeWindow::keepWayBack() {
    if (!std::exchange(m_hasCopy, true))
        m_shared.safety.keepBefore(Occasion::Purge, *m_safety);
}

void PurgeWindow::purge(const Records& kind) {
    if (kind.dated && Text1->Text().isEmpty())
        return tell(u"请选择日期！");
    QString source = kind.source.toString();
    if (kind.dated)
        source += u'#' + withoutBlanksAround(Text1->Text()) + u'#';
    Recordset& records = Adodc1->open(source);
    if (records.recordCount() == 0)
        return tell(kind.none);
    keepWayBack();
    emptyTable(records);
    tell(kind.done);
}

} // namespace qinghe
