#include "maintenance/picture_window.h"
#include "qt_printing.h"
#include "support/ordinary_user.h"
#include "support/program_test.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QMenu>

#include <gtest/gtest.h>
#include <sys/stat.h>

// The three windows that put a picture file into the data file.

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

struct Expected {
    FormName form;
    QString entry, caption, table, sizeAndBytes, dialog, pathWords, nameWords, browse, store;
};

const std::vector<Expected> Windows{
    {forms::SkinPictures, u"添加记账本皮肤"_s, u"注入数据库皮肤"_s, u"软件皮肤"_s, u"大小,hex(皮肤)"_s, u"cmm1"_s,
     u"选择图片"_s, u"储存名称"_s, u"......"_s, u"储存"_s},
    {forms::DesktopPictures, u"添加桌面图片"_s, forms::DesktopPictures, u"主界面"_s, u"大小,hex(文件)"_s, u"cmm1"_s,
     u"打开文件"_s, u"名称"_s, u"打开"_s, u"保存"_s},
    {forms::SignInPictures, u"添加登陆图片"_s, forms::SignInPictures, u"登陆皮肤"_s, u"大小,hex(皮肤)"_s, u"Cmm1"_s,
     u"文件"_s, u"文件名"_s, pictures::Browse, pictures::Store},
};

const ShownMessage NameMissing{u"Box of filename can not be empty!"_s, 64, u"information"_s};
const ShownMessage Added{u"添加成功！是否继续添加？"_s, 36, u"添加提示"_s};

class PictureInjectionTest : public ProgramTest {
protected:
    PictureInjectionTest() {
        rig.signIn();
        rig.click(rig.at(pages::Settings));
        rig.settle();
    }

    CommandButton& button() { return rig.at(settings::Pictures); }
    QMenu& menu() { return *button().findChild<QMenu*>(); }
    void open(const Expected& window) {
        rig.click(button());
        for (QAction* action : menu().actions())
            if (action->text() == window.entry)
                QTest::mouseClick(&menu(), Qt::LeftButton, {}, menu().actionGeometry(action).center());
        rig.settle();
    }
    template<class T>
    T& in(const Expected& window, const Name<T>& name) {
        return rig.control<T>(window.form, name);
    }
    void save(const Expected& window, const QString& path, const QString& name) {
        in(window, pictures::Path).setText(path);
        in(window, pictures::Called).setText(name);
        rig.click(in(window, pictures::Store));
    }
    /// The rows that came after those delivered.
    QStringList added(const Expected& window) {
        QStringList rows = rig.sql(u"select 名称,%1 from %2 order by rowid"_s.arg(window.sizeAndBytes, window.table));
        return rows.mid(window.table == u"软件皮肤" ? 0 : 1);
    }
    static QString row(const QString& name, const QByteArray& bytes) {
        const QString stored = QString::fromLatin1((bytes + '\0').toHex().toUpper());
        return u"%1|%2|%3"_s.arg(name, QString::number(bytes.size()), stored);
    }
    void refused(const Expected& window, int number, const QString& said) {
        ASSERT_EQ(rig.messages->errors.size(), 1u);
        EXPECT_EQ(rig.messages->errors[0].first, number);
        EXPECT_TRUE(rig.messages->errors[0].second.contains(said)) << qPrintable(rig.messages->errors[0].second);
        EXPECT_TRUE(rig.messages->shown.empty());
        EXPECT_TRUE(added(window).isEmpty());
        EXPECT_EQ(rig.exitCode(), 1);
    }

    const Expected& skins = Windows[0];
};

TEST_F(PictureInjectionTest, TheMenuOfTheButtonOpensEachOfThem) {
    EXPECT_EQ(button().text(), u"更换图片");
    EXPECT_EQ(button().parentWidget(), &rig.at(settings::System));
    for (const Expected& window : Windows) {
        EXPECT_EQ(rig.loaded(window.form), nullptr);
        open(window);
        ASSERT_TRUE(rig.loaded(window.form)) << std::string(window.form);
        EXPECT_TRUE(rig.loaded(window.form)->isVisible());
        EXPECT_FALSE(menu().isVisible());
    }
    EXPECT_EQ(menu().actions().mid(0, 4).last()->isSeparator(), true); // behind them the ways to the next ones
}

