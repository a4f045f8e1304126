#pragma once

#include "controls/common_dialog.h"
#include "core/shared.h"

#include <span>

namespace qinghe {

/// What one of the three injection windows is: its captions, and the table that it puts pictures into.
struct PictureTarget {
    const char16_t* form;
    const char16_t* entry; ///< in the menu of the settings page
    const char16_t* caption;
    const char16_t* source;
    const char16_t* bytesColumn;
    const char16_t* dialog; ///< the name of its file dialog
    const char16_t* pathWords;
    const char16_t* nameWords;
    const char16_t* browse; ///< the caption of Command1
    const char16_t* store;  ///< the caption of Command2
};

/// The skins on offer, the desktop's picture, the picture of the sign-in.
std::span<const PictureTarget> pictureTargets();

/// `Form8`, `Form10`, `Form11`: adds a row with a picture file's bytes to a table of pictures. Whether they are a
/// picture is seen when they are shown; names are not compared. Of the tables of one picture the first row is shown.
class PictureWindow : public Form {
    Q_OBJECT

public:
    PictureWindow(Shared& shared, const PictureTarget& target);

    void load() override;

private:
    void choosePicture(); ///< Command1 clicked
    void storePicture();  ///< Command2 clicked
    void addRow();

    Shared& m_shared;
    const PictureTarget& m_target;
    Adodc* Adodc1;
    CommonDialog* m_dialog;
    Label* Label1;
    TextBox* Text1; // the picture's path
    Label* Label2;
    TextBox* Text2;          // the name to store
    CommandButton* Command1; // chooses the picture
    CommandButton* Command2; // stores it
};

} // namespace qinghe
