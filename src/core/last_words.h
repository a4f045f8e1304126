#pragma once

#include "core/page.h"
#include "core/shared.h"

#include <vector>

namespace qinghe {

/// When a run-time error ends the program: puts what stands on the pages and is not in the book into a new text file
/// beside the book, for its owner alone, and says in Chinese what became of the records and where that file lies. To be
/// called when the unit of work has ended. Throws nothing: whatever fails here, the error itself is still to be told.
QString lastWords(Shared& shared, const std::vector<Page*>& pages, const RuntimeError& error);

/// The same file when the system ends the program: nobody is there to be told. Throws nothing.
void keepUnsaved(Shared& shared, const std::vector<Page*>& pages);

} // namespace qinghe
