#include "platform/plugin_places.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace qinghe {

using namespace Qt::StringLiterals;

/// Qt adds the program's folder as the application is made, unless it was in the list before and has been taken out.
void keepPluginsFromProgramFolder() {
    constexpr char Places[] = "QT_PLUGIN_PATH";
    const QString folder = QFileInfo(QFileInfo(u"/proc/self/exe"_s).symLinkTarget()).canonicalPath();
    const QByteArray before = qgetenv(Places);
    qputenv(Places, QFile::encodeName(folder) + ':' + before);
    QStringList places = QCoreApplication::libraryPaths();
    if (before.isNull())
        qunsetenv(Places);
    else
        qputenv(Places, before);
    places.removeAll(folder);
    QCoreApplication::setLibraryPaths(places);
}

} // namespace qinghe
