#include "core/sign_in.h"

#include "controls/key_presses.h"
#include "core/hover.h"
#include "core/stored_picture.h"
#include "platform/files.h"
#include "store/header_toggle.h"

#include <QPainterPath>
#include <QWindow>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {
constexpr quint32 Red = 255;

QPolygon roundedRectangle(const QSize& size, int radius) {
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(), size), radius, radius);
    return path.toFillPolygon().toPolygon();
}

} // namespace

SignIn::SignIn(Shared& shared)
    : Form(u"Form5"_s, Kind::Frameless, Ground::SignIn),
      m_shared(shared),
      Adodc1(new Adodc(shared.store, u"Adodc1"_s, this)),
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
    Label1->setRole(Role::SignInButton);
    Image1->setGlyph(Glyph::Minimise);
    Image2->setGlyph(Glyph::Close);
    for (Image* image : {Image1, Image2})
        image->setRole(Role::Glyph);
    setShape(roundedRectangle(size(), 6));
    setTabOrder(Combo1, Text2);
    bindEvents();
}

void SignIn::bindEvents() {
    Label1->Click = [this] { Form5_Label1_Click(); };
    Label3->Click = [this] { Form5_Label3_Click(); };
    Combo1->Click = [this] { Form5_Combo1_Click(); };
    Image1->Click = [this] { Form5_Image1_Click(); };
    Image2->Click = [this] { Form5_Image2_Click(); };
    // Enter in the password signs in, as every such window lets it.
    Text2->KeyPress = [this](int key) {
        if (key == key_presses::Enter)
            Form5_Label1_Click();
    };
    Label1->MouseMove = [this] {
        Label1->setForeColor(Red);
        Label1->setHandCursor();
    };
    MouseMove = [this](double, double) { Label1->setForeColor(0); };
    // The window has no title bar to be moved by.
    MouseDown = [this](double, double) {
        if (windowHandle())
            windowHandle()->startSystemMove();
    };
    for (Label* control : {static_cast<Label*>(Image1), static_cast<Label*>(Image2), Label3})
        showHandOver(control);
    CloseAsked = [this] { unload(); };
}

void SignIn::load() {
    Label1->setTop(3420);
    healHeader(m_shared.beside(u"data.dll"_s));
    Adodc1->setVisible(false);
    Adodc1->setConnectionString(m_shared.connection());
    offerNames();
    recallPair();
    Adodc1->setConnectionString(m_shared.connection());
    Text2->setFocus();
    setPicture(writeOut(SignInPicture, *Adodc1, m_shared, *this));
}

void SignIn::offerNames() {
    Recordset& users = Adodc1->open(u"yhb"_s);
    for (; !users.eof(); users.moveNext())
        Combo1->addEntry(users.field(u"用户名"_s).text());
}

void SignIn::recallPair() {
    Adodc1->setConnectionString(m_shared.connection(false));
    Recordset& remembered = Adodc1->open(u"登陆用户记录表"_s);
    if (remembered.recordCount() > 0) {
        Combo1->setText(remembered.field(u"用户名"_s).text());
        Text2->setBoxText(remembered.field(u"密码"_s).text());
        Check1->setValue(true);
        return;
    }
    Recordset& users = Adodc1->open(u"yhb"_s);
    users.moveFirst();
    Combo1->setText(users.field(u"用户名"_s).text());
    Text2->setBoxText({});
}

void SignIn::Form5_Label1_Click() {
    if (Combo1->Text().isEmpty() || Text2->Text().isEmpty()) {
        m_shared.services.say(u"用户名和登录密码不能为空！"_s, MessageStyle::OkWarning, u"登录提醒"_s);
        return;
    }
    Adodc1->setConnectionString(m_shared.connection());
    Recordset& users = Adodc1->open(u"yhb"_s);
    users.find(u"用户名='"_s + Combo1->Text() + u"'"_s);
    if (users.eof())
        return refuseUnknownName();
    if (users.field(u"用户密码"_s).text() != Text2->Text())
        return refuseWrongPassword();
    rememberPair();
    m_shared.forms.get(u"Form2"_s);
    unload();
}

void SignIn::refuseUnknownName() {
    const Answer answer =
        m_shared.services.say(u"用户名不存在，请重新登陆！"_s, MessageStyle::OkCancelInformation, u"登陆提醒"_s);
    if (answer == Answer::Cancel)
        return unload();
    Combo1->setText({});
    // The window stays after the third message; only wrong passwords close it.
    if (++wrongNameCount == 3)
        m_shared.services.say(u"用户名错误三次，请询问管理员！"_s, MessageStyle::OkInformation, u"错误提示"_s);
}

void SignIn::refuseWrongPassword() {
    const Answer answer =
        m_shared.services.say(u"密码错误，请重新输入密码"_s, MessageStyle::OkCancelWarning, u"登陆提醒"_s);
    // After Cancel the rest is still done.
    if (answer == Answer::Cancel)
        unload();
    Text2->setBoxText({});
    if (++wrongPasswordCount == 3) {
        m_shared.services.say(u"登陆密码错误三次，请询问管理员！"_s, MessageStyle::OkInformation, u"错误提示"_s);
        unload();
    }
}

void SignIn::rememberPair() {
    Recordset& remembered = Adodc1->open(u"登陆用户记录表"_s);
    for (; !remembered.eof(); remembered.moveNext())
        remembered.deleteCurrent();
    if (!Check1->Value())
        return;
    remembered.addNew();
    remembered.field(u"用户名"_s).setValue(Combo1->Text());
    remembered.field(u"密码"_s).setValue(Text2->Text());
    remembered.update();
}

void SignIn::Form5_Combo1_Click() {
    Check1->setValue(false);
}

void SignIn::Form5_Label3_Click() {
    // The flag alone decides, not the box: after a remembered start the first click leaves the box ticked.
    rememberFlag = rememberFlag ? 0 : 1;
    Check1->setValue(rememberFlag != 0);
}

void SignIn::Form5_Image1_Click() {
    setWindowState(1);
}

void SignIn::Form5_Image2_Click() {
    files::deleteMatching(m_shared.services.appPath, u"dlpf.jpg"_s);
    unload();
}

void SignIn::unload() {
    m_shared.forms.unload(objectName());
}

} // namespace qinghe
