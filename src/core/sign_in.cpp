#include "core/sign_in.h"

#include "controls/key_presses.h"
#include "core/grid_rows.h"
#include "core/hover.h"
#include "core/ink.h"
#include "core/stored_picture.h"
#include "platform/files.h"
#include "store/data_file.h"
#include "store/header_toggle.h"
#include "store/left_journal.h"
#include "store/migrations.h"
#include "store/tables.h"

#include <QFileInfo>
#include <QPainterPath>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

QPolygon roundedRectangle(const QSize& size, int radius) {
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(), size), radius, radius);
    return path.toFillPolygon().toPolygon();
}

} // namespace

SignIn::SignIn(Shared& shared)
    : Form(names::SignIn, Kind::Frameless, Ground::SignIn),
      m_shared(shared),
      Adodc1(shared.newControl(u"Adodc1"_s, this)),
      Combo1(new ComboBox(this, u"Combo1"_s, true)),
      Text2(new TextBox(this, u"Text2"_s)),
      Check1(new CheckBox(this, u"Check1"_s, {})),
      Label3(new Label(this, u"Label3"_s, u"记住用户名和密码"_s)),
      Label1(new Label(this, u"Label1"_s, u"   登录"_s)),
      Image1(new Image(this, u"Image1"_s)),
      Image2(new Image(this, u"Image2"_s)) {
    setCaption(u"青禾家庭记账本登陆"_s);
    placeInMiddle(5325, 4200);
    Combo1->place(1320, 1560, 3255, 300);
    Text2->place(1320, 2160, 3255, 375);
    Check1->place(2280, 2760, 255, 285);
    Label3->place(2580, 2760, 1995, 285);
    Label1->place(3600, 3360, 1335, 375);
    Image1->place(4320, 0, 375, 375);
    Image2->place(4680, 0, 495, 375);
    Text2->setEchoMode(QLineEdit::Password);
    Text2->setSelectsWhenClicked();
    Text2->setEnterPressesOnce();
    Label1->setRole(Role::SignInButton);
    Image1->setGlyph(Glyph::Minimise);
    Image2->setGlyph(Glyph::Close);
    for (Image* image : {Image1, Image2})
        image->setRole(Role::Glyph);
    // The captions of the boxes stand in the picture.
    Combo1->setAccessibleName(u"用户名"_s);
    Text2->setAccessibleName(u"密码"_s);
    Check1->setAccessibleName(Label3->Caption());
    Image1->setAccessibleName(u"最小化"_s);
    Image2->setAccessibleName(u"退出"_s);
    setShape(roundedRectangle(size(), 6));
    for (Label* button : {Label1, static_cast<Label*>(Image1), static_cast<Label*>(Image2)})
        button->setReachable();
    bindEvents();
}

void SignIn::bindEvents() {
    Label1->Click = [this] { Form5_Label1_Click(); };
    Label3->Click = [this] { Form5_Label3_Click(); };
    Combo1->Click = [this] { Form5_Combo1_Click(); };
    Image1->Click = [this] { Form5_Image1_Click(); };
    Image2->Click = [this] { Form5_Image2_Click(); };
    // Enter in the password signs in, as every such window lets it, and so does Enter on the tick.
    Text2->KeyPress = [this](int key) {
        if (key == key_presses::Enter)
            Form5_Label1_Click();
    };
    Check1->KeyPress = [this](int) { Form5_Label1_Click(); };
    Label1->MouseMove = [this] {
        Label1->setForeColor(ink::Red);
        Label1->setHandCursor();
    };
    MouseMove = [this](double x, double y) {
        Label1->setForeColor(ink::Black);
        if (m_grip)
            moveTo(Left() + x - m_grip->x(), Top() + y - m_grip->y());
    };
    // The window has no title bar to be moved by: its bare ground serves.
    MouseDown = [this](double x, double y) { m_grip = QPointF(x, y); };
    MouseUp = [this](double, double) { m_grip.reset(); };
    for (Label* control : {static_cast<Label*>(Image1), static_cast<Label*>(Image2), Label3})
        showHandOver(control);
    CloseAsked = [this] { unload(); };
}

void SignIn::load() {
    Label1->setTop(3420);
    readyBook();
    offerNames();
    recallPair();
    Text2->setFocus();
    Text2->selectText();
    setPicture(writeOut(SignInPicture, *Adodc1, m_shared, *this));
}

