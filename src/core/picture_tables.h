#pragma once

#include "store/tables.h"

namespace qinghe {

/// A table of pictures: each row a name, a length in bytes and the bytes. The three columns are called otherwise in
/// each table.
struct PictureTable {
    QStringView table;
    QStringView name;
    QStringView size;
    QStringView bytes;
};

namespace pictures {

inline constexpr PictureTable OfferedSkins{tables::OfferedSkins, columns::PictureName, columns::PictureSize,
                                           columns::SkinBytes};
inline constexpr PictureTable ChosenSkin{tables::ChosenSkin, columns::ChosenName, columns::ChosenSize,
                                         columns::ChosenBytes};
inline constexpr PictureTable Desktop{tables::DesktopPicture, columns::PictureName, columns::PictureSize,
                                      columns::DesktopBytes};
inline constexpr PictureTable SignIn{tables::SignInPicture, columns::PictureName, columns::PictureSize,
                                     columns::SkinBytes};

} // namespace pictures

} // namespace qinghe
