#include "skin_rig.h"

// Skins that cannot be shown or kept.

namespace qinghe::testing {
namespace {

TEST_F(SkinChoiceTest, ASkinOfAnImpossibleSizeIsTold) {
    offer(u"长"_s, picture(Qt::red));
    rig.sql(u"update 软件皮肤 set 大小=2147483648"_s);
    openAndChoose(u"长"_s);
    expectError(RuntimeError::InvalidPicture, u"“大小”"_s);
}

TEST_F(SkinChoiceTest, AsManyBytesAsTheSizeSaysAreWrittenAndKept) {
    offerThree();
    rig.sql(u"update 软件皮肤 set 皮肤=cast(皮肤 || x'112233' as blob)"_s);
    openAndChoose(u"夏"_s);
    EXPECT_EQ(bytes(u"pf.jpg"_s), picture(Qt::blue));
    rig.click(keep());
    EXPECT_EQ(chosen(), QStringList{row(picture(Qt::blue))});
}

TEST_F(SkinChoiceTest, ANameWithAQuoteIsToldInHelpfulWordsAndNothingIsStored) {
    const QStringList before = chosen();
    offer(u"妈妈''的"_s, picture(Qt::red));
    openAndChoose(u"妈妈'的"_s);
    expectError(RuntimeError::QueryFailure, u"英文单引号"_s);
    EXPECT_EQ(chosen(), before);
    startAgain();
    expectShown(delivered);
}

TEST_F(SkinChoiceTest, WhatIsNoPictureIsToldAndNotStoredAndTheNextStartIsGood) {
    const QStringList before = chosen();
    offer(u"信"_s, QByteArray("Dear aunt ").repeated(1000));
    openAndChoose(u"信"_s);
    expectError(RuntimeError::InvalidPicture, u"JPEG"_s);
    EXPECT_TRUE(rig.messages->shown.empty());
    EXPECT_EQ(chosen(), before);
    startAgain();
    expectShown(delivered);
}

TEST_F(SkinChoiceTest, ASkinThatIsGoneMeanwhileIsTold) {
    offerThree();
    tick(change());
    rig.sql(u"delete from 软件皮肤"_s);
    choose(u"夏"_s);
    expectError(RuntimeError::NoCurrentRecord, u"记录"_s);
}

TEST_F(SkinChoiceTest, APictureFileThatCannotBeWrittenIsTold) {
    offerThree();
    tick(change());
    QFile::remove(rig.file(u"pf.jpg"_s));
    ASSERT_TRUE(QDir(rig.folder()).mkdir(u"pf.jpg"_s));
    choose(u"夏"_s);
    expectError(RuntimeError::PathFileAccess, u"pf.jpg"_s);
}

} // namespace
} // namespace qinghe::testing
