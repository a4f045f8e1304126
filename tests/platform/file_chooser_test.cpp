#include "controls/form.h"
#include "platform/desktop_file_chooser.h"
#include "platform/file_chooser_words.h"
#include "qt_printing.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QPixmapCache>
#include <QSet>
#include <QSettings>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// Real dialogs, answered from inside their own loop.
class FileChooserTest : public ::testing::Test {
protected:
    using Look = std::function<void(QFileDialog&, QLineEdit& name)>;

    /// `look` has to close the dialog.
    std::optional<QString> choose(const QString& filter, const QString& name, const Look& look) {
        QTimer::singleShot(0, qApp, [look] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            auto* box = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
            ASSERT_TRUE(box);
            look(*dialog, *box);
        });
        return chooser.choose(filter, name);
    }
    /// What comes of a typed name and Enter.
    std::optional<QString> typed(const QString& text) {
        return choose(u"*.dat|*.dat"_s, {}, [&](QFileDialog&, QLineEdit& name) {
            name.setText(text);
            QTest::keyClick(&name, Qt::Key_Return);
        });
    }
    QString at(const QString& name) const { return dir.filePath(name); }

    QTemporaryDir dir;
    DesktopFileChooser chooser;
};

TEST_F(FileChooserTest, WhatQtKeepsOfItsIconsIsGivenBackWhenItCloses) {
    QPixmapCache::Key icon;
    choose(u"*.dat|*.dat"_s, {}, [&icon](QFileDialog& dialog, QLineEdit&) {
        icon = QPixmapCache::insert(dialog.grab());
        dialog.reject();
    });
    QPixmap kept;
    EXPECT_FALSE(QPixmapCache::find(icon, &kept));
}

TEST_F(FileChooserTest, AnExistingAndANewNameServeAlikeAndNothingIsAdded) {
    QFile file(at(u"旧.dat"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_EQ(typed(at(u"旧.dat"_s)), at(u"旧.dat"_s));
    EXPECT_EQ(typed(at(u"新"_s)), at(u"新"_s));
    EXPECT_FALSE(QFile::exists(at(u"新"_s)));
}

TEST_F(FileChooserTest, TheChooserComesOverANotice) {
    Form notice(u"Form6"_s, Form::Kind::Notice, Ground::Dialog);
    for (const bool stands : {false, true}) {
        notice.setVisible(stands);
        choose({}, {}, [stands](QFileDialog& dialog, QLineEdit&) {
            EXPECT_EQ(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint), stands);
            dialog.reject();
        });
    }
}

TEST_F(FileChooserTest, CancelGivesNothing) {
    EXPECT_EQ(choose({}, {}, [](QFileDialog& dialog, QLineEdit&) { dialog.reject(); }), std::nullopt);
    EXPECT_EQ(choose({}, at(u"b.dat"_s), [](QFileDialog& dialog, QLineEdit&) { dialog.reject(); }), std::nullopt);
}

TEST_F(FileChooserTest, ANameFromBeforeStandsInIt) {
    choose(u"*.dat|*.dat"_s, at(u"备份.dat"_s), [this](QFileDialog& dialog, QLineEdit& name) {
        EXPECT_EQ(name.text(), u"备份.dat");
        EXPECT_EQ(dialog.directory().canonicalPath(), QDir(dir.path()).canonicalPath());
        dialog.reject();
    });
}

TEST_F(FileChooserTest, WithoutANameItOpensWhereTheUserKeepsFiles) {
    choose({}, {}, [](QFileDialog& dialog, QLineEdit& name) {
        EXPECT_EQ(name.text(), QString());
        EXPECT_TRUE(dialog.directory().absolutePath().startsWith(QDir::homePath()));
        dialog.reject();
    });
}

TEST_F(FileChooserTest, ItIsADialogOfOursForOneFileWithTheFilterOfTheForm) {
    choose(u"*.dat|*.dat"_s, {}, [](QFileDialog& dialog, QLineEdit&) {
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.nameFilters(), QStringList{u"*.dat"_s});
        dialog.reject();
    });
}

