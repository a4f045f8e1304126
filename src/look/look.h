#pragma once

class QApplication;

namespace qinghe {

/// Gives the program its look: style, palette, fonts and window icon. Called once, before the first window.
void dress(QApplication& app);

} // namespace qinghe
