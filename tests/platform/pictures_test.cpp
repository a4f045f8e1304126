#include "platform/pictures.h"
#include "support/guard_fixture.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImageWriter>
#include <QtEndian>

namespace qinghe::testing {
namespace {

QByteArray picture(QSize size, const char* format) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

QImage load(const QByteArray& bytes, QSize fill = {100, 100}) {
    return pictureFrom(bytes, fill, u"pf.jpg"_s);
}

QString refusalOf(const QByteArray& bytes) {
    try {
        load(bytes);
        return {};
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::InvalidPicture);
        EXPECT_TRUE(error.text().contains(u"pf.jpg"_s));
        return error.text();
    }
}

QByteArray bigEndian(int number) {
    QByteArray bytes(2, '\0');
    qToBigEndian(static_cast<quint16>(number), bytes.data());
    return bytes;
}

/// The same picture, whose head tells of another size.
QByteArray saidToBe(QByteArray jpeg, int width, int height) {
    for (const char frame : {'\xC0', '\xC2'})
        if (const qsizetype at = jpeg.indexOf(QByteArray("\xFF") + frame); at >= 0)
            jpeg.replace(at + 5, 4, bigEndian(height) + bigEndian(width));
    return jpeg;
}

QByteArray progressive(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    writer.write(image);
    return buffer.data();
}

TEST(Pictures, AreReadByTheirContentWhateverTheirNamesSay) {
    for (const char* format : {"JPG", "PNG", "BMP"})
        EXPECT_EQ(load(picture({30, 20}, format)).size(), QSize(30, 20)) << format;
    EXPECT_EQ(load(QByteArray::fromBase64("R0lGODlhAgABAIAAAP8AAAAAACwAAAAAAgABAAACAoQKADs=")).size(), QSize(2, 1));
}

TEST(Pictures, OfOtherKindsAreNone) {
    for (const char* format : {"PPM", "XPM", "TIFF", "ICO"}) {
        const QByteArray bytes = picture({30, 20}, format);
        EXPECT_TRUE(bytes.isEmpty() || !refusalOf(bytes).isEmpty()) << format;
    }
    EXPECT_FALSE(refusalOf("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>").isEmpty());
}

TEST(Pictures, APhotoOf48MegapixelsIsAllowedAndReadNoLargerThanShown) {
    const QByteArray photo = picture({8000, 6000}, "JPG");
    EXPECT_EQ(load(photo, {8000, 6000}).size(), QSize(8000, 6000));
    EXPECT_EQ(load(photo, {800, 540}).size(), QSize(800, 540));
}

TEST(Pictures, OfMoreThan100MegapixelsAreRefusedByTheirHead) {
    QElapsedTimer timer;
    timer.start();
    for (const QByteArray& jpeg : {picture({16, 16}, "JPG"), progressive({16, 16})})
        EXPECT_TRUE(refusalOf(saidToBe(jpeg, 20000, 20000)).contains(u"太大"_s));
    QByteArray bitmap = picture({2, 2}, "BMP");
    for (const int height : {12000, -12000}) { // from the bottom and from the top
        qToLittleEndian(qint32{12000}, bitmap.data() + 18);
        qToLittleEndian(qint32{height}, bitmap.data() + 22);
        EXPECT_TRUE(refusalOf(bitmap).contains(u"太大"_s));
    }
    EXPECT_LT(timer.elapsed(), 1000);
}

TEST(Pictures, OfManyScansAreRefusedBeforeTheyAreWorkedThrough) {
    const QByteArray jpeg = progressive({16, 16});
    EXPECT_EQ(load(jpeg).size(), QSize(16, 16));
    const qsizetype scan = jpeg.lastIndexOf("\xFF\xDA");
    const QByteArray again = jpeg.sliced(scan).chopped(2);
    const QByteArray many = saidToBe(jpeg.first(scan) + again.repeated(100) + "\xFF\xD9", 4000, 4000);
    EXPECT_TRUE(refusalOf(many).contains(u"太大"_s));
    EXPECT_EQ(load(saidToBe(jpeg, 4000, 4000)).size(), QSize(100, 100));
}

TEST(Pictures, OneThatIsSmallerInOneDirectionIsReadAsItIs) {
    EXPECT_EQ(load(picture({400, 50}, "JPG"), {100, 100}).size(), QSize(400, 50));
}

TEST(Pictures, TheCamerasOrientationIsHonoured) {
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (const QSize& size : {QSize(40, 20), QSize(4000, 2000)}) {
        QBuffer turned;
        QImageWriter writer(&turned, "jpeg");
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        ASSERT_TRUE(writer.write(image.scaled(size)));
        EXPECT_EQ(load(turned.data(), {20, 40}).size(), QSize(20, 40));
    }
}

TEST(Pictures, WhatIsNoneIsToldWithItsName) {
    EXPECT_TRUE(refusalOf("no picture at all").contains(u"JPEG"_s));
    EXPECT_FALSE(refusalOf({}).isEmpty());
    EXPECT_FALSE(refusalOf(picture({30, 20}, "PNG").first(40)).isEmpty());
}

} // namespace
} // namespace qinghe::testing
