#pragma once

#include <QString>

#include <vector>

namespace qinghe {

/// One page of the user's manual.
struct ManualPage {
    QString file; ///< its name among the web pages, "sign-in.htm"
    QString title;
    QString markdown; ///< without its title
};

/// The manual, docs/使用说明.md, page by page: the contents, which stand before the first chapter, then the chapters.
/// What a chapter's file is called stands in the line before its heading, "<!-- page: sign-in -->".
std::vector<ManualPage> pagesOf(const QString& manual);

/// By what a heading is linked to inside a Markdown file: its words without their marks, blanks as "-".
QString anchorOf(const QString& heading);

/// Where a link inside the manual leads among the web pages: "#登录" to "sign-in.htm", a heading inside a chapter to
/// "desktop.htm#...". A picture lies beside the pages. What leads elsewhere stays as it is, and so does what leads
/// nowhere.
QString amongPages(const QString& target, const std::vector<ManualPage>& pages);

} // namespace qinghe
