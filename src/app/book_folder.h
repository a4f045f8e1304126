#pragma once

#include "runtime/runtime_error.h"

#include <optional>

namespace qinghe {

/// Where the system's packages put the program, and what it brings along.
struct Installation {
    QString program, brought;
};
Installation systemInstallation();

/// The folder in which the book lies, with all that lies beside it.
struct BookFolder {
    QString path;
    std::optional<RuntimeError> trouble; ///< why it could not be made
};

/// It is the folder that the program itself lies in, whatever is or is not there: a book that is gone is missed, and
/// another one is never opened in its stead. Only the program that the system's packages have installed, which all
/// accounts share, takes the account's own folder in its home instead, and makes it or renews what it brings there. A
/// portable program brings its first book apart (lib/first), so that one that is unpacked over another lays none over a
/// book; it comes beside the program where no book has ever been.
BookFolder readyBookFolder(const QString& programFolder, const Installation& installation = systemInstallation());

} // namespace qinghe
