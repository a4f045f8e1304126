#include "skin_rig.h"

#include <QAbstractItemView>
#include <QApplication>

// The choice of a skin: the list, the preview, and the button that keeps it.

namespace qinghe::testing {
namespace {

TEST_F(SkinChoiceTest, ListAndButtonAreHiddenWhenThePageOpens) {
    expectClosed();
    EXPECT_EQ((std::array{list().Left(), list().Top(), list().Width(), list().Height()}),
              (std::array{690., 2310., 2640., 330.}));
    EXPECT_EQ(list().parentWidget(), &rig.at(settings::System));
    EXPECT_FALSE(list().isEditable());
}

TEST_F(SkinChoiceTest, TickingShowsTheSkinsInTheirOrderAndNoneIsChosen) {
    offerThree();
    tick(change());
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(listed(), (QStringList{u"春"_s, u"夏"_s, u"秋"_s}));
    EXPECT_EQ(list().Text(), QString());
    EXPECT_FALSE(keep().Visible());
    EXPECT_TRUE(rig.messages->shown.empty());
    expectShown(delivered);
}

TEST_F(SkinChoiceTest, WithoutASkinTheListIsShownEmpty) {
    tick(change());
    EXPECT_TRUE(list().isVisible());
    EXPECT_TRUE(listed().isEmpty());
}

TEST_F(SkinChoiceTest, UntickingClearsAndHidesTheList) {
    offerThree();
    tick(change());
    tick(change());
    expectClosed();
}

TEST_F(SkinChoiceTest, TickingUntickingAndTickingAgainGivesNoDoubles) {
    offerThree();
    for (int i = 0; i < 3; ++i)
        tick(change());
    EXPECT_EQ(listed(), (QStringList{u"春"_s, u"夏"_s, u"秋"_s}));
    EXPECT_TRUE(list().isVisible());
}

TEST_F(SkinChoiceTest, EnteringThePageAgainHidesListAndButtonAndTheBoxOpensThemWithoutDoubles) {
    offerThree();
    openAndChoose(u"夏"_s);
    go(pages::Desktop);
    open();
    EXPECT_FALSE(list().Visible());
    EXPECT_FALSE(keep().Visible());
    EXPECT_TRUE(change().Value());
    expectShown(Qt::blue);
    tick(change());
    tick(change());
    EXPECT_EQ(listed(), (QStringList{u"春"_s, u"夏"_s, u"秋"_s}));
}

TEST_F(SkinChoiceTest, AChoiceIsAPreviewAndStoresNothing) {
    offerThree();
    const QStringList before = chosen();
    openAndChoose(u"夏"_s);
    expectShown(Qt::blue);
    EXPECT_EQ(bytes(u"pf.jpg"_s), picture(Qt::blue));
    EXPECT_TRUE(keep().isVisible());
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(list().Text(), u"夏");
    choose(u"春"_s);
    expectShown(Qt::red);
    EXPECT_EQ(chosen(), before);
    EXPECT_TRUE(rig.messages->shown.empty());
}

TEST_F(SkinChoiceTest, BoxAndListPointTheDataControlAtTheDataFile) {
    offerThree();
    pointElsewhere();
    tick(change());
    pointElsewhere();
    choose(u"夏"_s);
    EXPECT_TRUE(rig.messages->errors.empty());
    expectShown(Qt::blue);
}

TEST_F(SkinChoiceTest, TheButtonIsWhiteWhenItComesBack) {
    offerThree();
    openAndChoose(u"夏"_s);
    rig.hover(keep());
    rig.click(keep());
    openAndChoose(u"春"_s);
    EXPECT_TRUE(keep().isVisible());
    EXPECT_EQ(keep().BackColor(), 0xFFFFFFu);
}

TEST_F(SkinChoiceTest, AMouseChoosesFromTheOpenListToo) {
    offerThree();
    tick(change());
    list().showPopup();
    QAbstractItemView* view = list().view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window()));
    const QPoint at = view->visualRect(list().model()->index(1, 0)).center();
    QTest::mouseMove(view->viewport(), at);
    QTest::qWait(QApplication::doubleClickInterval() + 20); // a list that has just opened takes no release
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
    rig.settle();
    expectShown(Qt::blue);
    EXPECT_TRUE(keep().isVisible());
}

TEST_F(SkinChoiceTest, ASkinThatIsChosenByItsFirstLetterIsSeenAsWell) {
    offer(u"autumn"_s, picture(Qt::red));
    offer(u"spring"_s, picture(Qt::blue));
    tick(change());
    QTest::keyClick(&list(), 's');
    EXPECT_EQ(list().Text(), u"spring");
    expectShown(Qt::blue);
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(picture(Qt::blue))});
}

TEST_F(SkinChoiceTest, APreviewIsGoneAfterARestart) {
    offerThree();
    openAndChoose(u"夏"_s);
    startAgain();
    expectShown(delivered);
    EXPECT_FALSE(change().Value());
}

TEST_F(SkinChoiceTest, TheButtonKeepsTheSkinInOneRowWithAnEmptyName) {
    offerThree();
    openAndChoose(u"夏"_s);
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(picture(Qt::blue))});
    EXPECT_EQ(rig.sql(u"select typeof(皮肤名) from 皮肤选择"_s), QStringList{u"text"_s});
    EXPECT_EQ(rig.messages->shown, std::vector{Kept});
    expectClosed();
    expectShown(Qt::blue);
}

TEST_F(SkinChoiceTest, TheSkinIsOnTheDiskAndTheListClosedWhenItIsTold) {
    offerThree();
    openAndChoose(u"夏"_s);
    QStringList then;
    rig.messages->whileShown = [&](const ShownMessage&) {
        then = chosen();
        expectClosed();
    };
    rig.click(keep());
    EXPECT_EQ(then, QStringList{row(picture(Qt::blue))});
}

