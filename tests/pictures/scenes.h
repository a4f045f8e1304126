#pragma once

#include "whole/household.h"

#include <span>
#include <string>

namespace pictures {

/// A moment of an evening with the program: how to get there, and what of the screen is its picture.
struct Scene {
    std::string name;
    void (*play)(whole::Program&) = nullptr; ///< from the first window on
    std::string cut;                         ///< the window that fills the picture; "" for all that are on view
    std::string page = {};                   ///< the committed picture that it makes, below docs/pictures
    void (*ready)(const whole::LedgerFolder&) = nullptr; ///< what happened in the folder before
};

std::span<const Scene> scenes();

} // namespace pictures