TEST_F(PictureInjectionTest, ButtonsWhoseWordsSayNothingHaveToolTips) {
    const Expected& signIn = Windows[2];
    open(signIn);
    EXPECT_EQ(in(signIn, pictures::Browse).toolTip(), u"选择图片文件");
    EXPECT_EQ(in(signIn, pictures::Store).toolTip(), u"保存图片");
}

TEST_F(PictureInjectionTest, EachBearsItsOwnWords) {
    for (const Expected& window : Windows) {
        open(window);
        EXPECT_EQ(rig.loaded(window.form)->Caption(), window.caption);
        EXPECT_EQ(in(window, pictures::PathWords).Caption(), window.pathWords);
        EXPECT_EQ(in(window, pictures::NameWords).Caption(), window.nameWords);
        EXPECT_EQ(in(window, pictures::Browse).text(), window.browse);
        EXPECT_EQ(in(window, pictures::Store).text(), window.store);
        EXPECT_FALSE(rig.control<Adodc>(window.form, u"Adodc1"_s).isVisible());
        EXPECT_EQ(in(window, pictures::Path).Text() + in(window, pictures::Called).Text(), QString());
    }
}

TEST_F(PictureInjectionTest, EachStoresIntoItsOwnTable) {
    write(u"a.jpg"_s, "any bytes");
    rig.messages->answers = {Answer::No, Answer::No, Answer::No};
    for (const Expected& window : Windows) {
        open(window);
        save(window, rig.file(u"a.jpg"_s), u"春"_s);
        EXPECT_EQ(added(window), QStringList{row(u"春"_s, "any bytes")}) << std::string(window.form);
        EXPECT_EQ(rig.lastMessage(), Added);
        EXPECT_TRUE(rig.loaded(window.form)->isVisible());
    }
    EXPECT_EQ(rig.messages->shown.size(), 3u);
}

TEST_F(PictureInjectionTest, ThePictureHasOneZeroByteBehindItThatItsSizeLeavesOut) {
    write(u"a.bin"_s, QByteArray("\0\xFF\x00", 3));
    open(skins);
    save(skins, rig.file(u"a.bin"_s), u"甲"_s);
    EXPECT_EQ(added(skins), QStringList{u"甲|3|00FF0000"_s});
}

TEST_F(PictureInjectionTest, TheButtonTakesTheChosenNameIntoTheBox) {
    open(skins);
    rig.chooser->names = {u"/图/一.jpg"_s};
    rig.click(in(skins, pictures::Browse));
    EXPECT_EQ(in(skins, pictures::Path).Text(), u"/图/一.jpg");
    EXPECT_EQ(rig.control<CommonDialog>(skins.form, skins.dialog).FileName(), u"/图/一.jpg");
    for (const Expected& window : Windows) {
        open(window);
        EXPECT_EQ(rig.control<CommonDialog>(window.form, window.dialog).objectName(), window.dialog);
    }
}

TEST_F(PictureInjectionTest, CancelInTheDialogPutsTheNameFromBeforeIntoTheBox) {
    open(skins);
    auto& path = in(skins, pictures::Path);
    path.setText(u"typed"_s);
    rig.click(in(skins, pictures::Browse));
    EXPECT_EQ(path.Text(), QString());
    rig.chooser->names = {u"/图/一.jpg"_s, std::nullopt};
    rig.click(in(skins, pictures::Browse));
    path.setText(u"typed"_s);
    rig.click(in(skins, pictures::Browse));
    EXPECT_EQ(path.Text(), u"/图/一.jpg");
}

TEST_F(PictureInjectionTest, WithoutANameNothingIsDoneThePathIsNotLookedAt) {
    open(skins);
    save(skins, {}, {});
    save(skins, rig.file(u"none/none.jpg"_s), {});
    EXPECT_EQ(rig.messages->shown, (std::vector{NameMissing, NameMissing}));
    EXPECT_TRUE(added(skins).isEmpty());
    EXPECT_FALSE(rig.ended());
}

