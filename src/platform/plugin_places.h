#pragma once

namespace qinghe {

/// Keeps Qt, for the next application that is made, from looking for its plugins beside the program, where a folder of
/// somebody else's may have brought some along. Qt's own place and those that the user names (QT_PLUGIN_PATH) stay.
/// Writes the environment, so it is called before any thread is started that may read it. What Qt's own place is stands
/// in the program (src/app/qt.conf.in), so that a file beside it cannot tell another.
void keepPluginsFromProgramFolder();

} // namespace qinghe
