#include "core/tray_icon.h"

#include <QIcon>
#include <QStringEncoder>

namespace qinghe {

namespace {
constexpr int TipLength = 64;
}

TrayData trayDataFor(const Form& window) {
    TrayData data;
    data.hWnd = window.winId();
    data.uID = data.hIcon = static_cast<quintptr>(window.windowIcon().cacheKey());
    QStringEncoder encode("GB18030");
    data.szTip = QByteArray(encode(productName())) + '\0';
    data.szTip = data.szTip.leftJustified(TipLength, ' ', true);
    return data;
}

} // namespace qinghe
