#include "analysis/charts.h"

namespace qinghe {

ChartsPage::ChartsPage(MainWindow& window) : QObject(&window) {}

} // namespace qinghe
