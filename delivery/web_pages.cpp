#include "delivery/web_pages.h"

#include "delivery/icons.h"
#include "delivery/renew.h"

#include <QDir>

static void loadPages() {
    Q_INIT_RESOURCE(web);
}

namespace qinghe {

using namespace Qt::StringLiterals;

QStringList webPageNames() {
    return {u"index.htm"_s, u"softs.htm"_s, u"adetail.htm"_s};
}

void deliverWebPages(const QString& folder) {
    constexpr int IconSize = 128;
    loadPages();
    const QDir web(QDir(folder).filePath(u"web"_s));
    web.mkpath(u"."_s);
    for (const QString& name : webPageNames() + QStringList(u"pages.css"_s)) {
        renew(web.filePath(name), contentOf(u":/web/"_s + name).replace("@VERSION@", QINGHE_VERSION));
    }
    renew(web.filePath(u"qinghe.png"_s), iconPng(IconSize));
}

} // namespace qinghe
