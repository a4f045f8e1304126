#include "controls/ms_flex_grid.h"

#include "controls/grid_keys.h"
#include "controls/grid_model.h"
#include "controls/grid_rim.h"
#include "controls/reading_bar.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>

#include <algorithm>
#include <utility>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// A header that shows and does nothing else.
void quiet(QHeaderView* header) {
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setMinimumSectionSize(1);
}

} // namespace

MSFlexGrid::MSFlexGrid(QWidget* parent, const QString& name)
    : QTableView(parent),
      Placed(this),
      m_model(new GridModel(this)),
      m_changes(*m_model),
      m_bar(new ReadingBar(*this)),
      m_rim(new GridRim(this)) {
    setObjectName(name);
    const int rowPixels = pixelEdge(DefaultRowHeight);
    setModel(m_model);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollBar(m_bar);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    quiet(horizontalHeader());
    quiet(verticalHeader());
    horizontalHeader()->setFixedHeight(rowPixels);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    m_model->announce();
    layColumns();
}

MSFlexGrid::~MSFlexGrid() {
    handlers::forget(this);
}

int MSFlexGrid::Rows() const {
    return m_model->rows();
}

void MSFlexGrid::setRows(int rows) {
    m_model->resize(rows, Cols());
    m_row = std::min(m_row, rows - 1);
    changed();
}

int MSFlexGrid::Cols() const {
    return m_model->cols();
}

void MSFlexGrid::setCols(int cols) {
    if (cols == Cols())
        return;
    m_model->resize(Rows(), cols);
    m_columns.resize(cols);
    m_col = std::min(m_col, cols - 1);
    m_staleColumns = true;
    changed();
}

void MSFlexGrid::setRow(int row) {
    m_model->checkRow(row);
    m_row = row;
    m_due = Scroll::ToCurrent;
    changed();
}

void MSFlexGrid::setCol(int col) {
    m_model->checkCol(col);
    m_col = col;
    m_due = Scroll::ToCurrent;
    changed();
}

QString MSFlexGrid::Text() const {
    return m_model->cell(m_row, m_col);
}

QString MSFlexGrid::TextMatrix(int row, int col) const {
    return m_model->cell(row, col);
}

QStringList MSFlexGrid::rowTexts(int row) const {
    return m_model->rowTexts(row);
}

bool MSFlexGrid::isEmpty(int row, int col) const {
    return m_model->isEmpty(row, col);
}

int MSFlexGrid::firstEmpty(int row, int from, int behindLast) const {
    return m_model->firstEmpty(row, from, behindLast);
}

void MSFlexGrid::setTextMatrix(int row, int col, const QString& text) {
    m_changes.writing(row, col, text);
    m_model->setCell(row, col, text);
    changed();
}

void MSFlexGrid::RemoveItem(int row) {
    m_model->removeRow(row);
    m_changes.rowRemoved(row);
    m_row = std::min(m_row, Rows() - 1);
    changed();
}

double MSFlexGrid::ColWidth(int col) const {
    m_model->checkCol(col);
    return m_columns.width(col);
}

void MSFlexGrid::setColWidth(int col, double twips) {
    m_model->checkCol(col);
    m_columns.setWidth(col, twips);
    m_staleColumns = true;
    changed();
}

double MSFlexGrid::RowHeight(int row) const {
    m_model->checkRow(row);
    return DefaultRowHeight;
}

void MSFlexGrid::setRowHeight(int row, double twips) {
    // Every row of every list is of one height; nothing is kept a row, which long lists would pay for.
    m_model->checkRow(row);
    if (twips != DefaultRowHeight)
        throw RuntimeError(RuntimeError::InvalidCall, u"表格的行高只能是 %1。"_s.arg(DefaultRowHeight));
}

int MSFlexGrid::RowData(int row) const {
    return m_model->rowData(row);
}

void MSFlexGrid::setRowData(int row, int number) {
    m_model->setRowData(row, number);
}

double MSFlexGrid::ColPos(int col) {
    m_model->checkCol(col);
    bringUpToDate();
    return col == 0 ? 0 : m_columns.left(col) - horizontalScrollBar()->value() * TwipsPerPixel;
}

double MSFlexGrid::RowPos(int row) {
    m_model->checkRow(row);
    bringUpToDate();
    if (row == 0)
        return 0;
    // Scrolled to its end, the view lays its last row on the lower edge, which need not be a whole row's.
    return DefaultRowHeight + verticalHeader()->sectionViewportPosition(row - 1) * TwipsPerPixel;
}

void MSFlexGrid::setAmountColumns(std::vector<int> columns) {
    m_amounts = std::move(columns);
    viewport()->update();
}

void MSFlexGrid::setMarked(bool marked) {
    m_marked = marked;
    viewport()->update();
    verticalHeader()->viewport()->update();
}

QString MSFlexGrid::objectionTo(int row, int col) const {
    // The view may paint cells that have gone since it was told.
    return objection && row < Rows() && col < Cols() ? objection(row, col) : QString();
}

void MSFlexGrid::showTop() {
    m_due = Scroll::ToTop;
    changed();
}

void MSFlexGrid::takeFocus() {
    if (isVisible())
        setFocus(Qt::OtherFocusReason);
}

QRect MSFlexGrid::cellRect(int row, int col) {
    const int x = pixelEdge(ColPos(col)), y = pixelEdge(RowPos(row));
    const int width = col > 0 ? columnWidth(col - 1) : pixelEdge(ColWidth(col));
    return {x, y, width, pixelEdge(RowHeight(row))};
}

