#include "delivery/music.h"

#include "delivery/renew.h"
#include "delivery/synthesiser.h"

#include <QDataStream>
#include <QDir>

#include <array>
#include <cmath>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

// ---- the instruments

constexpr Partial TinePartials[] = {{1, 1, 0.9}, {2, 0.22, 0.5}, {3.01, 0.08, 0.3}, {6.27, 0.1, 0.06}};
constexpr Timbre MusicBox{TinePartials, 0.003, 1.2};

constexpr Partial StringPartials[] = {{1, 1, 1.1},         {2.001, 0.62, 0.8},  {3.003, 0.4, 0.55},
                                      {4.006, 0.22, 0.42}, {5.011, 0.1, 0.33},  {6.018, 0.07, 0.26},
                                      {7.028, 0.06, 0.2},  {8.042, 0.045, 0.16}};
constexpr Timbre Strings{StringPartials, 0.004, 0.9};
constexpr Timbre Harp{std::span(StringPartials).first(4), 0.008, 0.8};

constexpr Partial BellPartials[] = {{0.5, 0.3, 2.2},   {1, 1, 1.6},       {2, 0.4, 1.1},
                                    {3.01, 0.18, 0.7}, {4.17, 0.1, 0.45}, {5.43, 0.05, 0.25}};
constexpr Timbre Bells{BellPartials, 0.006, 1.8};

constexpr Partial BarPartials[] = {{1, 1, 0.32}, {3.98, 0.3, 0.1}, {9.9, 0.09, 0.03}};
constexpr Timbre Marimba{BarPartials, 0.003, 0.5};

constexpr Partial PipePartials[] = {{1, 1}, {2, 0.32}, {3, 0.14}, {4, 0.05}, {5, 0.02}};
constexpr Timbre Flute{PipePartials, 0.06, 0.12, 0.006};

// ---- the pieces

constexpr Voice Waltz[] = {
    {MusicBox, 1,
     "D6 . B5 . G5 A5 | B5 - D6 - - . | E6 . B5 . G5 B5 | C6 - E6 - . D6 | "
     "C6 . A5 . E5 A5 | D6 . A5 . F#5 A5 | B5 C6 B5 A5 F#5 A5 | G5+D6 - - - - -"},
    {MusicBox, 0.5,
     "G4 . B4+D5 . B4+D5 . | G4 . B4+D5 . B4+D5 . | E4 . G4+B4 . G4+B4 . | C4 . G4+C5 . G4+C5 . | "
     "A4 . C5+E5 . C5+E5 . | D4 . F#4+C5 . F#4+C5 . | D4 . F#4+C5 . F#4+C5 . | G4 . D5 . B4 -"},
};

constexpr Voice Willows[] = {
    {Strings, 1, "A4 - B4 D5 E5 - D5 B4 | A4 - F#4 A4 B4 - - - | D5 - E5 F#5 E5 D5 B4 A4 | B4 A4 F#4 E4 D4+A4 - - -"},
    {Strings, 0.55, "D3 - A3 - D4 - A3 - | B2 - F#3 - B3 - F#3 - | G3 - D4 - G3 - D4 - | A2 - E3 - D3 A3 D4 F#4"},
};

constexpr Voice Lanterns[] = {
    {Bells, 1, "C6 . A5 . G5 . . A5 | F5 . . . G5 . C5 . | D6 . C6 . A5 . . G5 | A5 . . . F5 . . ."},
    {Bells, 0.45, "F4 . . . C5 . . . | D4 . . . A4 . . . | Bb4 . . . C5 . . . | F4 . . C5 . . . ."},
};

constexpr Voice Kitchen[] = {
    {Marimba, 1,
     "C5 . E5 . G5 . . E5 . . A5 . G5 . E5 . | D5 . F5 . A5 . . F5 . . G5 . F5 . D5 . | "
     "E5 . G5 . C6 . . G5 . . A5 . G5 . E5 . | F5 . D5 . B4 . D5 . C5 . . . E5 . . ."},
    {Marimba, 0.8,
     "C3 . . G3 . . C4 . C3 . . G3 . . C4 . | D3 . . A3 . . D4 . D3 . . A3 . . D4 . | "
     "A2 . . E3 . . A3 . F3 . . C4 . . F3 . | G2 . . D3 . . G3 . C3 . . . C3+G3 . . ."},
};

constexpr Voice Fields[] = {
    {Flute, 0.7, "F#5 - - E5 D5 - A4 - | B4 - - D5 E5 - - - | G5 - F#5 E5 D5 - B4 - | E5 - - C#5 D5 - - - - - -"},
    {Harp, 0.8,
     "D3 A3 D4 F#4 A4 F#4 D4 A3 | G3 B3 D4 G4 B4 G4 D4 B3 | E3 B3 E4 G4 B4 G4 E4 B3 | A2 E3 A3 C#4 D3 A3 D4 F#4 A4 - "
     "-"},
};

constexpr std::array<Piece, 5> Pieces{{
    {0.14, 8.4, Waltz},
    {0.215, 8.7, Willows},
    {0.215, 8.9, Lanterns},
    {0.108, 7.8, Kitchen},
    {0.21, 8.6, Fields},
}};

// ---- the files

QByteArray waveFile(const std::vector<double>& samples) {
    constexpr quint16 Pcm = 1, Channels = 1, SampleBytes = 2;
    constexpr quint32 FormatBytes = 16, HeaderBytes = 36; // the header that the file's own length counts
    const auto dataBytes = static_cast<quint32>(samples.size()) * SampleBytes;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("RIFF", 4);
    stream << HeaderBytes + dataBytes;
    stream.writeRawData("WAVEfmt ", 8);
    stream << FormatBytes << Pcm << Channels << quint32(SampleRate) << quint32(SampleRate * SampleBytes * Channels)
           << quint16(SampleBytes * Channels) << quint16(8 * SampleBytes);
    stream.writeRawData("data", 4);
    stream << dataBytes;
    for (const double sample : samples) {
        stream << static_cast<qint16>(std::lround(sample * 32767));
    }
    return bytes;
}

} // namespace

QStringList musicNames() {
    QStringList names;
    for (std::size_t i = 1; i <= Pieces.size(); ++i) {
        names << u"音乐%1.wav"_s.arg(i);
    }
    return names;
}

void deliverMusic(const QString& folder) {
    const QStringList names = musicNames();
    for (std::size_t i = 0; i < Pieces.size(); ++i) {
        renew(QDir(folder).filePath(names[static_cast<qsizetype>(i)]), waveFile(played(Pieces[i])));
    }
}

} // namespace qinghe
