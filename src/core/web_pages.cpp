#include "core/web_pages.h"

#include "core/web_window.h"

namespace qinghe {

using namespace Qt::StringLiterals;

QUrl webPage(const Shared& shared, const QString& page) {
    return QUrl::fromLocalFile(shared.beside(WebBase.toString() + page));
}

void openWebPage(Shared& shared, const QString& page) {
    const QUrl url = webPage(shared, page);
    if (!shared.services.launcher->explore(url))
        shared.forms.get(names::Web).showInstead(url);
}

void openAddress(const Shared& shared, const QUrl& address) {
    if (!shared.services.launcher->explore(address))
        shared.tell(u"这台电脑上没有浏览器。要看的网页地址是：\r\n%1"_s.arg(address.toDisplayString()), u"提示"_s);
}

} // namespace qinghe
