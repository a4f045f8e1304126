#include "platform/desktop_launcher.h"

#include "disk/plain_file.h"
#include "platform/private_files.h"

#include <QDesktopServices>
#include <QStandardPaths>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// Whether this list of the kinds of files and their programs names one for pages.
bool namesBrowser(const QString& list) {
    PlainFile file(list, Links::Follow);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    while (!file.atEnd())
        if (const QByteArray line = file.readLine();
            line.startsWith("x-scheme-handler/http=") && line.trimmed().back() != '=')
            return true;
    return false;
}

} // namespace

bool hasBrowser() {
    if (!QStandardPaths::findExecutable(u"x-www-browser"_s).isEmpty() || qEnvironmentVariableIsSet("BROWSER"))
        return true;
    const QStringList lists = QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, u"mimeinfo.cache"_s);
    return std::ranges::any_of(lists, namesBrowser);
}

bool DesktopLauncher::explore(const QUrl& page) {
    const AccountsOwnHabits habits; // what the browser saves is the user's to share
    return hasBrowser() && QDesktopServices::openUrl(page);
}

} // namespace qinghe
