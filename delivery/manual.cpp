#include "delivery/manual.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView Contents = u"softs.htm", ContentsTitle = u"软件工具"; // what the program opens behind Image5
constexpr QStringView ChapterMark = u"<!-- page: ", MarkEnd = u" -->", InnerHeading = u"### ";

/// The first line, without what marks it as a heading, and the rest.
std::pair<QString, QString> parted(const QString& text) {
    const qsizetype end = text.indexOf(u'\n');
    static const QRegularExpression marks(u"^#+ "_s);
    return {text.left(end).remove(marks), end < 0 ? QString() : text.mid(end + 1)};
}

ManualPage chapterOf(const QString& section) {
    const qsizetype end = section.indexOf(MarkEnd);
    auto [title, text] = parted(section.mid(end + MarkEnd.size() + 1));
    return {section.left(end) + u".htm"_s, title, text};
}

bool hasHeading(const QString& markdown, const QString& anchor) {
    for (const QString& line : markdown.split(u'\n'))
        if (line.startsWith(InnerHeading) && anchorOf(line.mid(InnerHeading.size())) == anchor)
            return true;
    return false;
}

} // namespace

std::vector<ManualPage> pagesOf(const QString& manual) {
    const QStringList sections = manual.split(ChapterMark.toString());
    std::vector<ManualPage> pages{{Contents.toString(), ContentsTitle.toString(), parted(sections.front()).second}};
    for (const QString& section : sections.mid(1))
        pages.push_back(chapterOf(section));
    return pages;
}

QString anchorOf(const QString& heading) {
    QString anchor;
    for (const QChar c : heading.trimmed().toLower())
        if (c.isLetterOrNumber() || c == u'-' || c == u'_')
            anchor += c;
        else if (c == u' ')
            anchor += u'-';
    return anchor;
}

QString amongPages(const QString& target, const std::vector<ManualPage>& pages) {
    if (!target.startsWith(u'#'))
        return target.startsWith(u"pictures/"_s) ? QFileInfo(target).fileName() : target;
    const QString anchor = target.mid(1);
    for (const ManualPage& page : pages) {
        if (anchorOf(page.title) == anchor)
            return page.file;
        if (hasHeading(page.markdown, anchor))
            return page.file + target;
    }
    return target;
}

} // namespace qinghe
