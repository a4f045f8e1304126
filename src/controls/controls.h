#pragma once

/// The simple controls that nearly every form has.
#include "controls/buttons.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/progress_bar.h"
#include "controls/text_box.h"
