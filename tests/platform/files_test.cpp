#include "platform/files.h"
#include "support/guard_fixture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QTemporaryDir>

namespace qinghe::testing {
namespace {

class Files : public ::testing::Test {
protected:
    QString at(const QString& name) const { return dir.filePath(name); }
    void make(const QString& name, const QByteArray& bytes = "x") const { files::writeAll(at(name), bytes); }
    QByteArray bytes(const QString& name) const {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    QStringList names() const {
        return QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    static QByteArray picture(QSize size, const char* format) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format);
        return buffer.data();
    }
    static QString textOf(const std::function<void()>& call) {
        try {
            call();
            return {};
        } catch (const RuntimeError& error) {
            return error.text();
        }
    }

    QTemporaryDir dir;
};

TEST_F(Files, AFolderIsAFolderAndAFileIsNone) {
    make(u"file"_s);
    EXPECT_TRUE(files::isFolder(dir.path()));
    EXPECT_FALSE(files::isFolder(at(u"file"_s)));
    EXPECT_FALSE(files::isFolder(at(u"nothing"_s)));
}

TEST_F(Files, AFolderIsMadeAndRefusedWhereSomethingLiesInItsPlace) {
    files::makeFolder(at(u"mydiary"_s));
    EXPECT_TRUE(files::isFolder(at(u"mydiary"_s)));
    make(u"taken"_s);
    EXPECT_EQ(errorOf([this] { files::makeFolder(at(u"taken"_s)); }), RuntimeError::PathFileAccess);
    EXPECT_EQ(errorOf([this] { files::makeFolder(at(u"none/below"_s)); }), RuntimeError::PathFileAccess);
}

TEST_F(Files, WritingReplacesTheWholeFile) {
    make(u"pf.jpg"_s, QByteArray(1000, 'a'));
    make(u"pf.jpg"_s, "b");
    EXPECT_EQ(bytes(u"pf.jpg"_s), "b");
    make(u"pf.jpg"_s, {});
    EXPECT_EQ(bytes(u"pf.jpg"_s), "");
}

TEST_F(Files, OpeningAsABinaryMakesAMissingFileAndLeavesAnotherAsItIs) {
    EXPECT_EQ(files::readAllOrMake(at(u"new"_s)), "");
    EXPECT_EQ(bytes(u"new"_s), "");
    make(u"old"_s, "ab");
    EXPECT_EQ(files::readAllOrMake(at(u"old"_s)), "ab");
    EXPECT_EQ(bytes(u"old"_s), "ab");
    EXPECT_EQ(errorOf([] { files::readAllOrMake({}); }), RuntimeError::PathFileAccess);
    EXPECT_EQ(errorOf([this] { files::readAllOrMake(dir.path()); }), RuntimeError::PathFileAccess);
    EXPECT_EQ(errorOf([this] { files::readAllOrMake(at(u"none/new"_s)); }), RuntimeError::PathNotFound);
    EXPECT_EQ(errorOf([] { files::readAllOrMake(u"/dev/zero"_s); }), RuntimeError::PathFileAccess);
}

TEST_F(Files, AFileThatCannotBeWrittenIsToldWithItsName) {
    files::makeFolder(at(u"pf.jpg"_s));
    const auto write = [this] { make(u"pf.jpg"_s); };
    EXPECT_EQ(errorOf(write), RuntimeError::PathFileAccess);
    EXPECT_TRUE(textOf(write).contains(u"pf.jpg"_s));
    EXPECT_TRUE(textOf(write).contains(u"不能写入"_s));
}

TEST_F(Files, AFullDiskIsToldAsSuch) {
    EXPECT_EQ(errorOf([] { files::writeAll(u"/dev/full"_s, QByteArray(100000, 'a')); }), RuntimeError::DiskFull);
}

TEST_F(Files, DeletingFindsNamesByPatternHiddenOnesIncluded) {
    for (const auto* name : {u"一.dll", u".隐.dll", u"ab.dll", u"a.txt", u"dll"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"*.dll"_s);
    EXPECT_EQ(names(), (QStringList{u"a.txt"_s, u"dll"_s}));
}

TEST_F(Files, AQuestionMarkStandsForOneCharacter) {
    for (const auto* name : {u"a1.wav", u"a2.wav", u"a10.wav"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"a?.wav"_s);
    EXPECT_EQ(names(), QStringList{u"a10.wav"_s});
}

TEST_F(Files, BracketsInANameAreOrdinaryCharacters) {
    for (const auto* name : {u"记[1].dll", u"记1.dll"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"记[1].dll"_s);
    EXPECT_EQ(names(), QStringList{u"记1.dll"_s});
}

TEST_F(Files, CapitalsAreOtherNames) {
    for (const auto* name : {u"Trip.dll", u"trip.dll"})
        make(QString::fromUtf16(name));
    files::deleteMatching(dir.path(), u"trip.dll"_s);
    EXPECT_EQ(names(), QStringList{u"Trip.dll"_s});
}

TEST_F(Files, DeletingKeepsToItsOwnFolderAndLeavesFolders) {
    files::makeFolder(at(u"deep"_s));
    files::makeFolder(at(u"folder.dll"_s));
    make(u"deep/inside.dll"_s);
    make(u"gone.dll"_s);
    files::deleteMatching(dir.path(), u"*.dll"_s);
    EXPECT_EQ(names(), (QStringList{u"deep"_s, u"folder.dll"_s}));
    EXPECT_EQ(bytes(u"deep/inside.dll"_s), "x");
}

TEST_F(Files, DeletingWhatIsNotThereIsHarmless) {
    files::deleteMatching(dir.path(), u"pf.jpg"_s);
    files::deleteMatching(at(u"nofolder"_s), u"*.dll"_s);
    EXPECT_EQ(names(), QStringList{});
}

class Pictures : public Files {
protected:
    QImage load(const QString& name, QSize fill = {100, 100}) const { return files::loadPicture(at(name), fill); }
};

TEST_F(Pictures, AreReadByTheirContentWhateverTheirNamesSay) {
    make(u"dlpf.jpg"_s, picture({30, 20}, "PNG"));
    EXPECT_EQ(load(u"dlpf.jpg"_s).size(), QSize(30, 20));
    make(u"bild"_s, picture({12, 8}, "BMP"));
    EXPECT_EQ(load(u"bild"_s).size(), QSize(12, 8));
}

TEST_F(Pictures, ReplacedWithinTheSameMomentAreReadAnew) {
    make(u"pf.jpg"_s, picture({30, 20}, "JPG"));
    load(u"pf.jpg"_s);
    make(u"pf.jpg"_s, picture({40, 20}, "JPG"));
    EXPECT_EQ(load(u"pf.jpg"_s).width(), 40);
}

TEST_F(Pictures, APhotoOf48MegapixelsIsAllowedAndReadNoLargerThanShown) {
    make(u"photo.jpg"_s, picture({8000, 6000}, "JPG"));
    EXPECT_EQ(load(u"photo.jpg"_s, {8000, 6000}).size(), QSize(8000, 6000));
    EXPECT_EQ(load(u"photo.jpg"_s, {800, 540}).size(), QSize(800, 540));
}

TEST_F(Pictures, APictureThatIsSmallerInOneDirectionIsReadAsItIs) {
    make(u"strip.jpg"_s, picture({400, 50}, "JPG"));
    EXPECT_EQ(load(u"strip.jpg"_s, {100, 100}).size(), QSize(400, 50));
}

TEST_F(Pictures, TheCamerasOrientationIsHonoured) {
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (const QSize& size : {QSize(40, 20), QSize(4000, 2000)}) {
        QImageWriter writer(at(u"turned.jpg"_s));
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        ASSERT_TRUE(writer.write(image.scaled(size)));
        EXPECT_EQ(load(u"turned.jpg"_s, {20, 40}).size(), QSize(20, 40));
    }
}

TEST_F(Pictures, WhatIsNoPictureOrNotThereIsToldWithItsName) {
    make(u"pf.jpg"_s, "no picture at all");
    make(u"empty.jpg"_s, {});
    EXPECT_EQ(errorOf([this] { load(u"pf.jpg"_s); }), RuntimeError::InvalidPicture);
    EXPECT_EQ(errorOf([this] { load(u"empty.jpg"_s); }), RuntimeError::InvalidPicture);
    EXPECT_EQ(errorOf([this] { load(u"none.jpg"_s); }), RuntimeError::FileNotFound);
    EXPECT_TRUE(textOf([this] { load(u"none.jpg"_s); }).contains(u"none.jpg"_s));
}

} // namespace
} // namespace qinghe::testing
