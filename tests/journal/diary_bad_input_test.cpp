#include "journal/diary_rig.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QRandomGenerator>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// Files that are not as the page wrote them, and texts larger than anybody writes.
class DiaryBadInput : public DiaryTest {
protected:
    void put(const QString& title, const QByteArray& content) {
        rig.sql(u"insert into rjb values('2024-05-03','%1')"_s.arg(title));
        QFile file(path(title));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    void expectErrorAbout(const QString& words) {
        ASSERT_EQ(rig.messages->errors.size(), 1u);
        EXPECT_TRUE(rig.messages->errors.front().second.contains(words))
            << rig.messages->errors.front().second.toStdString();
        EXPECT_EQ(rig.exitCode(), 1);
    }
};

TEST_F(DiaryBadInput, AFileThatIsGoneIsNamed) {
    put(u"a"_s, "text\r\n");
    QFile::remove(path(u"a"_s));
    find();
    shown(1);
    expectErrorAbout(u"mydiary/a.dll"_s);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
}

TEST_F(DiaryBadInput, AFolderInPlaceOfAFileIsNamed) {
    put(u"a"_s, "text\r\n");
    QFile::remove(path(u"a"_s));
    QDir().mkdir(path(u"a"_s));
    find();
    shown(1);
    expectErrorAbout(u"mydiary/a.dll"_s);
}

TEST_F(DiaryBadInput, AnyBytesAreShownAsWellAsTheyCanBe) {
    QByteArray noise(50'000, Qt::Uninitialized);
    QRandomGenerator random(7);
    for (char& byte : noise)
        byte = static_cast<char>(random.bounded(256));
    put(u"a"_s, noise);
    find();
    EXPECT_GT(shown(1).size(), 20'000);
    EXPECT_FALSE(rig.ended());
    write(); // and the page goes on
    saveEntry(u"2024-5-4"_s, u"b"_s, {u"text"_s});
    EXPECT_EQ(bytes(u"b"_s), "text\r\n");
}

TEST_F(DiaryBadInput, AMegabyteIsShownWhole) {
    const QByteArray line("\xCB\xAE\xBA\xDC\xC1\xB9\xA1\xA3\r\n"); // 水很凉。
    put(u"a"_s, line.repeated(100'000));
    find();
    EXPECT_TRUE(shown(1) == u"水很凉。"_s.repeated(100'000));
    tx8().selectAll();
    tx8().copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text().size(), 400'000);
}

TEST_F(DiaryBadInput, APastedTextOfAHundredThousandCharactersIsKeptWhole) {
    const QString text = (QString(99, u'禾') + u'\n').repeated(1000);
    fill(u"2024-5-3"_s, u"a"_s);
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&tx8(), Qt::Key_V, Qt::ControlModifier);
    rig.click(save());
    EXPECT_EQ(rig.lastMessage(), DiarySaved);
    EXPECT_EQ(bytes(u"a"_s).size(), 1000 * (2 * 99 + 2) + 2);
    find();
    EXPECT_EQ(shown(1), QString(99'000, u'禾'));
}

TEST_F(DiaryBadInput, AFileInPlaceOfTheFolderStopsBehindTheRow) {
    QDir(rig.file(u"mydiary"_s)).removeRecursively();
    QFile blocking(rig.file(u"mydiary"_s));
    ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    expectErrorAbout(u"mydiary/a.dll"_s);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
}

TEST_F(DiaryBadInput, AFolderThatIsALinkStopsBehindTheRowAndTheBookStays) {
    QDir(rig.file(u"mydiary"_s)).removeRecursively();
    ASSERT_TRUE(QFile::link(u"."_s, rig.file(u"mydiary"_s)));
    saveEntry(u"2024-5-3"_s, u"data"_s, {u"text"_s});
    expectErrorAbout(u"mydiary”是一个链接"_s);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|data"_s}); // out of a book that is one
}

TEST_F(DiaryBadInput, AFolderThatIsALinkIsNotReadFrom) {
    put(u"a"_s, "text\r\n");
    QDir().rename(rig.file(u"mydiary"_s), rig.file(u"elsewhere"_s));
    ASSERT_TRUE(QFile::link(u"elsewhere"_s, rig.file(u"mydiary"_s)));
    find();
    shown(1);
    expectErrorAbout(u"mydiary”是一个链接"_s);
}

TEST_F(DiaryBadInput, AFileThatCannotBeWrittenStopsBehindTheRow) {
    QDir().mkdir(path(u"a"_s));
    saveEntry(u"2024-5-3"_s, u"a"_s, {u"text"_s});
    expectErrorAbout(u"mydiary/a.dll"_s);
    EXPECT_EQ(rows(), QStringList{u"2024-05-03|a"_s});
    EXPECT_TRUE(QFileInfo(path(u"a"_s)).isDir());
}

} // namespace
} // namespace qinghe::testing
