#include "platform/desktop_file_chooser.h"

#include "platform/file_chooser_words.h"
#include "platform/front_window.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QListView>
#include <QPixmapCache>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>
#include <QTreeView>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// Where a user keeps files; the program's own folder is no place for them.
QString firstFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

constexpr QSize DialogSize(860, 520);
constexpr int NameWidth = 320, SideWidth = 150; // pixels
enum Column { NameColumn, SizeColumn, KindColumn, TimeColumn };

/// Where people look for their files, in Chinese whatever language the machine speaks.
void showPlaces(QFileDialog& dialog) {
    const std::vector<Place> places = usualPlaces();
    QList<QUrl> urls;
    for (const Place& place : places)
        urls << place.url;
    dialog.setSidebarUrls(urls);
    if (auto* side = dialog.findChild<QListView*>(u"sidebar"_s))
        side->setItemDelegate(new PlaceNames(places, side));
    if (auto* halves = dialog.findChild<QSplitter*>(u"splitter"_s))
        halves->setSizes({SideWidth, DialogSize.width() - SideWidth});
}

/// A line a file with size, kind and day, each as wide as it is.
void showDetails(QFileDialog& dialog) {
    dialog.setViewMode(QFileDialog::Detail);
    auto* list = dialog.findChild<QTreeView*>(u"treeView"_s);
    if (!list)
        return;
    list->setItemDelegateForColumn(TimeColumn, new ChangeTimes(list));
    const QFontMetrics letters = list->fontMetrics();
    const int gap = letters.horizontalAdvance(u"　"_s);
    list->header()->resizeSection(NameColumn, NameWidth);
    list->header()->resizeSection(SizeColumn, letters.horizontalAdvance(u"1023.99 KiB"_s) + gap);
    list->header()->resizeSection(KindColumn, letters.horizontalAdvance(u"账本备份"_s) + 2 * gap);
    list->header()->resizeSection(TimeColumn, letters.horizontalAdvance(u"2000年12月30日 20:00"_s) + gap);
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
    KindNames kinds; // outlives the dialog
    QFileDialog dialog(windowInFront(), {}, firstFolder());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setIconProvider(&kinds);
    dialog.resize(DialogSize);
    showPlaces(dialog);
    showDetails(dialog);
    dialog.setFileMode(QFileDialog::AnyFile);
    bringOverNotices(dialog);
    if (const QStringList filters = nameFilters(filter); !filters.isEmpty())
        dialog.setNameFilters(filters);
    if (!name.isEmpty())
        dialog.selectFile(name);
    const int answer = dialog.exec();
    QPixmapCache::clear(); // 60 KB of icons that no later dialog would find again
    if (answer != QFileDialog::Accepted)
        return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

} // namespace qinghe
