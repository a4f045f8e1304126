#pragma once

#include "core/shared.h"

namespace qinghe {

/// Closes to other accounts what the program keeps beside itself: the book with its journal and the backups beside it,
/// the diary, the safety copies, the pictures and the texts that were rescued. The program's folder is closed as well
/// where nothing else lies in it: a folder that somebody shares for other things stays open to them. Links, files of
/// other accounts and files with a second name are left alone, and so is whatever cannot be changed.
void closeOwnFiles(const Shared& shared);

} // namespace qinghe
