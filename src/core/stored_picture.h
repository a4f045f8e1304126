#pragma once

#include "core/picture_tables.h"
#include "core/shared.h"

#include <QImage>

namespace qinghe {

/// Where a picture lies in the store, and the file beside the program that it is written to while the program runs.
struct StoredPicture {
    const PictureTable& table;
    QStringView source; ///< the query, or its beginning
    QStringView file;
};

inline constexpr StoredPicture ChosenSkin{pictures::ChosenSkin, u"select * from 皮肤选择 ", u"pf.jpg"};
inline constexpr StoredPicture OfferedSkins{pictures::OfferedSkins, u"select * from 软件皮肤", u"pf.jpg"};
/// Of the skins on offer the one whose name, and a quote behind it, follow.
inline constexpr StoredPicture NamedSkin{pictures::OfferedSkins, u"select * from 软件皮肤 where 名称='", u"pf.jpg"};
inline constexpr StoredPicture DesktopPicture{pictures::Desktop, u"select * from 主界面", u"zjm.jpg"};
inline constexpr StoredPicture SignInPicture{pictures::SignIn, u"select * from 登陆皮肤 ", u"dlpf.jpg"};

struct PictureBytes {
    float size = 0; ///< as the store tells it, which a single rounds above 16 MB
    QByteArray bytes;
};

/// Reads the picture of the first row through `control`; it may have no bytes, which is none. Throws RuntimeError: no
/// row, a size that no picture has (InvalidPicture), and what the store throws.
PictureBytes readPicture(const StoredPicture& picture, Adodc& control, const QString& endOfSource = {});
/// Loads the picture, to be shown on `place`, and writes its file, over one that was left, whose tail stays when it is
/// longer. What is no picture is not written. A picture of no bytes is none: nothing is written, and the image is null.
/// Throws RuntimeError: not writable, no picture.
QImage writeOut(const StoredPicture& picture, const QByteArray& bytes, const Shared& shared, const QWidget& place);
/// Both, for the first row that can be shown; the image is null where none can. One that cannot be shown is noted for
/// the main window to tell; on a full disk it is shown all the same. Throws RuntimeError: no row at all, the size in
/// the first is none that a picture has, not writable.
QImage writeOut(const StoredPicture& picture, Adodc& control, Shared& shared, const QWidget& place);
/// The main window's picture: the chosen skin; where that cannot be shown the first of the skins on offer that can, so
/// that nobody is locked out by a choice; else a null image. Throws likewise.
QImage writeOutSkin(Adodc& control, Shared& shared, const QWidget& place);

} // namespace qinghe
