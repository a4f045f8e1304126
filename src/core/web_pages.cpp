#include "core/web_pages.h"

namespace qinghe {

QUrl webPage(const Workbench& bench, const QString& page) {
    return QUrl::fromLocalFile(bench.beside(WebBase + page));
}

} // namespace qinghe
