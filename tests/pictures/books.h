#pragma once

#include "whole/ledger_folder.h"

#include <span>
#include <string>

namespace pictures {

/// What stands in the data file and in the diary of a folder when its program is started.
struct Book {
    std::string name;
    void (*write)(const whole::LedgerFolder&);
};

/// All of them; the first is the household of the manual.
std::span<const Book> books();

} // namespace pictures
