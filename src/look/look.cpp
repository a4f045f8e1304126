#include "look/look.h"

#include "look/app_icon.h"
#include "look/fonts.h"
#include "look/palette.h"
#include "look/style.h"

#include <QApplication>
#include <QToolTip>

namespace qinghe {

void dress(QApplication& app) {
    QApplication::setStyle(new Style);
    QApplication::setPalette(programPalette());
    QApplication::setFont(sans(type::Body));
    QToolTip::setFont(sans(type::Small));
    QToolTip::setPalette(programPalette());
    app.setWindowIcon(appIcon());
}

} // namespace qinghe
