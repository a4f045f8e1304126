#include "delivery/web_pages.h"

#include "delivery/icons.h"
#include "delivery/manual.h"
#include "delivery/markdown_html.h"
#include "delivery/renew.h"

#include <QDir>
#include <QImageReader>

static void loadPages() {
    Q_INIT_RESOURCE(web);
    Q_INIT_RESOURCE(manual);
}

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int IconSize = 128;      ///< pixels
constexpr int WidestPicture = 720; ///< pixels: what the window of the pages shows without a bar

QStringList plainPageNames() {
    return {u"index.htm"_s, u"adetail.htm"_s};
}

std::vector<ManualPage> manual() {
    return pagesOf(QString::fromUtf8(contentOf(u":/manual/manual.md"_s)));
}

QString linkTo(const QString& file, const QString& words) {
    return u"<a href=\"%1\">%2</a>"_s.arg(file, words);
}

/// The line at the head and the foot of a page of the manual: one page back, the contents, one page on.
QString waysFrom(std::size_t number, const std::vector<ManualPage>& pages) {
    const auto link = [&pages](const QString& words, std::size_t to) {
        return linkTo(pages[to].file, words + pages[to].title);
    };
    QStringList ways;
    if (number == 0)
        ways << linkTo(u"index.htm"_s, u"首页"_s) << linkTo(u"adetail.htm"_s, u"软件介绍"_s);
    if (number > 1)
        ways << link(u"上一页："_s, number - 1);
    if (number > 0)
        ways << linkTo(pages.front().file, u"目录"_s);
    if (number + 1 < pages.size())
        ways << link(u"下一页："_s, number + 1);
    return ways.join(u"　|　"_s);
}

QByteArray htmlPage(std::size_t number, const std::vector<ManualPage>& pages) {
    const PageSurroundings page{
        .linkOf = [&pages](const QString& target) { return amongPages(target, pages); },
        .widthOf =
            [](const QString& file) {
                return std::min(QImageReader(u":/manual/"_s + file).size().width(), WidestPicture);
            },
    };
    return QString::fromUtf8(contentOf(u":/web/manual_page.htm"_s))
        .replace(u"@TITLE@"_s, pages[number].title)
        .replace(u"@PLACE@"_s, number == 0 ? u"使用说明"_s : u"使用说明 %1 / %2"_s.arg(number).arg(pages.size() - 1))
        .replace(u"@WAYS@"_s, waysFrom(number, pages))
        .replace(u"@TEXT@"_s, htmlOf(pages[number].markdown, page))
        .toUtf8();
}

} // namespace

QStringList webPageNames() {
    loadPages();
    QStringList names = plainPageNames();
    for (const ManualPage& page : manual())
        names << page.file;
    return names;
}

void deliverWebPages(const QString& folder) {
    loadPages();
    const QDir web(QDir(folder).filePath(u"web"_s));
    web.mkpath(u"."_s);
    for (const QString& name : plainPageNames() + QStringList(u"pages.css"_s))
        renew(web.filePath(name), contentOf(u":/web/"_s + name).replace("@VERSION@", QINGHE_VERSION));
    renew(web.filePath(u"qinghe.png"_s), iconPng(IconSize));
    const std::vector<ManualPage> pages = manual();
    for (std::size_t number = 0; number < pages.size(); ++number)
        renew(web.filePath(pages[number].file), htmlPage(number, pages));
    for (const QString& picture : QDir(u":/manual"_s).entryList({u"*.png"_s}))
        renew(web.filePath(picture), contentOf(u":/manual/"_s + picture));
}

} // namespace qinghe
