#include "controls/form.h"
#include "platform/desktop_file_chooser.h"
#include "qt_printing.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

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