void SignIn::readyBook() {
    const QString book = m_shared.dataFile();
    requireKnownVersion(book);
    if (m_shared.services.instance->tryTake()) // else what lies beside the book belongs to the copy that runs
        m_shared.notes << settleWhatWasLeft(book, m_shared.services.clock->now());
    healHeader(book);
}

/// Another copy of the program may have ended while this one waited here, and left the book as every end leaves it.
void SignIn::readyBookAgain() {
    const QString book = m_shared.dataFile();
    if (!headerIsSpoilt(book) && !QFileInfo::exists(journalOf(book)))
        return;
    m_shared.store.close();
    readyBook();
}

void SignIn::offerNames() {
    Recordset& users = Adodc1->open(tables::Users.toString());
    for (; !users.eof(); users.moveNext())
        Combo1->addEntry(users.field(columns::UserName).text());
}

void SignIn::recallPair() {
    Recordset& remembered = Adodc1->open(tables::Remembered.toString());
    if (remembered.recordCount() > 0) {
        Combo1->setText(remembered.field(columns::UserName).text());
        Text2->setBoxText(remembered.field(columns::RememberedPassword).text());
        Check1->setValue(true);
        return;
    }
    Recordset& users = Adodc1->open(tables::Users.toString());
    users.moveFirst();
    Combo1->setText(users.field(columns::UserName).text());
    Text2->setBoxText({});
}

void SignIn::Form5_Label1_Click() {
    if (Combo1->Text().isEmpty() || Text2->Text().isEmpty()) {
        m_shared.services.say(u"用户名和登录密码不能为空！"_s, MessageStyle::OkWarning, u"登录提醒"_s);
        return;
    }
    readyBookAgain();
    Recordset& users = Adodc1->open(tables::Users.toString());
    users.find(columns::UserName.toString() + u"='"_s + Combo1->Text() + u"'"_s);
    if (users.eof())
        return refuseUnknownName();
    if (users.field(columns::UserPassword).text() != Text2->Text())
        return refuseWrongPassword();
    if (!m_shared.store.tryToWrite([this] { rememberPair(); })) // the book can be looked at all the same
        m_shared.note(u"磁盘已满，现在只能查看，鼠标停在这里看怎么办。\n"
                      "“记住用户名和密码”没有写进账本，新的内容也写不进去。请先腾出空间，再记账。"_s);
    m_shared.forms.get(names::Main);
    unload();
}

void SignIn::refuseUnknownName() {
    const Answer answer =
        m_shared.services.say(u"用户名不存在，请重新登陆！"_s, MessageStyle::OkCancelInformation, u"登陆提醒"_s);
    if (answer == Answer::Cancel)
        return unload();
    Combo1->setText({});
    Combo1->setFocus();
    // The window stays after the third message; only wrong passwords close it.
    if (++wrongNameCount == 3)
        m_shared.tell(u"用户名错误三次，请询问管理员！"_s, u"错误提示"_s);
}

void SignIn::refuseWrongPassword() {
    const Answer answer =
        m_shared.services.say(u"密码错误，请重新输入密码"_s, MessageStyle::OkCancelWarning, u"登陆提醒"_s);
    // After Cancel the rest is still done.
    if (answer == Answer::Cancel)
        unload();
    Text2->setBoxText({});
    if (++wrongPasswordCount == 3) {
        m_shared.tell(u"登陆密码错误三次，请询问管理员！"_s, u"错误提示"_s);
        unload();
    }
}

void SignIn::rememberPair() {
    Recordset& remembered = Adodc1->open(tables::Remembered.toString());
    emptyTable(remembered);
    if (!Check1->Value())
        return;
    remembered.addNew();
    remembered.field(columns::UserName).setValue(Combo1->Text());
    remembered.field(columns::RememberedPassword).setValue(Text2->Text());
    remembered.update();
}

void SignIn::Form5_Combo1_Click() {
    Check1->setValue(false);
}

void SignIn::Form5_Label3_Click() {
    // The flag alone decides, not the box: after a remembered start the first click leaves the box ticked.
    rememberFlag = !rememberFlag;
    Check1->setValue(rememberFlag);
}

void SignIn::Form5_Image1_Click() {
    setWindowState(1);
}

void SignIn::Form5_Image2_Click() {
    files::deleteMatching(m_shared.services.appPath, u"dlpf.jpg"_s);
    unload();
}

} // namespace qinghe
