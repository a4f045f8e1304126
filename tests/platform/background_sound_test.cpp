#include "platform/background_sound.h"
#include "qt_printing.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace qinghe::testing {
namespace {

using namespace Qt::StringLiterals;

/// A wav file of 16-bit samples, a rising ramp that a recording is compared with.
QByteArray wav(int samples, int rate = 8000, quint16 channels = 1) {
    QByteArray bytes;
    const auto number = [&](auto value) {
        value = qToLittleEndian(value);
        bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
    };
    bytes += "RIFF";
    number(static_cast<quint32>(36 + 2 * samples));
    bytes += "WAVEfmt ";
    number(quint32{16});
    number(quint16{1});
    number(channels);
    number(static_cast<quint32>(rate));
    number(static_cast<quint32>(2 * channels * rate));
    number(static_cast<quint16>(2 * channels));
    number(quint16{16});
    bytes += "data";
    number(static_cast<quint32>(2 * samples));
    for (int i = 0; i < samples; ++i)
        number(static_cast<qint16>(i + 1));
    return bytes;
}

/// The real module and library. What a device would get is written to a file, at the pace of a device.
class BackgroundSoundTest : public ::testing::Test {
protected:
    BackgroundSoundTest() {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(path(u"heard"_s)));
    }
    ~BackgroundSoundTest() override {
        device.reset(); // waits for its thread
        qunsetenv("SDL_AUDIODRIVER");
        qunsetenv("SDL_DISKAUDIOFILE");
    }

    QString path(const QString& name) const { return QDir(folder.path()).filePath(name); }
    QString written(const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    /// The bytes of the ramp that have been heard from its beginning on, silence aside.
    QByteArray heard() {
        QFile file(path(u"heard"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool reaches(const Sound& sound, int ms) {
        return QTest::qWaitFor([&] { return sound.position() >= ms; }, 5000);
    }
    static bool known(const Sound& sound) {
        return QTest::qWaitFor([&] { return sound.length() > 0; }, 5000);
    }

    QTemporaryDir folder;
    std::unique_ptr<SoundDevice> device = backgroundSound(QCoreApplication::applicationDirPath());
};

TEST_F(BackgroundSoundTest, APieceIsHeardWholeAndItsEndIsItsLength) {
    const QByteArray file = wav(2000); // 250 ms
    const auto sound = device->open(written(u"a.wav"_s, file));
    sound->play();
    ASSERT_TRUE(known(*sound));
    EXPECT_EQ(sound->length(), 250);
    EXPECT_TRUE(reaches(*sound, 250));
    EXPECT_EQ(sound->position(), sound->length());
    EXPECT_TRUE(QTest::qWaitFor([&] { return heard().contains(file.mid(44)); }, 5000));
}

TEST_F(BackgroundSoundTest, BehindItsEndThereIsSilence) {
    const QByteArray ramp = wav(2000).mid(44);
    const auto sound = device->open(written(u"a.wav"_s, wav(2000)));
    sound->play();
    const qsizetype more = 1000; // bytes
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const QByteArray bytes = heard();
            return bytes.contains(ramp) && bytes.size() >= bytes.indexOf(ramp) + ramp.size() + more;
        },
        5000));
    const QByteArray bytes = heard();
    ASSERT_GE(bytes.indexOf(ramp), 0);
    EXPECT_EQ(bytes.mid(bytes.indexOf(ramp) + ramp.size(), more), QByteArray(more, '\0'));
}

TEST_F(BackgroundSoundTest, APipeUnderItsNameIsNotWaitedAtAndALinkToAPieceIsOne) {
    ASSERT_EQ(mkfifo(QFile::encodeName(path(u"pipe.wav"_s)).constData(), 0600), 0);
    const auto none = device->open(path(u"pipe.wav"_s));
    QFile::link(written(u"a.wav"_s, wav(2000)), path(u"link.wav"_s));
    const auto sound = device->open(path(u"link.wav"_s)); // behind the pipe, on the same thread
    ASSERT_TRUE(known(*sound));
    EXPECT_EQ(none->length(), 0);
}

TEST_F(BackgroundSoundTest, APieceOfTwoChannelsIsAsLongAsEachOfThem) {
    const auto sound = device->open(written(u"a.wav"_s, wav(4000, 8000, 2)));
    ASSERT_TRUE(known(*sound));
    EXPECT_EQ(sound->length(), 250);
}

TEST_F(BackgroundSoundTest, UntilItIsPlayedAPieceStandsAtItsBeginning) {
    const auto sound = device->open(written(u"a.wav"_s, wav(2000)));
    ASSERT_TRUE(known(*sound));
    QTest::qWait(100);
    EXPECT_EQ(sound->position(), 0);
}

TEST_F(BackgroundSoundTest, StoppedItStaysWhereItStandsAndPlaysOnFromThere) {
    const auto sound = device->open(written(u"a.wav"_s, wav(80000))); // 10 s
    sound->play();
    ASSERT_TRUE(reaches(*sound, 100));
    sound->stop();
    QTest::qWait(300);
    const int stood = sound->position();
    QTest::qWait(300);
    EXPECT_EQ(sound->position(), stood);
    sound->play();
    EXPECT_TRUE(reaches(*sound, stood + 100));
}

TEST_F(BackgroundSoundTest, TakenBackAtItsEndItWaitsForThePlayThatBeginsItAgain) {
    const auto sound = device->open(written(u"a.wav"_s, wav(2000)));
    sound->play();
    ASSERT_TRUE(reaches(*sound, 250));
    sound->rewind();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sound->position() == 0; }, 5000));
    QTest::qWait(200);
    EXPECT_EQ(sound->position(), 0);
    sound->play();
    EXPECT_TRUE(reaches(*sound, 250));
}

