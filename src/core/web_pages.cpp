#include "core/web_pages.h"

#include "core/web_window.h"
#include "platform/files.h"

#include <QDir>
#include <QUrlQuery>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

QUrl webPage(const Shared& shared, const QString& page) {
    return QUrl::fromLocalFile(shared.beside(WebBase.toString() + page));
}

void openWebPage(Shared& shared, const QString& page) {
    const QUrl url = webPage(shared, page);
    if (!files::isPlainFileIn(shared.beside(WebBase.toString()), url.toLocalFile()))
        shared.tell(u"程序的文件夹里没有这个网页：\r\n%1"_s.arg(QDir::toNativeSeparators(url.toLocalFile())),
                    u"提示"_s);
    else if (!shared.services.launcher->explore(url))
        shared.forms.get(names::Web).showInstead(url);
}

bool mayLeave(const QUrl& address) {
    const QString scheme = address.scheme();
    if (scheme == u"http"_s || scheme == u"https"_s)
        return !address.host().isEmpty();
    static const QStringList Harmless{u"subject"_s, u"body"_s, u"cc"_s, u"bcc"_s};
    const auto items = QUrlQuery(address).queryItems(QUrl::FullyDecoded);
    return scheme == u"mailto"_s && std::ranges::all_of(items, [](const auto& item) {
               return Harmless.contains(item.first, Qt::CaseInsensitive);
           });
}

void openAddress(const Shared& shared, const QUrl& address) {
    if (mayLeave(address) && !shared.services.launcher->explore(address))
        shared.tell(u"这台电脑上没有浏览器。要看的网页地址是：\r\n%1"_s.arg(address.toDisplayString()), u"提示"_s);
}

} // namespace qinghe
