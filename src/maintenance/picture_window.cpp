#include "maintenance/picture_window.h"

#include "core/hover.h"
#include "platform/files.h"
#include "runtime/blanks.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr PictureTarget Targets[] = {
    {
        .form = names::InjectSkin,
        .entry = u"添加记账本皮肤",
        .caption = u"注入数据库皮肤",
        .table = pictures::OfferedSkins,
        .dialog = u"cmm1",
        .pathWords = u"选择图片",
        .nameWords = u"储存名称",
        .browse = u"......",
        .store = u"储存",
    },
    {
        .form = names::InjectDesktopPicture,
        .entry = u"添加桌面图片",
        .caption = u"Form10",
        .table = pictures::Desktop,
        .dialog = u"cmm1",
        .pathWords = u"打开文件",
        .nameWords = u"名称",
        .browse = u"打开",
        .store = u"保存",
        .turned = &DesktopPicture,
        .next = u"换下一张桌面图片",
        .turnedTo = u"桌面图片已换成“%1”。",
    },
    {
        .form = names::InjectSignInPicture,
        .entry = u"添加登陆图片",
        .caption = u"Form11",
        .table = pictures::SignIn,
        .dialog = u"Cmm1",
        .pathWords = u"文件",
        .nameWords = u"文件名",
        .browse = u"Command1",
        .store = u"Command2",
        .browseTip = u"选择图片文件",
        .storeTip = u"保存图片",
        .turned = &SignInPicture,
        .next = u"换下一张登陆图片",
        .turnedTo = u"登陆图片已换成“%1”，下次启动时显示。",
    },
};

} // namespace

std::span<const PictureTarget> pictureTargets() {
    return Targets;
}

PictureWindow::PictureWindow(Shared& shared, const PictureTarget& target)
    : Form(target.form, Kind::Dialog, Ground::Dialog, shared.forms.loaded(names::Main)),
      m_shared(shared),
      m_target(target),
      Adodc1(shared.newControl(u"Adodc1"_s, this)),
      m_dialog(new CommonDialog(*shared.services.chooser, target.dialog.toString(), this)),
      Label1(new Label(this, u"Label1"_s, target.pathWords.toString())),
      Text1(new TextBox(this, u"Text1"_s)),
      Label2(new Label(this, u"Label2"_s, target.nameWords.toString())),
      Text2(new TextBox(this, u"Text2"_s)),
      Command1(new CommandButton(this, u"Command1"_s, target.browse.toString())),
      Command2(new CommandButton(this, u"Command2"_s, target.store.toString())) {
    setCaption(target.caption.toString());
    m_dialog->setFilter(u"图片|*.jpg;*.jpeg;*.png;*.bmp;*.gif|所有文件|*"_s);
    Label1->place(240, 360, 1140, 330);
    Text1->place(1440, 360, 3000, 330);
    Command1->place(4560, 330, 1200, 390);
    Label2->place(240, 960, 1140, 330);
    Text2->place(1440, 960, 3000, 330);
    Command2->place(4560, 1740, 1200, 390);
    Command2->setRole(Role::Primary);
    // The windows' own words are not all Chinese.
    setAccessibleName(target.entry.toString());
    Text1->setAccessibleName(u"图片文件"_s);
    Text2->setAccessibleName(u"图片名称"_s);
    Command1->setAccessibleName(u"选择图片文件"_s);
    Command2->setAccessibleName(u"保存图片"_s);
    Command1->setToolTip(target.browseTip.toString());
    Command2->setToolTip(target.storeTip.toString());
    Command1->Click = [this] { choosePicture(); };
    Command2->Click = [this] { storePicture(); };
    markHovered(*this, {Command1, Command2});
    placeInMiddle(6000, 2400, shared.forms.loaded(names::Main));
}

void PictureWindow::choosePicture() {
    m_dialog->showOpen();
    Text1->setBoxText(m_dialog->FileName());
}

void PictureWindow::storePicture() {
    if (Text2->Text().isEmpty()) {
        m_shared.tell(u"Box of filename can not be empty!"_s, u"information"_s);
        return;
    }
    addRow();
    if (m_shared.services.say(u"添加成功！是否继续添加？"_s, MessageStyle::YesNoQuestion, u"添加提示"_s) == Answer::Yes)
        choosePicture();
}

/// The bytes are stored with a zero byte behind them, which their size leaves out.
void PictureWindow::addRow() {
    Recordset& pictures = Adodc1->open(u"select * from "_s + m_target.table.table.toString());
    pictures.addNew();
    const QByteArray bytes = files::readAllOrMake(withoutBlanksAround(Text1->Text()));
    pictures.field(m_target.table.size).setValue(static_cast<double>(static_cast<float>(bytes.size())));
    pictures.field(m_target.table.bytes).appendChunk(bytes + '\0');
    pictures.field(m_target.table.name).setValue(Text2->Text());
    pictures.update();
}

} // namespace qinghe