TEST_F(BackgroundSoundTest, TakenBackInTheMiddleItPlaysOnFromTheBeginning) {
    const auto sound = device->open(written(u"a.wav"_s, wav(80000)));
    sound->play();
    ASSERT_TRUE(reaches(*sound, 1500));
    sound->rewind();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sound->position() < 1200; }, 5000));
    EXPECT_TRUE(reaches(*sound, 1500));
}

TEST_F(BackgroundSoundTest, FilesThatCannotBePlayedAreSilent) {
    QDir(folder.path()).mkdir(u"folder.wav"_s);
    for (const QString& file :
         {path(u"missing.wav"_s), path(u"folder.wav"_s), written(u"empty.wav"_s, {}),
          written(u"text.wav"_s, "no music at all, only words"), written(u"cut.wav"_s, wav(100).left(30))}) {
        const auto sound = device->open(file);
        ASSERT_TRUE(sound);
        sound->play();
        QTest::qWait(50);
        sound->rewind();
        sound->stop();
        EXPECT_EQ(sound->position(), 0) << file.toStdString();
        EXPECT_EQ(sound->length(), 0) << file.toStdString();
    }
}

TEST_F(BackgroundSoundTest, WithoutADeviceAPieceIsSilentAndItsLengthIsKnown) {
    qputenv("SDL_AUDIODRIVER", "there-is-none");
    const auto sound = device->open(written(u"a.wav"_s, wav(2000)));
    sound->play();
    ASSERT_TRUE(known(*sound));
    QTest::qWait(100);
    EXPECT_EQ(sound->position(), 0);
    EXPECT_EQ(sound->length(), 250);
}

TEST_F(BackgroundSoundTest, WithoutTheModuleEverythingIsSilent) {
    device = backgroundSound(folder.path());
    const auto sound = device->open(written(u"a.wav"_s, wav(2000)));
    sound->play();
    QTest::qWait(100);
    EXPECT_EQ(sound->length(), 0);
}

TEST_F(BackgroundSoundTest, NoCallWaits) {
    const QString file = written(u"a.wav"_s, wav(80000));
    QElapsedTimer calls;
    calls.start();
    for (int i = 0; i < 4; ++i) {
        const auto sound = device->open(file);
        sound->play();
        sound->rewind();
        sound->position();
        sound->stop();
    }
    // Opening and closing the device four times takes far longer than this, and goes on in the background.
    const qint64 asked = calls.elapsed();
    device.reset();
    EXPECT_LT(asked, calls.elapsed() / 2);
}

} // namespace
} // namespace qinghe::testing
