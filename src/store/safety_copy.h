#pragma once

#include <QDateTime>
#include <QString>

#include <stop_token>

namespace qinghe {

class Store;

/// When a copy is made and what for: its name, see nameInSafety.
struct SafetyStamp {
    QDateTime when;
    QString occasion;
};

struct SafetyCopy {
    QString path;
    bool isSound = true; ///< else it is what can still be read of a damaged book, and its name says so
};

/// What becomes of the copy of a book that turns out to be damaged: it is told instead (RuntimeError, StoreFailure), or
/// kept as it is.
enum class IfDamaged { Tell, Keep };

/// Thrown out of a copying that was asked to stop.
struct BrokenOff {};

/// Copies a book into its folder of safety copies, in the form of a backup: whole, durable and proved sound, or not
/// there at all. Reads through SQLite with a connection of its own, on any thread, piece by piece: whoever wants to
/// write waits for a piece at most, and the copy is then begun anew. Only a damaged book that is kept is read past
/// SQLite: no transaction may be open on it then. Throws RuntimeError.
SafetyCopy keepCopy(const QString& book, const SafetyStamp& stamp, IfDamaged damaged, const std::stop_token& stop = {});

/// While a unit of work is open on the store: the same of the book as it stood before. What the unit of work has done
/// so far stays as it is.
SafetyCopy keepStateBefore(Store& store, const SafetyStamp& stamp);

} // namespace qinghe
