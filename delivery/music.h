#pragma once

#include <QString>
#include <QStringList>

namespace qinghe {

/// The music that a reminder can play, five short pieces: a music box, plucked strings, soft bells, a marimba, a flute
/// over a harp.
QStringList musicNames();

/// Puts the pieces into the folder as wav files (16 bits, one channel), each under 400,000 bytes; a file that is up to
/// date is left alone. The bytes are the same each time. Throws RuntimeError (PathFileAccess).
void deliverMusic(const QString& folder);

} // namespace qinghe
