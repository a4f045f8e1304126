#pragma once

#include <QString>

namespace whole {

/// The program that the stories walk through: the built one, or one out of a package, unpacked (`--unpacked FOLDER`) or
/// installed by the system (`--installed`).
struct Walked {
    enum Kind { Built, Unpacked, Installed } kind = Built;
    QString folder; ///< the program's
};
const Walked& walked();

/// Takes the choice from the program's arguments; throws std::runtime_error.
void chooseWalked(int argc, char** argv);

/// A folder as a new user has it: the book as it ships, with all that lies beside it. Made once a run.
QString newLedger();
/// Copies it.
void copyLedger(const QString& from, const QString& to);

} // namespace whole
