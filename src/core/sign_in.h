#pragma once

#include "controls/combo_box.h"
#include "core/shared.h"

#include <optional>

namespace qinghe {

/// The sign-in, `Form5`: the first window of the process. Heals the data file's header, offers the known names and the
/// remembered pair, and hands over to the main window. Passwords are kept and compared in clear.
class SignIn : public Form {
    Q_OBJECT

public:
    explicit SignIn(Shared& shared);

    void load() override; ///< Form5_Form_Load

    void Form5_Label1_Click();
    void Form5_Label3_Click();
    void Form5_Combo1_Click();
    void Form5_Image1_Click();
    void Form5_Image2_Click();

private:
    void bindEvents();
    /// Before the book is read: what lies beside it is settled, its header healed.
    void readyBook();
    void readyBookAgain();
    void offerNames();
    void recallPair();
    void refuseUnknownName();
    void refuseWrongPassword();
    void rememberPair();

    Shared& m_shared;
    Adodc* Adodc1;
    ComboBox* Combo1; // user name
    TextBox* Text2;   // password
    CheckBox* Check1; // remember the pair
    Label* Label3;    // the words beside it
    Label* Label1;    // sign in
    Image* Image1;    // minimise
    Image* Image2;    // exit

    std::optional<QPointF> m_grip; ///< where the window is held while it is dragged; twips inside it
    bool rememberFlag = false;
    Int16 wrongPasswordCount;
    Int16 wrongNameCount;
};

} // namespace qinghe
