#include "maintenance/picture_window.h"

#include "core/hover.h"
#include "platform/files.h"
#include "runtime/blanks.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr PictureTarget Targets[] = {
    {
        .form = u"Form8",
        .entry = u"添加记账本皮肤",
        .caption = u"注入数据库皮肤",
        .source = u"select * from 软件皮肤",
        .bytesColumn = u"皮肤",
        .dialog = u"cmm1",
        .pathWords = u"选择图片",
        .nameWords = u"储存名称",
        .browse = u"......",
        .store = u"储存",
    },
    {
        .form = u"Form10",
        .entry = u"添加桌面图片",
        .caption = u"Form10",
        .source = u"select * from 主界面",
        .bytesColumn = u"文件",
        .dialog = u"cmm1",
        .pathWords = u"打开文件",
        .nameWords = u"名称",
        .browse = u"打开",
        .store = u"保存",
    },
    {
        .form = u"Form11",
        .entry = u"添加登陆图片",
        .caption = u"Form11",
        .source = u"select * from 登陆皮肤",
        .bytesColumn = u"皮肤",
        .dialog = u"Cmm1",
        .pathWords = u"文件",
        .nameWords = u"文件名",
        .browse = u"Command1",
        .store = u"Command2",
    },
};

QString text(const char16_t* words) {
    return QString::fromUtf16(words);
}

} // namespace

std::span<const PictureTarget> pictureTargets() {
    return Targets;
}

PictureWindow::PictureWindow(Shared& shared, const PictureTarget& target)
    : Form(text(target.form), Kind::Dialog, Ground::Dialog, shared.forms.loaded(u"Form2"_s)),
      m_shared(shared),
      m_target(target),
      Adodc1(new Adodc(shared.store, u"Adodc1"_s, this)),
      m_dialog(new CommonDialog(*shared.services.chooser, text(target.dialog), this)),
      Label1(new Label(this, u"Label1"_s, text(target.pathWords))),
      Text1(new TextBox(this, u"Text1"_s)),
      Label2(new Label(this, u"Label2"_s, text(target.nameWords))),
      Text2(new TextBox(this, u"Text2"_s)),
      Command1(new CommandButton(this, u"Command1"_s, text(target.browse))),
      Command2(new CommandButton(this, u"Command2"_s, text(target.store))) {
    setCaption(text(target.caption));
    Label1->place(240, 360, 1140, 330);
    Text1->place(1440, 360, 3000, 330);
    Command1->place(4560, 330, 1200, 390);
    Label2->place(240, 960, 1140, 330);
    Text2->place(1440, 960, 3000, 330);
    Command2->place(4560, 1740, 1200, 390);
    Command2->setRole(Role::Primary);
    Command1->Click = [this] { choosePicture(); };
    Command2->Click = [this] { storePicture(); };
    markHovered(*this, {Command1, Command2});
    placeInMiddle(6000, 2400, shared.forms.loaded(u"Form2"_s));
}

void PictureWindow::load() {
    Adodc1->setVisible(false);
}

void PictureWindow::choosePicture() {
    m_dialog->showOpen();
    Text1->setBoxText(m_dialog->FileName());
}

void PictureWindow::storePicture() {
    if (Text2->Text().isEmpty()) {
        m_shared.services.say(u"Box of filename can not be empty!"_s, MessageStyle::OkInformation, u"information"_s);
        return;
    }
    addRow();
    if (m_shared.services.say(u"添加成功！是否继续添加？"_s, MessageStyle::YesNoQuestion, u"添加提示"_s) == Answer::Yes)
        choosePicture();
}

/// The bytes are stored with a zero byte behind them, which their size leaves out.
void PictureWindow::addRow() {
    Adodc1->setConnectionString(m_shared.connection());
    Recordset& pictures = Adodc1->open(text(m_target.source));
    pictures.addNew();
    const QByteArray bytes = files::readAllOrMake(withoutBlanksAround(Text1->Text()));
    pictures.field(u"大小"_s).setValue(static_cast<double>(static_cast<float>(bytes.size())));
    pictures.field(text(m_target.bytesColumn)).appendChunk(bytes + '\0');
    pictures.field(u"名称"_s).setValue(Text2->Text());
    pictures.update();
}

} // namespace qinghe