TEST_F(FileChooserTest, AtItsSideStandTheHomeFolderAndWhatIsPluggedInByTheirChineseNames) {
    choose({}, {}, [](QFileDialog& dialog, QLineEdit&) {
        auto* side = dialog.findChild<QListView*>(u"sidebar"_s);
        ASSERT_TRUE(side);
        EXPECT_EQ(dialog.sidebarUrls().value(0), QUrl::fromLocalFile(QDir::homePath()));
        EXPECT_EQ(side->model()->rowCount(), dialog.sidebarUrls().size());
        dialog.reject();
    });
    struct Shown : PlaceNames {
        using PlaceNames::initStyleOption;
        using PlaceNames::PlaceNames;
    };
    QStandardItemModel rows(1, 1);
    rows.setData(rows.index(0, 0), QUrl::fromLocalFile(dir.path()), Qt::UserRole + 1);
    rows.setData(rows.index(0, 0), u"some name"_s);
    QStyleOptionViewItem option;
    const Shown names({{QUrl::fromLocalFile(dir.path()), u"文档"_s}}, nullptr);
    names.initStyleOption(&option, rows.index(0, 0));
    EXPECT_EQ(option.text, u"文档"_s);
}

TEST_F(FileChooserTest, TheUsualPlacesAreFoldersThatAreThereEachOnce) {
    const std::vector<Place> places = usualPlaces();
    ASSERT_FALSE(places.empty());
    EXPECT_EQ(places.front().name, u"主目录"_s);
    QSet<QUrl> seen;
    for (const Place& place : places) {
        EXPECT_TRUE(QFileInfo(place.url.toLocalFile()).isDir());
        EXPECT_FALSE(std::exchange(seen, seen + QSet{place.url}).contains(place.url));
    }
}

TEST_F(FileChooserTest, ALineTellsKindAndTimeInChineseAndIsWideEnough) {
    QFile file(at(u"青禾家庭记账本2024-11-15.dat"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) &&
                file.setFileTime(QDateTime(QDate(2024, 5, 3), QTime(8, 5)), QFileDevice::FileModificationTime));
    file.close();
    choose(u"*.dat|*.dat"_s, at(u"neu.dat"_s), [this](QFileDialog& dialog, QLineEdit&) {
        auto* list = dialog.findChild<QTreeView*>(u"treeView"_s);
        ASSERT_TRUE(list);
        const auto row = [&] { return list->model()->index(0, 0, list->rootIndex()); };
        ASSERT_TRUE(QTest::qWaitFor([&] { return row().data().toString().startsWith(u"青禾"_s); }));
        EXPECT_EQ(row().siblingAtColumn(2).data().toString(), u"账本备份"_s);
        struct Shown : ChangeTimes {
            using ChangeTimes::initStyleOption;
        };
        QStyleOptionViewItem option;
        Shown().initStyleOption(&option, row().siblingAtColumn(3));
        EXPECT_EQ(option.text, u"2024年5月3日 8:05"_s);
        EXPECT_TRUE(dynamic_cast<ChangeTimes*>(list->itemDelegateForColumn(3)));
        EXPECT_GT(list->columnWidth(0), list->fontMetrics().horizontalAdvance(u"青禾家庭记账本2024-11-15.dat"_s));
        EXPECT_GT(list->columnWidth(3), list->fontMetrics().horizontalAdvance(u"2024年11月15日 20:36"_s));
        dialog.reject();
    });
}

TEST_F(FileChooserTest, AFolderIsEnteredAndNotChosen) {
    ASSERT_TRUE(QDir(dir.path()).mkdir(u"里面"_s));
    choose({}, {}, [this](QFileDialog& dialog, QLineEdit& name) {
        name.setText(at(u"里面"_s));
        QTest::keyClick(&name, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.directory().dirName(), u"里面");
        dialog.reject();
    });
}

TEST_F(FileChooserTest, ItLeavesNothingInTheHomeFolder) {
    typed(at(u"新"_s));
    const QSettings settings(QSettings::UserScope, u"QtProject"_s);
    EXPECT_FALSE(QFile::exists(settings.fileName())) << qPrintable(settings.fileName());
    EXPECT_FALSE(settings.fileName().startsWith(QDir::homePath()));
}

TEST(NameFilters, ArePairsOfWordsAndPatterns) {
    EXPECT_EQ(nameFilters(u"*.dat|*.dat"_s), QStringList{u"*.dat"_s});
    EXPECT_EQ(nameFilters(u"图片|*.jpg;*.png|*.dat|*.dat"_s), (QStringList{u"图片 (*.jpg *.png)"_s, u"*.dat"_s}));
    EXPECT_EQ(nameFilters({}), QStringList());
    EXPECT_EQ(nameFilters(u"*.dat"_s), QStringList());
}

} // namespace
} // namespace qinghe::testing
