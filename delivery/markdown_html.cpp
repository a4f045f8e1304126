#include "delivery/markdown_html.h"

#include "delivery/manual.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

class HtmlWriter {
public:
    explicit HtmlWriter(const PageSurroundings& page) : m_page(page) {}

    QString write(const QTextFrame& text) {
        for (auto part = text.begin(); !part.atEnd(); ++part)
            if (const auto* table = qobject_cast<QTextTable*>(part.currentFrame()))
                add(*table);
            else
                add(part.currentBlock());
        turnTo(Kind::None);
        return m_html;
    }

private:
    /// What may take up several blocks.
    enum class Kind { None, Bullets, Numbers, Commands };

    static Kind kindOf(const QTextBlock& block) {
        if (const QTextList* list = block.textList())
            return list->format().style() == QTextListFormat::ListDecimal ? Kind::Numbers : Kind::Bullets;
        return block.blockFormat().nonBreakableLines() ? Kind::Commands : Kind::None;
    }

    /// Ends what was open and begins this.
    void turnTo(Kind kind, const QTextList* list = nullptr) {
        constexpr QStringView Begin[] = {u"", u"<ul>\n", u"<ol>\n", u"<pre>"};
        constexpr QStringView End[] = {u"", u"</ul>\n", u"</ol>\n", u"</pre>\n"};
        if (kind != m_kind || list != m_list)
            m_html += End[static_cast<int>(m_kind)].toString() + Begin[static_cast<int>(kind)].toString();
        m_kind = kind;
        m_list = list;
    }

    void add(const QTextBlock& block) {
        const Kind kind = kindOf(block);
        turnTo(kind, block.textList());
        const QString words = wordsOf(block);
        if (words.isEmpty())
            return; // Qt ends a table with a block of nothing
        if (kind == Kind::Commands)
            m_html += block.text().toHtmlEscaped() + u'\n';
        else if (kind != Kind::None)
            m_html += u"<li>&nbsp;"_s + words + u"</li>\n"_s; // Qt sets the mark too close
        else if (block.blockFormat().headingLevel() > 0)
            m_html += u"<h2><a name=\"%1\"></a>%2</h2>\n"_s.arg(anchorOf(block.text()), block.text().toHtmlEscaped());
        else
            m_html += (words.startsWith(u"<img"_s) ? u"<p class=\"picture\">"_s : u"<p>"_s) + words + u"</p>\n"_s;
    }

    void add(const QTextTable& table) {
        turnTo(Kind::None);
        m_html += u"<table width=\"100%\" cellspacing=\"0\" cellpadding=\"9\" bgcolor=\"#FFFFFF\">\n"_s;
        for (int row = 0; row < table.rows(); ++row) {
            constexpr QStringView Captions = u" bgcolor=\"#E4F1D8\"", Second = u" bgcolor=\"#F5FAF0\"";
            m_html += u"<tr"_s + (row == 0 ? Captions : row % 2 == 0 ? Second : QStringView()).toString() + u'>';
            for (int column = 0; column < table.columns(); ++column)
                m_html += u"<td>"_s + wordsOf(table.cellAt(row, column).firstCursorPosition().block()) + u"</td>"_s;
            m_html += u"</tr>\n"_s;
        }
        m_html += u"</table>\n"_s;
    }

    QString wordsOf(const QTextBlock& block) const {
        QString words;
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            words += wordsOf(piece.fragment());
        return words;
    }

    QString wordsOf(const QTextFragment& piece) const {
        const QTextCharFormat format = piece.charFormat();
        if (format.isImageFormat())
            return pictureOf(format.toImageFormat());
        QString words = piece.text().toHtmlEscaped();
        if (format.fontFixedPitch())
            words = u"<code>"_s + words + u"</code>"_s;
        if (format.fontWeight() >= QFont::Bold)
            words = u"<b>"_s + words + u"</b>"_s;
        if (format.isAnchor())
            words = u"<a href=\"%1\">%2</a>"_s.arg(m_page.linkOf(format.anchorHref()), words);
        return words;
    }

    QString pictureOf(const QTextImageFormat& format) const {
        const QString file = m_page.linkOf(format.name());
        return u"<img src=\"%1\" width=\"%2\" alt=\"%3\">"_s.arg(
            file, QString::number(m_page.widthOf(file)),
            format.stringProperty(QTextFormat::ImageAltText).toHtmlEscaped());
    }

    const PageSurroundings& m_page;
    QString m_html;
    Kind m_kind = Kind::None;
    const QTextList* m_list = nullptr;
};

} // namespace

QString htmlOf(const QString& markdown, const PageSurroundings& page) {
    QTextDocument document;
    document.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);
    return HtmlWriter(page).write(*document.rootFrame());
}

} // namespace qinghe
