#include "core_fixture.h"

#include <QBuffer>

// Pictures of no bytes, as a mistyped path stores them, and sizes that no picture has.

namespace qinghe::testing {
namespace {

class EmptyPictures : public CoreTest {
protected:
    static QByteArray picture(const QColor& colour) {
        QImage image(16, 12, QImage::Format_RGB32);
        image.fill(colour);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return buffer.data();
    }
    static QString hex(const QByteArray& bytes) { return u"x'"_s + QString::fromLatin1(bytes.toHex()) + u'\''; }
    void offer(const QString& name, const QByteArray& skin) {
        rig.sql(u"insert into 软件皮肤 values('%1',%2,%3)"_s.arg(name).arg(skin.size()).arg(hex(skin + '\0')));
    }
    void emptyChosenSkin() { rig.sql(u"update 皮肤选择 set 文件大小=0, 皮肤文件=x'00'"_s); }
    QImage desktop() { return rig.at(desktop::Picture).picture(); }
    void expectStarted() {
        EXPECT_TRUE(rig.messages->errors.empty()) << rig.messages->errors.front().second.toStdString();
        EXPECT_TRUE(main().isVisible());
    }
};

TEST_F(EmptyPictures, AChosenSkinOfNoBytesGivesWayToTheFirstOnOfferThatCanBeShown) {
    offer(u"空"_s, {});
    offer(u"信"_s, "no picture at all");
    rig.sql(u"insert into 软件皮肤 values('长',-1,x'00'),('更长',5e9,x'00')"_s);
    offer(u"夏"_s, picture(Qt::blue));
    offer(u"秋"_s, picture(Qt::red));
    emptyChosenSkin();
    rig.signIn();
    expectStarted();
    EXPECT_EQ(main().picture().pixelColor(5, 5), QColor(Qt::blue));
    EXPECT_EQ(bytes(u"pf.jpg"_s).left(picture(Qt::blue).size()), picture(Qt::blue));
}

TEST_F(EmptyPictures, WithoutASkinThatCanBeShownTheMainWindowHasNoPicture) {
    offer(u"空"_s, {});
    emptyChosenSkin();
    rig.signIn();
    expectStarted();
    EXPECT_TRUE(main().picture().isNull());
    EXPECT_FALSE(folder().contains(u"pf.jpg"_s));
    EXPECT_FALSE(main().grab().isNull());
}

TEST_F(EmptyPictures, AChosenSkinWithoutItsBytesCountsAsNoneToo) {
    offer(u"夏"_s, picture(Qt::blue));
    rig.sql(u"update 皮肤选择 set 皮肤文件=NULL"_s);
    rig.signIn();
    expectStarted();
    EXPECT_EQ(main().picture().pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(EmptyPictures, TheDesktopTakesTheFirstRowWithBytes) {
    const QString blue = hex(picture(Qt::blue)), red = hex(picture(Qt::red));
    rig.sql(u"update 主界面 set 大小=0"_s);
    rig.sql(u"insert into 主界面 values('甲',%1,%2),('乙',%3,%4)"_s.arg(picture(Qt::blue).size())
                .arg(blue)
                .arg(picture(Qt::red).size())
                .arg(red));
    rig.signIn();
    expectStarted();
    EXPECT_EQ(desktop().pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(EmptyPictures, ADesktopWithoutAPictureIsBare) {
    rig.sql(u"update 主界面 set 大小=0"_s);
    rig.signIn();
    expectStarted();
    EXPECT_TRUE(desktop().isNull());
    EXPECT_FALSE(folder().contains(u"zjm.jpg"_s));
}

TEST_F(EmptyPictures, TheSignInTakesTheFirstRowWithBytesOrNone) {
    rig.sql(u"update 登陆皮肤 set 大小=0"_s);
    rig.start();
    EXPECT_TRUE(rig.messages->errors.empty());
    EXPECT_TRUE(rig.loaded(forms::SignIn)->picture().isNull());
    EXPECT_FALSE(folder().contains(u"dlpf.jpg"_s));
    rig.stop();
    rig.sql(u"insert into 登陆皮肤 values('蓝',%1,%2)"_s.arg(picture(Qt::blue).size()).arg(hex(picture(Qt::blue))));
    rig.start();
    EXPECT_EQ(rig.loaded(forms::SignIn)->picture().pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(EmptyPictures, ASizeThatNoPictureHasIsToldInClearWords) {
    for (const QStringView size : {u"2147483648", u"5e9", u"-1"}) {
        const QString text = size.toString();
        rig.stop();
        rig.sql(u"update 皮肤选择 set 文件大小="_s + text);
        rig.signIn();
        expectError(RuntimeError::InvalidPicture, u"“文件大小”"_s);
        rig.stop();
        rig.sql(u"update 登陆皮肤 set 大小="_s + text);
        rig.start();
        expectError(RuntimeError::InvalidPicture, u"dlpf.jpg"_s);
        rig.sql(u"update 登陆皮肤 set 大小=1e3"_s);
    }
}

TEST_F(EmptyPictures, ASizeBeyondTheBytesReadsWhatIsThere) {
    rig.sql(u"update 皮肤选择 set 文件大小=2147483647"_s);
    rig.signIn();
    expectStarted();
    EXPECT_FALSE(main().picture().isNull());
}

} // namespace
} // namespace qinghe::testing