void MSFlexGrid::ensureVisible(int row, int col) {
    m_model->checkRow(row);
    m_model->checkCol(col);
    bringUpToDate();
    if (row > 0 && col > 0)
        scrollTo(m_model->index(row - 1, col - 1));
}

QRect MSFlexGrid::cellRoom() const {
    return viewport()->geometry();
}

void MSFlexGrid::changed() {
    if (std::exchange(m_stale, true))
        return;
    // Outside a handler (tools that reach the grid by name) the next turn of the loop is the boundary.
    if (handlers::depth() > 0)
        handlers::atBoundary(this, [this] { bringUpToDate(); });
    else
        QMetaObject::invokeMethod(
            this, [this] { bringUpToDate(); }, Qt::QueuedConnection);
}

void MSFlexGrid::bringUpToDate() {
    if (!m_stale)
        return;
    m_stale = false;
    handlers::forget(this);
    if (!m_model->isAnnounced()) {
        const int x = horizontalScrollBar()->value(), y = verticalScrollBar()->value();
        m_model->announce();
        layColumns();
        horizontalScrollBar()->setValue(x);
        verticalScrollBar()->setValue(y);
    } else if (m_staleColumns) {
        layColumns();
    }
    const Scroll due = std::exchange(m_due, Scroll::None);
    if (due == Scroll::ToTop)
        verticalScrollBar()->setValue(0);
    else if (due == Scroll::ToCurrent && m_row > 0 && m_col > 0)
        scrollTo(m_model->index(m_row - 1, m_col - 1));
    viewport()->update();
    horizontalHeader()->viewport()->update();
    verticalHeader()->viewport()->update();
    emit scrolled();
    emit refreshed();
}

void MSFlexGrid::layColumns() {
    m_staleColumns = false;
    verticalHeader()->setFixedWidth(m_columns.pixels(0));
    for (int col = 1; col < Cols(); ++col)
        horizontalHeader()->resizeSection(col - 1, m_columns.pixels(col));
    updateGeometries();
}

void MSFlexGrid::updateGeometries() {
    fitLastColumn();
    QTableView::updateGeometries();
}

void MSFlexGrid::fitLastColumn() {
    const int last = Cols() - 2;
    if (last < 0 || horizontalHeader()->count() != last + 1)
        return; // the view has yet to hear of its columns
    const bool barShown = verticalHeader()->length() > height() - horizontalHeader()->height();
    const int room = width() - (barShown ? m_bar->sizeHint().width() : 0);
    horizontalHeader()->resizeSection(last, m_columns.lastPixels(room));
}

void MSFlexGrid::mousePressEvent(QMouseEvent* event) {
    event->accept();
    m_press.press(*event);
}

void MSFlexGrid::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const std::optional<QPoint> at = m_press.release(*event);
    const QModelIndex pressed = at ? indexAt(*at) : QModelIndex();
    if (!pressed.isValid() || indexAt(event->position().toPoint()) != pressed)
        return;
    handlers::enter([&] {
        setRow(pressed.row() + 1);
        setCol(pressed.column() + 1);
        Click.raise();
    });
}

void MSFlexGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void MSFlexGrid::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    MouseMove.fromQt();
}

void MSFlexGrid::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(walk(*event));
}

bool MSFlexGrid::walk(const QKeyEvent& key) {
    const int page = std::max(1, viewport()->height() / pixelEdge(DefaultRowHeight) - 1);
    const auto cell = cellAfterKey(key, {m_row, m_col}, {Rows() - 1, Cols() - 1}, page);
    const QWidget* const cover = m_cover;
    if (cell && (!cover || !cover->isVisible()))
        handlers::enter([&] {
            setRow(cell->row);
            setCol(cell->col);
        });
    return cell.has_value();
}

void MSFlexGrid::focusInEvent(QFocusEvent* event) {
    // Qt's table would make a cell of its own choice the current one, and tell a screen reader so.
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void MSFlexGrid::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(viewport());
        QStyleOption option;
        option.initFrom(this);
        option.rect = viewport()->rect();
        style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(PE_LedgerPaper), &option, &painter, this);
    }
    QTableView::paintEvent(event);
}

CellFit MSFlexGrid::fit(int row, int col) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.index = m_model->index(row - 1, col - 1);
    option.rect = visualRect(option.index);
    option.text = option.index.data().toString();
    return static_cast<CellFit>(style()->styleHint(static_cast<QStyle::StyleHint>(SH_CellFit), &option, this));
}

bool MSFlexGrid::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Wheel && !isEnabled()) {
        QCoreApplication::sendEvent(m_bar, event);
        return true;
    }
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    hints.tell(index.row() + 1, index.column() + 1, help->globalPos());
    return true;
}

void MSFlexGrid::contextMenuEvent(QContextMenuEvent* event) {
    const bool keyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex pointed = indexAt(event->pos());
    const int row = keyboard ? m_row : pointed.row() + 1, col = keyboard ? m_col : pointed.column() + 1;
    event->setAccepted(hints.openMenu(row, col, *event));
}

void MSFlexGrid::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    emit scrolled();
}

void MSFlexGrid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    m_rim->cover();
    emit scrolled();
}

void MSFlexGrid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() != QEvent::EnabledChange)
        return;
    viewport()->update();
    m_bar->listenToContainer();
}

} // namespace qinghe
