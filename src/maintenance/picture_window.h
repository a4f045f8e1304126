#pragma once

#include "controls/common_dialog.h"
#include "core/shared.h"
#include "core/stored_picture.h"

#include <span>

namespace qinghe {

/// What one of the three injection windows is: its captions, and the table that it puts pictures into.
struct PictureTarget {
    const FormName<>& form;
    QStringView entry; ///< in the menu of the settings page
    QStringView caption;
    const PictureTable& table;
    QStringView dialog; ///< the name of its file dialog
    QStringView pathWords;
    QStringView nameWords;
    QStringView browse; ///< the caption of Command1
    QStringView store;  ///< the caption of Command2
    QStringView browseTip = {}, storeTip = {};
    /// The picture of whose rows the first counts, and how the settings' menu calls the way to the next one; none where
    /// there is a list to choose from.
    const StoredPicture* turned = nullptr;
    QStringView next = {};
    QStringView turnedTo = {}; ///< what is told then, with the name for %1
};

/// The skins on offer, the desktop's picture, the picture of the sign-in.
std::span<const PictureTarget> pictureTargets();

/// `Form8`, `Form10`, `Form11`: adds a row with a picture file's bytes to a table of pictures. Whether they are a
/// picture is seen when they are shown; names are not compared. Of the tables of one picture the first row is shown.
class PictureWindow : public Form {
    Q_OBJECT

public:
    PictureWindow(Shared& shared, const PictureTarget& target);

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
