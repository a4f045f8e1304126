#include "platform/file_chooser_words.h"

#include <QDateTime>
#include <QDir>
#include <QFileSystemModel>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int UrlRole = Qt::UserRole + 1; ///< of the rows at the dialog's side

/// Whether it is something that people plug in, and no part of the system.
bool isPluggedIn(const QStorageInfo& volume) {
    static const QStringList MountFolders{u"/media/"_s, u"/run/media/"_s, u"/mnt/"_s};
    return volume.isReady() && std::ranges::any_of(MountFolders, [&](const QString& folder) {
               return volume.rootPath().startsWith(folder);
           });
}

void add(std::vector<Place>& places, const QString& path, const QString& name) {
    const QUrl url = QUrl::fromLocalFile(path);
    if (QDir(path).exists() && std::ranges::find(places, url, &Place::url) == places.end())
        places.push_back({url, name});
}

} // namespace

std::vector<Place> usualPlaces() {
    std::vector<Place> places;
    add(places, QDir::homePath(), u"主目录"_s);
    add(places, QStandardPaths::writableLocation(QStandardPaths::DesktopLocation), u"桌面"_s);
    add(places, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), u"文档"_s);
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (isPluggedIn(volume))
            add(places, volume.rootPath(), QDir(volume.rootPath()).dirName());
    return places;
}

PlaceNames::PlaceNames(std::vector<Place> places, QObject* parent)
    : QStyledItemDelegate(parent), m_places(std::move(places)) {}

void PlaceNames::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto place = std::ranges::find(m_places, index.data(UrlRole).toUrl(), &Place::url);
    if (place != m_places.end())
        option->text = place->name;
}

void ChangeTimes::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QString path = index.siblingAtColumn(0).data(QFileSystemModel::FilePathRole).toString();
    option->text = QFileInfo(path).lastModified().toString(u"yyyy年M月d日 H:mm"_s);
}

QString KindNames::type(const QFileInfo& file) const {
    static constexpr struct {
        QStringView suffixes;
        QStringView kind;
    } Kinds[] = {
        {u" dat ", u"账本备份"},
        {u" jpg jpeg png bmp gif webp svg ", u"图片"},
        {u" txt md ", u"文本"},
        {u" wav mp3 ogg flac ", u"音乐"},
        {u" pdf doc docx odt xls xlsx ods ", u"文档"},
        {u" zip gz xz 7z rar ", u"压缩包"},
    };
    if (file.isDir())
        return u"文件夹"_s;
    const QString suffix = u' ' + file.suffix().toLower() + u' ';
    for (const auto& [suffixes, kind] : Kinds)
        if (suffixes.contains(suffix))
            return kind.toString();
    return u"文件"_s;
}

} // namespace qinghe
