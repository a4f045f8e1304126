#include "delivery/music.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace qinghe {
namespace {

constexpr int HeaderBytes = 44;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

struct Wave {
    explicit Wave(const QByteArray& content) : bytes(content) {
        for (qsizetype i = HeaderBytes; i + 1 < bytes.size(); i += 2) {
            samples.push_back(qFromLittleEndian<qint16>(bytes.constData() + i));
        }
    }

    template<typename Number>
    Number number(qsizetype at) const {
        return qFromLittleEndian<Number>(bytes.constData() + at);
    }
    double seconds() const { return static_cast<double>(samples.size()) / number<quint32>(24); }
    int peak() const {
        const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
        return std::max<int>(-*low, *high);
    }
    /// dB of the root of the mean square.
    double loudness() const {
        double energy = 0;
        for (const int sample : samples) {
            energy += sample * sample;
        }
        return 10 * std::log10(energy / static_cast<double>(samples.size()) / 32768 / 32768);
    }

    QByteArray bytes;
    std::vector<qint16> samples;
};

class Music : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = new QTemporaryDir;
        deliverMusic(folder->path());
    }
    static void TearDownTestSuite() { delete folder; }

    static QString path(const QString& name) { return folder->filePath(name); }
    static std::vector<Wave> pieces() {
        std::vector<Wave> all;
        for (const QString& name : musicNames()) {
            all.emplace_back(contentOf(path(name)));
        }
        return all;
    }

    static QTemporaryDir* folder;
};
QTemporaryDir* Music::folder;

TEST_F(Music, IsFivePiecesUnderTheNamesOfTheList) {
    const QStringList five{"音乐1.wav", "音乐2.wav", "音乐3.wav", "音乐4.wav", "音乐5.wav"};
    EXPECT_EQ(musicNames(), five);
    EXPECT_EQ(QDir(folder->path()).entryList(QDir::Files), five);
}

TEST_F(Music, IsShortAndSmall) {
    for (const Wave& piece : pieces()) {
        EXPECT_LT(piece.bytes.size(), 400'000);
        EXPECT_GT(piece.seconds(), 6);
        EXPECT_LT(piece.seconds(), 9);
    }
}

TEST_F(Music, IsWaveFilesWhoseHeadersTellTheTruth) {
    for (const Wave& piece : pieces()) {
        EXPECT_EQ(piece.bytes.left(4), "RIFF");
        EXPECT_EQ(piece.number<quint32>(4), piece.bytes.size() - 8);
        EXPECT_EQ(piece.bytes.mid(8, 8), "WAVEfmt ");
        EXPECT_EQ(piece.number<quint32>(16), 16u);
        EXPECT_EQ(piece.number<quint16>(20), 1); // PCM
        EXPECT_EQ(piece.number<quint16>(22), 1); // channel
        EXPECT_EQ(piece.number<quint32>(24), 22050u);
        EXPECT_EQ(piece.number<quint32>(28), 44100u);
        EXPECT_EQ(piece.number<quint16>(32), 2); // bytes a sample
        EXPECT_EQ(piece.number<quint16>(34), 16);
        EXPECT_EQ(piece.bytes.mid(36, 4), "data");
        EXPECT_EQ(piece.number<quint32>(40), piece.bytes.size() - HeaderBytes);
    }
}

TEST_F(Music, BeginsAtOnceFromZeroAndEndsInSilence) {
    for (const Wave& piece : pieces()) {
        const auto first = std::find_if(piece.samples.begin(), piece.samples.end(),
                                        [](qint16 sample) { return std::abs(sample) > 1000; });
        EXPECT_LT(first - piece.samples.begin(), 22050 / 10);
        EXPECT_EQ(piece.samples.front(), 0);
        EXPECT_TRUE(std::all_of(piece.samples.end() - 1000, piece.samples.end(), [](qint16 s) { return s == 0; }));
    }
}

TEST_F(Music, ComesNearThreeDecibelsAndIsNeverClipped) {
    for (const Wave& piece : pieces()) {
        const int peak = piece.peak();
        EXPECT_LE(peak, 23'200); // -3 dB
        EXPECT_GT(peak, 18'000); // -5 dB
        const auto flat = std::adjacent_find(piece.samples.begin(), piece.samples.end(),
                                             [&](qint16 a, qint16 b) { return a == b && std::abs(a) >= peak - 1; });
        EXPECT_EQ(flat, piece.samples.end());
    }
}

TEST_F(Music, IsAboutAsLoudInEveryPiece) {
    for (const Wave& piece : pieces()) {
        EXPECT_NEAR(piece.loudness(), -16.5, 0.5);
    }
}

TEST_F(Music, IsFiveDifferentPieces) {
    std::set<std::vector<qint16>> beginnings;
    for (const Wave& piece : pieces()) {
        beginnings.emplace(piece.samples.begin(), piece.samples.begin() + 22050);
    }
    EXPECT_EQ(beginnings.size(), 5u);
}

TEST_F(Music, IsTheSameAgain) {
    const QTemporaryDir other;
    deliverMusic(other.path());
    for (const QString& name : musicNames()) {
        EXPECT_TRUE(contentOf(path(name)) == contentOf(other.filePath(name))) << qPrintable(name);
    }
}

TEST_F(Music, IsRenewedWhereItDiffersAndLeftAloneOtherwise) {
    const QString changed = path(musicNames()[1]), kept = path(musicNames()[2]);
    const QByteArray before = contentOf(changed);
    ASSERT_TRUE(QFile::resize(changed, 1000));
    QFile file(kept);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    ASSERT_TRUE(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    file.close();

    deliverMusic(folder->path());
    EXPECT_TRUE(contentOf(changed) == before);
    EXPECT_EQ(QFileInfo(kept).lastModified(), longAgo);
}

} // namespace
} // namespace qinghe
