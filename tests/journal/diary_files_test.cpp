#include "journal/diary_files.h"
#include "qt_printing.h"
#include "runtime/runtime_error.h"
#include "support/small_disk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

class DiaryFiles : public ::testing::Test {
protected:
    QString path(const QString& name) { return m_folder.filePath(name); }
    QString read(const QByteArray& bytes) {
        QFile file(path(u"x"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE();
        file.close();
        return diary::readLines(path(u"x"_s));
    }
    static int refusal(const QString& title) {
        try {
            diary::filePath(u"mydiary"_s, title);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return 0;
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(DiaryFiles, ATitleNamesAFileInTheFolder) {
    EXPECT_EQ(diary::filePath(u"mydiary"_s, u"端午 2024.6"_s), u"mydiary/端午 2024.6.dll"_s);
    for (const auto& title : {u"等等..."_s, u"CONCERT"_s, u"COM10"_s, u"COM0"_s, QString(83, u'字')})
        EXPECT_EQ(refusal(title), 0) << title.toStdString();
}

TEST_F(DiaryFiles, ATitleThatCannotNameAFileIsRefused) {
    for (const auto& title :
         {u".."_s,  u"."_s,       u"a/b"_s,  u"a\\b"_s, u"../a"_s, u"a:b"_s,           u"a*"_s,
          u"a?"_s,  u"\"a\""_s,   u"a<b"_s,  u"a>b"_s,  u"a|b"_s,  u"a\nb"_s,          QString(QChar(0)),
          u"con"_s, u"Nul.txt"_s, u"COM1"_s, u"aux "_s, u"lpt9"_s, QString(84, u'字'), QString(QChar(0xD83C))})
        EXPECT_EQ(refusal(title), RuntimeError::PathFileAccess) << title.toStdString();
}

TEST_F(DiaryFiles, ARefusalIsShortHoweverLongTheTitle) {
    try {
        diary::filePath(u"mydiary"_s, QString(10'000, u'字'));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.text().contains(u"太长"_s));
        EXPECT_LT(error.text().size(), 120);
    }
}

TEST_F(DiaryFiles, TextsAreBytesOfTheSystemsOldCodePage) {
    diary::write(path(u"x"_s), u"中文，㐀"_s);
    QFile file(path(u"x"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("\xD6\xD0\xCE\xC4\xA3\xAC\x81\x39\xEE\x39\r\n"));
}

TEST_F(DiaryFiles, AnEntryThatCannotBeWrittenWholeLeavesTheOneBeforeAndNoPart) {
    diary::write(path(u"x"_s), u"old"_s);
    const SmallDisk disk(1000);
    try {
        diary::write(path(u"x"_s), QString(5000, u'a'));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::DiskFull);
    }
    EXPECT_EQ(diary::readLines(path(u"x"_s)), u"old");
    EXPECT_EQ(QDir(path({})).entryList(QDir::Files | QDir::Hidden), QStringList{u"x"_s});
}

TEST_F(DiaryFiles, ALinkIsReplacedAndNeverWrittenOrReadThrough) {
    diary::write(path(u"precious"_s), u"kept"_s);
    QFile::link(path(u"precious"_s), path(u"x"_s));
    EXPECT_THROW(diary::readLines(path(u"x"_s)), RuntimeError);
    diary::write(path(u"x"_s), u"new"_s);
    EXPECT_EQ(diary::readLines(path(u"x"_s)), u"new");
    EXPECT_EQ(diary::readLines(path(u"precious"_s)), u"kept");
}

TEST_F(DiaryFiles, APipeIsNotWaitedAt) {
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"x"_s)).constData(), 0600), 0);
    EXPECT_THROW(diary::readLines(path(u"x"_s)), RuntimeError);
    diary::write(path(u"x"_s), u"new"_s);
    EXPECT_EQ(diary::readLines(path(u"x"_s)), u"new");
}

TEST_F(DiaryFiles, EveryCodePointReadsBack) {
    QString all;
    for (char32_t c = 0x20; c <= 0x10FFFF; ++c)
        if (c < 0xD800 || c > 0xDFFF)
            all += QChar::fromUcs4(c);
    diary::write(path(u"x"_s), all);
    EXPECT_TRUE(diary::readLines(path(u"x"_s)) == all);
}

TEST_F(DiaryFiles, LinesOfEverySystemRunIntoOneAnother) {
    EXPECT_EQ(read("a\r\nb\rc\nd"), u"abcd"_s);
    EXPECT_EQ(read(""), QString());
    EXPECT_EQ(read("\r\n"), QString());
}

TEST_F(DiaryFiles, ALoneByteOfTheOldPageIsTheEuroSign) {
    EXPECT_EQ(read("\x80\x80"), u"€€"_s);
    EXPECT_EQ(read("5\x80 \xD6\xD0\x80"), u"5€ 中€"_s);
    EXPECT_EQ(read("\x81\x80"), u"亐"_s); // a second byte is none
    EXPECT_EQ(read("\x81\x39\xEE\x39\x80"), u"㐀€"_s);
    EXPECT_EQ(read("\xFF\x80").back(), u'€');
}

TEST_F(DiaryFiles, BytesThatAreNoTextAreShownAsWellAsTheyCanBe) {
    const QString text = read(QByteArray("ok\xFF\x00\x81", 5));
    EXPECT_TRUE(text.startsWith(u"ok"_s));
    EXPECT_TRUE(text.contains(QChar::ReplacementCharacter));
}

TEST_F(DiaryFiles, AMissingFileIsSaidToBeMissing) {
    try {
        diary::readLines(path(u"none"_s));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::FileNotFound);
        EXPECT_TRUE(error.text().contains(u"none"_s));
    }
}

} // namespace
} // namespace qinghe::testing