TEST_F(PictureInjectionTest, ABlankIsAName) {
    write(u"a.jpg"_s, "x");
    open(skins);
    save(skins, rig.file(u"a.jpg"_s), u" "_s);
    EXPECT_EQ(added(skins), QStringList{row(u" "_s, "x")});
}

TEST_F(PictureInjectionTest, YesAsksForTheNextPictureAndKeepsTheName) {
    write(u"a.jpg"_s, "one");
    write(u"b.jpg"_s, "two");
    open(skins);
    rig.chooser->names = {rig.file(u"b.jpg"_s)};
    save(skins, rig.file(u"a.jpg"_s), u"同名"_s);
    EXPECT_EQ(in(skins, pictures::Path).Text(), rig.file(u"b.jpg"_s));
    EXPECT_EQ(in(skins, pictures::Called).Text(), u"同名");
    rig.messages->answers = {Answer::No};
    rig.click(in(skins, pictures::Store));
    EXPECT_EQ(added(skins), (QStringList{row(u"同名"_s, "one"), row(u"同名"_s, "two")}));
    EXPECT_EQ(rig.chooser->asked.size(), 1u);
    EXPECT_EQ(rig.chooser->asked.front().filter, u"图片|*.jpg;*.jpeg;*.png;*.bmp;*.gif|所有文件|*"_s);
}

TEST_F(PictureInjectionTest, TheRowIsOnTheDiskWhenTheQuestionIsAsked) {
    write(u"a.jpg"_s, "one");
    open(skins);
    QStringList stored;
    rig.messages->whileShown = [&](const ShownMessage&) { stored = added(skins); };
    save(skins, rig.file(u"a.jpg"_s), u"春"_s);
    EXPECT_EQ(stored, QStringList{row(u"春"_s, "one")});
}

TEST_F(PictureInjectionTest, BlanksAroundThePathAreCutOff) {
    write(u"a b.jpg"_s, "one");
    open(skins);
    save(skins, u"  "_s + rig.file(u"a b.jpg"_s) + u"  "_s, u"春"_s);
    EXPECT_EQ(added(skins), QStringList{row(u"春"_s, "one")});
}

TEST_F(PictureInjectionTest, AMissingFileIsMadeEmptyAndStoredAsOneZeroByte) {
    open(skins);
    save(skins, rig.file(u"none.jpg"_s), u"空"_s);
    EXPECT_EQ(added(skins), QStringList{u"空|0|00"_s});
    EXPECT_TRUE(QFile::exists(rig.file(u"none.jpg"_s)));
    EXPECT_EQ(QFileInfo(rig.file(u"none.jpg"_s)).size(), 0);
    EXPECT_EQ(rig.lastMessage(), Added);
}

TEST_F(PictureInjectionTest, NamesWithQuotesAreStoredAsTheyAre) {
    write(u"a.jpg"_s, "x");
    open(skins);
    save(skins, rig.file(u"a.jpg"_s), u"妈妈'的\"花\""_s);
    EXPECT_EQ(added(skins), QStringList{row(u"妈妈'的\"花\""_s, "x")});
}

TEST_F(PictureInjectionTest, TheSizeIsRoundedAsASingle) {
    const QByteArray large((1 << 24) + 1, 'a');
    write(u"large.bmp"_s, large);
    open(skins);
    save(skins, rig.file(u"large.bmp"_s), u"大"_s);
    EXPECT_EQ(rig.sql(u"select 大小,length(皮肤) from 软件皮肤"_s), QStringList{u"16777216|16777218"_s});
}

TEST_F(PictureInjectionTest, AnEmptyPathIsRefused) {
    open(skins);
    save(skins, u"  "_s, u"春"_s);
    refused(skins, RuntimeError::PathFileAccess, u"先选择"_s);
}

TEST_F(PictureInjectionTest, AFolderIsRefused) {
    open(skins);
    save(skins, rig.folder(), u"春"_s);
    refused(skins, RuntimeError::PathFileAccess, u"文件夹"_s);
}

