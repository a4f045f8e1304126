#pragma once

#include "core/workbench.h"

#include <QImage>

namespace qinghe {

/// Where a picture lies in the store, and the file beside the program that it is written to while the program runs.
struct StoredPicture {
    const char16_t* source; ///< table or query; its first row counts
    const char16_t* sizeColumn;
    const char16_t* bytesColumn;
    const char16_t* file;
};

inline constexpr StoredPicture ChosenSkin{u"select * from 皮肤选择 ", u"文件大小", u"皮肤文件", u"pf.jpg"};
inline constexpr StoredPicture DesktopPicture{u"select * from 主界面", u"大小", u"文件", u"zjm.jpg"};
inline constexpr StoredPicture SignInPicture{u"select * from 登陆皮肤 ", u"大小", u"皮肤", u"dlpf.jpg"};

/// Reads the picture through `control`, writes its file and loads that, to be shown on `place`. Throws RuntimeError: no
/// row, not writable, no picture.
QImage writeOut(const StoredPicture& picture, Adodc& control, const Workbench& bench, const QWidget& place);

} // namespace qinghe
