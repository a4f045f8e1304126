#include "ledger/categories.h"

namespace qinghe {

CategoriesPage::CategoriesPage(MainWindow& window) : QObject(&window) {}

} // namespace qinghe
