#pragma once

#include <QString>

#include <functional>

namespace qinghe {

/// What a text in Markdown needs to know of the pages that it goes to.
struct PageSurroundings {
    std::function<QString(const QString& target)> linkOf; ///< where a link or a picture leads there
    std::function<int(const QString& picture)> widthOf;   ///< of a picture, in pixels
};

/// The text as HTML of the plain kind that Qt's text browser and every web browser show alike, in the style of the
/// other pages: headings, paragraphs, lists, tables, lines of commands, pictures, bold, words of code and links. Qt
/// reads the Markdown. A heading of the third order becomes one of the second with an anchor, because the title stands
/// above.
QString htmlOf(const QString& markdown, const PageSurroundings& page);

} // namespace qinghe
