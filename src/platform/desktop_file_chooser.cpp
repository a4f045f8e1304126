#include "platform/desktop_file_chooser.h"

#include "platform/front_window.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// Where a user keeps files; the program's own folder is no place for them.
QString firstFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

} // namespace

QStringList nameFilters(const QString& filter) {
    QStringList filters;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = QString(parts[i + 1]).replace(u';', u' ');
        filters << (parts[i] == parts[i + 1] ? patterns : u"%1 (%2)"_s.arg(parts[i], patterns));
    }
    return filters;
}

std::optional<QString> DesktopFileChooser::choose(const QString& filter, const QString& name) {
    // Qt would keep the chooser's history in a file of its own in the home folder: it gets a place that takes none.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u":/"_s);
    QFileDialog dialog(windowInFront(), {}, firstFolder());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::AnyFile);
    bringOverNotices(dialog);
    if (const QStringList filters = nameFilters(filter); !filters.isEmpty())
        dialog.setNameFilters(filters);
    if (!name.isEmpty())
        dialog.selectFile(name);
    if (dialog.exec() != QFileDialog::Accepted)
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

} // namespace qinghe
