#pragma once

#include "core/workbench.h"

#include <QImage>

namespace qinghe {

/// Where a picture lies in the store, and the file beside the program that it is written to while the program runs.
struct StoredPicture {
    const char16_t* source; ///< the query, or its beginning; the first row counts
    const char16_t* sizeColumn;
    const char16_t* bytesColumn;
    const char16_t* file;
};

inline constexpr StoredPicture ChosenSkin{u"select * from 皮肤选择 ", u"文件大小", u"皮肤文件", u"pf.jpg"};
/// Of the skins on offer the one whose name, and a quote behind it, follow.
inline constexpr StoredPicture NamedSkin{u"select * from 软件皮肤 where 名称='", u"大小", u"皮肤", u"pf.jpg"};
inline constexpr StoredPicture DesktopPicture{u"select * from 主界面", u"大小", u"文件", u"zjm.jpg"};
inline constexpr StoredPicture SignInPicture{u"select * from 登陆皮肤 ", u"大小", u"皮肤", u"dlpf.jpg"};

struct PictureBytes {
    float size = 0; ///< as the store tells it, which a single rounds above 16 MB
    QByteArray bytes;
};

/// Reads a picture through `control`. Throws RuntimeError: no row, and what the store throws.
PictureBytes readPicture(const StoredPicture& picture, Adodc& control, const QString& endOfSource = {});
/// Writes the picture's file, over one that was left, whose tail stays when it is longer; then loads it, to be shown on
/// `place`. Throws RuntimeError: not writable, no picture.
QImage writeOut(const StoredPicture& picture, const QByteArray& bytes, const Workbench& bench, const QWidget& place);
/// Both.
QImage writeOut(const StoredPicture& picture, Adodc& control, const Workbench& bench, const QWidget& place);

} // namespace qinghe
