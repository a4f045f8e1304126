#pragma once

#include "ledger_folder.h"

#include <string>
#include <utility>
#include <vector>

namespace whole {

/// A process that was started and waited for.
struct Ended {
    int code = -1;     ///< -1 when it crashed or ran on
    std::string words; ///< on its standard error
};

/// Starts the program with these variables set, or taken away where they are empty, and waits for its end; for starts
/// that come to no window.
Ended started(const LedgerFolder& folder, const std::vector<std::pair<QString, QString>>& variables);

} // namespace whole