TEST_F(SkinChoiceTest, TheNextStartShowsTheSkinThatWasKept) {
    offerThree();
    openAndChoose(u"夏"_s);
    rig.click(keep());
    startAgain();
    expectShown(Qt::blue);
    EXPECT_EQ(bytes(u"pf.jpg"_s), picture(Qt::blue));
    openAndChoose(u"秋"_s);
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(picture(Qt::white))});
}

TEST_F(SkinChoiceTest, AllRowsAreReplacedByOneAndAnEmptyTableGetsOne) {
    offerThree();
    rig.sql(u"insert into 皮肤选择 select '旧',文件大小,皮肤文件 from 皮肤选择"_s);
    ASSERT_EQ(chosen().size(), 2);
    openAndChoose(u"春"_s);
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(picture(Qt::red))});
    rig.sql(u"delete from 皮肤选择"_s);
    openAndChoose(u"夏"_s);
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(picture(Qt::blue))});
}

TEST_F(SkinChoiceTest, TheButtonStaysWhenTheListIsClosedAndKeepsTheSkinLastChosen) {
    offerThree();
    openAndChoose(u"夏"_s);
    tick(change());
    EXPECT_FALSE(list().Visible());
    EXPECT_TRUE(keep().isVisible());
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(picture(Qt::blue))});
    expectClosed();
}

TEST_F(SkinChoiceTest, OfEqualNamesTheFirstCounts) {
    offer(u"春"_s, picture(Qt::red));
    offer(u"春"_s, picture(Qt::blue));
    openAndChoose(u"春"_s);
    EXPECT_EQ(listed().size(), 2);
    expectShown(Qt::red);
    rig.press(list(), Qt::Key_Down);
    EXPECT_EQ(list().currentIndex(), 1);
    expectShown(Qt::red);
}

TEST_F(SkinChoiceTest, AShorterSkinLeavesTheOldTailInTheFileAndIsShown) {
    const QByteArray large = picture(Qt::red, "JPG", {400, 300}), small = picture(Qt::blue);
    ASSERT_GT(large.size(), small.size());
    offer(u"大"_s, large);
    offer(u"小"_s, small);
    openAndChoose(u"大"_s);
    EXPECT_EQ(bytes(u"pf.jpg"_s), large);
    choose(u"小"_s);
    EXPECT_EQ(bytes(u"pf.jpg"_s), small + large.mid(small.size()));
    expectShown(Qt::blue);
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(small)});
}

TEST_F(SkinChoiceTest, JpegPngAndBmpAreShownAndKept) {
    for (const char* format : {"JPG", "PNG", "BMP"}) {
        const QByteArray skin = picture(Qt::darkBlue, format, {40, 30});
        const QString name = QString::fromLatin1(format);
        offer(name, skin);
        openAndChoose(name);
        ASSERT_FALSE(rig.ended()) << format;
        expectShown(Qt::darkBlue);
        rig.click(keep());
        EXPECT_EQ(chosen(), QStringList{row(skin)}) << format;
        startAgain();
        expectShown(Qt::darkBlue);
    }
}

TEST_F(SkinChoiceTest, ASkinOfNoBytesLeavesThePictureAsItIs) {
    offerThree();
    offer(u"空"_s, {});
    QFile::remove(rig.file(u"pf.jpg"_s));
    openAndChoose(u"空"_s);
    ASSERT_FALSE(rig.ended());
    expectShown(delivered);
    EXPECT_FALSE(QFile::exists(rig.file(u"pf.jpg"_s)));
    choose(u"秋"_s);
    choose(u"空"_s);
    ASSERT_FALSE(rig.ended());
    expectShown(Qt::white);
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{u"|0|"_s});
    startAgain();
    ASSERT_FALSE(rig.ended());
    expectShown(Qt::red); // the first on offer
}

TEST_F(SkinChoiceTest, NoneOfThePicturesRemainsAfterANormalEnd) {
    offerThree();
    openAndChoose(u"夏"_s);
    for (const auto& name : {u"pf.jpg"_s, u"zjm.jpg"_s, u"dlpf.jpg"_s})
        EXPECT_TRUE(QFile::exists(rig.file(name))) << name.toStdString();
    go(title::Close);
    EXPECT_EQ(rig.exitCode(), 0);
    for (const auto& name : {u"pf.jpg"_s, u"zjm.jpg"_s, u"dlpf.jpg"_s})
        EXPECT_FALSE(QFile::exists(rig.file(name))) << name.toStdString();
}

TEST_F(SkinChoiceTest, ThePicturesThatACrashLeavesAreOverwrittenByTheNextStart) {
    struct Picture {
        QString file, query;
    };
    const std::array pictures{Picture{u"pf.jpg"_s, u"select hex(皮肤文件) from 皮肤选择"_s},
                              Picture{u"zjm.jpg"_s, u"select hex(文件) from 主界面"_s},
                              Picture{u"dlpf.jpg"_s, u"select hex(皮肤) from 登陆皮肤"_s}};
    rig.stop();
    const QByteArray left = picture(Qt::black, "JPG", {400, 300});
    for (const Picture& picture : pictures)
        write(picture.file, left);
    start();
    for (const Picture& picture : pictures) {
        const QByteArray stored = QByteArray::fromHex(rig.sql(picture.query).value(0).toLatin1());
        EXPECT_EQ(bytes(picture.file), stored + left.mid(stored.size())) << picture.file.toStdString();
    }
    expectShown(delivered);
    EXPECT_NEAR(rig.at(desktop::Picture).picture().pixelColor(5, 5).red(), 255, 4);
}

} // namespace
} // namespace qinghe::testing
