#pragma once

// The plotting library's header loops with Qt's old word, which is switched off in this program.
#define foreach(variable, container) for (variable : container)
#include <qcustomplot.h>
#undef foreach
