#include "look/lent_fonts.h"

#include <QDir>
#include <QFontDatabase>

namespace qinghe {

void lendChineseFonts(const QString& folder) {
    const QFileInfoList fonts = QDir(folder).entryInfoList(QDir::Files);
    if (fonts.isEmpty() || !QFontDatabase::families(QFontDatabase::SimplifiedChinese).isEmpty())
        return;
    for (const QFileInfo& font : fonts)
        QFontDatabase::addApplicationFont(font.filePath());
}

} // namespace qinghe
