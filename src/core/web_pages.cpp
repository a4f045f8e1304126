#include "core/web_pages.h"

namespace qinghe {

QUrl webPage(const Shared& shared, const QString& page) {
    return QUrl::fromLocalFile(shared.beside(WebBase.toString() + page));
}

} // namespace qinghe
