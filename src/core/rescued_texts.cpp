#include "core/rescued_texts.h"

#include "runtime/runtime_error.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// A cell in a line of cells: what would divide lines or cells is a blank there.
QString inLine(QString text) {
    for (QChar& c : text)
        if (c < u' ')
            c = u' ';
    return text;
}

QString lineOf(const MSFlexGrid& grid, int row) {
    QStringList cells = grid.rowTexts(row);
    cells.front() = row == 0 ? u"行"_s : QString::number(row);
    for (QString& cell : cells)
        cell = inLine(cell);
    return cells.join(u'\t');
}

QStringList linesOf(const MSFlexGrid& grid) {
    QStringList lines{lineOf(grid, 0)};
    for (int row = 1; row < grid.Rows(); ++row)
        if (!isRowBlank(grid, row))
            lines << lineOf(grid, row);
    return lines;
}

/// The text in the box where it has not reached its cell; none otherwise.
QStringList typedText(const MSFlexGrid& grid, const CellEditing& editing) {
    const CellEditor& box = *editing.box;
    if (!box.differsFromCell()) // which need not be the current cell: a save walks along the rows
        return {};
    return {u"还没有按回车的一格：第%1行“%2”，写的是：%3"_s.arg(box.row()).arg(grid.TextMatrix(0, box.col()),
                                                                               inLine(box.Text()))};
}

} // namespace

void RescuedTexts::add(const QString& heading, const QStringList& lines) {
    m_lines << QString() << u"【%1】"_s.arg(heading) << lines;
}

void RescuedTexts::addList(const QString& heading, const MSFlexGrid& grid, const CellEditing& editing,
                           const LoadedSet& loaded, const std::vector<QStringView>& fields) {
    const auto isInBook = [&] {
        try {
            // Read afresh: the page's own records may have a row at work in them, which must not be stored now.
            Recordset records(m_shared.store, m_shared.store.fetch(loaded.source()));
            return showsRecords(grid, records, fields);
        } catch (const RuntimeError&) {
            return false;
        }
    };
    const QStringList typed = typedText(grid, editing), rows = linesOf(grid);
    if (typed.isEmpty() && (rows.size() == 1 || isInBook()))
        return;
    add(heading, rows + typed);
}

} // namespace qinghe
