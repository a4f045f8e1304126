#pragma once

#include <QFileIconProvider>
#include <QStyledItemDelegate>
#include <QUrl>

#include <vector>

/// What Qt's file dialog says in the words of the machine's language, said in Chinese.
namespace qinghe {

/// A folder at the side of the dialog.
struct Place {
    QUrl url;
    QString name;
};

/// The home folder, the desktop, the documents, and the sticks and disks that are plugged in at present.
std::vector<Place> usualPlaces();

/// Names the folders at the side.
class PlaceNames : public QStyledItemDelegate {
public:
    PlaceNames(std::vector<Place> places, QObject* parent);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    std::vector<Place> m_places;
};

/// Writes the day and the minute on which a file was changed.
class ChangeTimes : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

/// Says what kind of file one is, as this program's users know it.
class KindNames : public QFileIconProvider {
public:
    QString type(const QFileInfo& file) const override;
};

} // namespace qinghe