TEST_F(PictureInjectionTest, AFolderThatDoesNotExistIsRefused) {
    open(skins);
    save(skins, rig.file(u"none/a.jpg"_s), u"春"_s);
    refused(skins, RuntimeError::PathNotFound, u"none"_s);
}

TEST_F(PictureInjectionTest, WhatWouldKeepItsReaderWaitingIsRefused) {
    ASSERT_EQ(mkfifo(QFile::encodeName(rig.file(u"pipe.jpg"_s)).constData(), 0600), 0);
    open(skins);
    save(skins, rig.file(u"pipe.jpg"_s), u"春"_s);
    refused(skins, RuntimeError::PathFileAccess, u"普通文件"_s);
}

TEST_F(PictureInjectionTest, APictureThatMayNotBeReadIsRefused) {
    write(u"a.jpg"_s, "x");
    open(skins);
    const AsOrdinaryUser user({rig.folder(), rig.dataFile(), rig.file(u"a.jpg"_s)});
    ASSERT_TRUE(QFile::setPermissions(rig.file(u"a.jpg"_s), QFile::Permissions()));
    save(skins, rig.file(u"a.jpg"_s), u"春"_s);
    refused(skins, RuntimeError::PathFileAccess, u"a.jpg"_s);
}

TEST_F(PictureInjectionTest, APictureThatMayOnlyBeReadIsStored) {
    write(u"a.jpg"_s, "x");
    open(skins);
    const AsOrdinaryUser user({rig.folder(), rig.dataFile(), rig.file(u"a.jpg"_s)});
    ASSERT_TRUE(QFile::setPermissions(rig.file(u"a.jpg"_s), QFile::ReadOwner));
    save(skins, rig.file(u"a.jpg"_s), u"春"_s);
    EXPECT_EQ(added(skins), QStringList{row(u"春"_s, "x")});
}

/// Format and colour of a stored picture are seen when it is shown.
class InjectedPicture : public PictureInjectionTest {
protected:
    static QByteArray picture(const char* format) {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::darkBlue);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format, 100);
        return buffer.data();
    }
    /// Puts the file into the place of the desktop's picture and starts anew.
    void showOnDesktop(const QString& name) {
        const Expected& desktop = Windows[1];
        rig.sql(u"delete from 主界面"_s);
        open(desktop);
        rig.messages->answers = {Answer::No};
        save(desktop, rig.file(name), u"新"_s);
        rig.stop();
        rig.signIn();
    }
};

TEST_F(InjectedPicture, JpegPngAndBmpAreShown) {
    for (const char* format : {"JPG", "PNG", "BMP"}) {
        write(u"picture"_s, picture(format));
        showOnDesktop(u"picture"_s);
        ASSERT_FALSE(rig.ended()) << format;
        const QColor shown = rig.at(desktop::Picture).picture().pixelColor(5, 5);
        EXPECT_NEAR(shown.blue(), 128, 3) << format;
        EXPECT_NEAR(shown.red(), 0, 3) << format;
        rig.click(rig.at(pages::Settings));
    }
}

TEST_F(InjectedPicture, WhatIsNoPictureIsStoredAndNotShownAndLocksNobodyOut) {
    write(u"letter.jpg"_s, "Dear aunt");
    showOnDesktop(u"letter.jpg"_s);
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(rig.at(desktop::Picture).picture().isNull());
    EXPECT_FALSE(bytes(u"zjm.jpg"_s).contains("Dear"));
}

TEST_F(InjectedPicture, TheFirstRowStaysTheOneShown) {
    write(u"picture"_s, picture("PNG"));
    const Expected& desktop = Windows[1];
    open(desktop);
    rig.messages->answers = {Answer::No};
    save(desktop, rig.file(u"picture"_s), u"新"_s);
    rig.stop();
    rig.signIn();
    EXPECT_NEAR(rig.at(desktop::Picture).picture().pixelColor(5, 5).red(), 255, 3);
}

} // namespace
} // namespace qinghe::testing
