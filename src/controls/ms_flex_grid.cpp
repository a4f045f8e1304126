#include "controls/ms_flex_grid.h"

#include "controls/grid_model.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <numeric>
#include <utility>

namespace qinghe {

namespace {

constexpr double DefaultColWidth = 960;

void checkIndex(int index, int count, const QString& what) {
    if (index < 0 || index >= count)
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("表格里没有第 %1 %2（共 %3 %2）。").arg(index).arg(what).arg(count));
}

void checkRow(int row, int rows) {
    checkIndex(row, rows, QStringLiteral("行"));
}

void checkCol(int col, int cols) {
    checkIndex(col, cols, QStringLiteral("列"));
}

/// A header that shows and does nothing else.
void quiet(QHeaderView* header) {
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setMinimumSectionSize(1);
}

/// The edge of the list lies over all its parts, since cells reach to the list's own border.
class Edge : public QWidget {
public:
    explicit Edge(MSFlexGrid* grid) : QWidget(grid) { setAttribute(Qt::WA_TransparentForMouseEvents); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(static_cast<QStyle::PrimitiveElement>(PE_GridEdge), &option, &painter, parentWidget());
    }
};

/// The upright bar, which moves a list that is disabled as well.
class ReadingBar : public QScrollBar {
public:
    explicit ReadingBar(QWidget* list) : QScrollBar(Qt::Vertical, list) {}

protected:
    bool event(QEvent* event) override {
        if (isEnabled())
            return QScrollBar::event(event);
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            mousePressEvent(static_cast<QMouseEvent*>(event));
            return true;
        case QEvent::MouseMove:
            mouseMoveEvent(static_cast<QMouseEvent*>(event));
            return true;
        case QEvent::MouseButtonRelease:
            mouseReleaseEvent(static_cast<QMouseEvent*>(event));
            return true;
        case QEvent::Wheel:
            wheelEvent(static_cast<QWheelEvent*>(event));
            return true;
        default:
            return QScrollBar::event(event);
        }
    }
};

} // namespace

MSFlexGrid::MSFlexGrid(QWidget* parent, const QString& name)
    : QTableView(parent),
      Placed(this),
      m_model(new GridModel(this)),
      m_widths(2, DefaultColWidth),
      m_edge(new Edge(this)) {
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
    setVerticalScrollBar(new ReadingBar(this));
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
    if (rows < 1)
        checkRow(rows, 0);
    m_model->resize(rows, Cols());
    m_row = std::min(m_row, rows - 1);
    changed();
}

int MSFlexGrid::Cols() const {
    return m_model->cols();
}

void MSFlexGrid::setCols(int cols) {
    if (cols < 1)
        checkCol(cols, 0);
    if (cols == Cols())
        return;
    m_model->resize(Rows(), cols);
    m_widths.resize(static_cast<std::size_t>(cols), DefaultColWidth);
    m_col = std::min(m_col, cols - 1);
    m_staleColumns = true;
    changed();
}

void MSFlexGrid::setRow(int row) {
    checkRow(row, Rows());
    m_row = row;
    m_due = Scroll::ToCurrent;
    changed();
}

void MSFlexGrid::setCol(int col) {
    checkCol(col, Cols());
    m_col = col;
    m_due = Scroll::ToCurrent;
    changed();
}

QString MSFlexGrid::Text() const {
    return m_model->cell(m_row, m_col);
}

void MSFlexGrid::setText(const QString& text) {
    setTextMatrix(m_row, m_col, text);
}

QString MSFlexGrid::TextMatrix(int row, int col) const {
    checkRow(row, Rows());
    checkCol(col, Cols());
    return m_model->cell(row, col);
}

QStringList MSFlexGrid::rowTexts(int row) const {
    checkRow(row, Rows());
    return m_model->rowTexts(row);
}

bool MSFlexGrid::isEmpty(int row, int col) const {
    checkRow(row, Rows());
    checkCol(col, Cols());
    return m_model->isEmpty(row, col);
}

int MSFlexGrid::firstEmpty(int row, int from, int behindLast) const {
    checkRow(row, Rows());
    checkCol(from, Cols());
    checkCol(behindLast - 1, Cols());
    return m_model->firstEmpty(row, from, behindLast);
}

void MSFlexGrid::setTextMatrix(int row, int col, const QString& text) {
    checkRow(row, Rows());
    checkCol(col, Cols());
    m_model->setCell(row, col, text);
    changed();
}

double MSFlexGrid::ColWidth(int col) const {
    checkCol(col, Cols());
    return m_widths[static_cast<std::size_t>(col)];
}

void MSFlexGrid::setColWidth(int col, double twips) {
    checkCol(col, Cols());
    m_widths[static_cast<std::size_t>(col)] = twips;
    m_staleColumns = true;
    changed();
}

double MSFlexGrid::RowHeight(int row) const {
    checkRow(row, Rows());
    return DefaultRowHeight;
}

void MSFlexGrid::setRowHeight(int row, double twips) {
    // Every row of every list is of one height; nothing is kept a row, which long lists would pay for.
    checkRow(row, Rows());
    if (twips != DefaultRowHeight)
        throw RuntimeError(RuntimeError::InvalidCall, QStringLiteral("表格的行高只能是 %1。").arg(DefaultRowHeight));
}

double MSFlexGrid::ColPos(int col) {
    checkCol(col, Cols());
    bringUpToDate();
    if (col == 0)
        return 0;
    double left = m_widths[0] - horizontalScrollBar()->value() * TwipsPerPixel;
    for (int c = 1; c < col; ++c)
        left += m_widths[static_cast<std::size_t>(c)];
    return left;
}

double MSFlexGrid::RowPos(int row) {
    checkRow(row, Rows());
    bringUpToDate();
    if (row == 0)
        return 0;
    // Scrolled to its end, the view lays its last row on the lower edge, which need not be a whole row's.
    return DefaultRowHeight + verticalHeader()->sectionViewportPosition(row - 1) * TwipsPerPixel;
}

void MSFlexGrid::RemoveItem(int row) {
    checkRow(row, Rows());
    if (row == 0 || Rows() <= 2)
        throw RuntimeError(30015, QStringLiteral("表格的最后一行不能移除。"));
    m_model->removeRow(row);
    m_row = std::min(m_row, Rows() - 1);
    changed();
}

void MSFlexGrid::setAmountColumns(std::vector<int> columns) {
    m_amounts = std::move(columns);
    viewport()->update();
}

bool MSFlexGrid::isAmountColumn(int col) const {
    return std::find(m_amounts.begin(), m_amounts.end(), col) != m_amounts.end();
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
    checkRow(row, Rows());
    checkCol(col, Cols());
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
    const bool sizeChanged = m_model->rowCount() != Rows() - 1 || m_model->columnCount() != Cols() - 1;
    if (sizeChanged) {
        const int x = horizontalScrollBar()->value(), y = verticalScrollBar()->value();
        m_model->announce();
        m_staleColumns = true;
        layColumns();
        updateGeometries();
        horizontalScrollBar()->setValue(x);
        verticalScrollBar()->setValue(y);
    } else if (m_staleColumns) {
        layColumns();
        updateGeometries();
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
}

void MSFlexGrid::layColumns() {
    m_staleColumns = false;
    verticalHeader()->setFixedWidth(pixelEdge(m_widths[0]));
    double left = m_widths[0];
    for (int col = 1; col < Cols(); ++col) {
        const double right = left + m_widths[static_cast<std::size_t>(col)];
        horizontalHeader()->resizeSection(col - 1, pixelEdge(right) - pixelEdge(left));
        left = right;
    }
}

void MSFlexGrid::updateGeometries() {
    fitLastColumn();
    QTableView::updateGeometries();
}

/// Takes from the last column what it has too much, up to a quarter of it.
void MSFlexGrid::fitLastColumn() {
    const int last = Cols() - 2;
    if (last < 0 || horizontalHeader()->count() != last + 1)
        return; // the view has yet to hear of its columns
    const double width = m_widths.back(), right = std::accumulate(m_widths.begin(), m_widths.end(), 0.0);
    const bool barShown = verticalHeader()->length() > height() - horizontalHeader()->height();
    const int room = this->width() - (barShown ? verticalScrollBar()->sizeHint().width() : 0);
    const int told = pixelEdge(right) - pixelEdge(right - width), excess = std::max(0, pixelEdge(right) - room);
    horizontalHeader()->resizeSection(last, excess <= told / 4 ? told - excess : told);
}

void MSFlexGrid::mousePressEvent(QMouseEvent* event) {
    event->accept();
    pressBegan();
    m_press = event->button() == Qt::LeftButton ? event->position().toPoint() : QPoint(-1, -1);
}

void MSFlexGrid::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const QModelIndex pressed = m_press.x() < 0 ? QModelIndex() : indexAt(m_press);
    m_press = {-1, -1};
    if (event->button() != Qt::LeftButton || !pressed.isValid() || indexAt(event->position().toPoint()) != pressed)
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
    const QWidget* const cover = m_cover;
    const bool held = cover && cover->isVisible();
    const auto move = [this, held](int row, int col) {
        if (held)
            return;
        handlers::enter([&] {
            setRow(std::clamp(row, 1, std::max(1, Rows() - 1)));
            setCol(std::clamp(col, 1, std::max(1, Cols() - 1)));
        });
    };
    const int page = std::max(1, viewport()->height() / pixelEdge(DefaultRowHeight) - 1);
    switch (event->key()) {
    case Qt::Key_Up:
        return move(m_row - 1, m_col);
    case Qt::Key_Down:
        return move(m_row + 1, m_col);
    case Qt::Key_Left:
        return move(m_row, m_col - 1);
    case Qt::Key_Right:
        return move(m_row, m_col + 1);
    case Qt::Key_PageUp:
        return move(m_row - page, m_col);
    case Qt::Key_PageDown:
        return move(m_row + page, m_col);
    case Qt::Key_Home:
        return move(event->modifiers() & Qt::ControlModifier ? 1 : m_row, 1);
    case Qt::Key_End:
        return move(event->modifiers() & Qt::ControlModifier ? Rows() - 1 : m_row, Cols() - 1);
    default:
        event->ignore();
    }
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

bool MSFlexGrid::fits(const QModelIndex& index) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.index = index;
    option.rect = visualRect(index);
    option.text = index.data().toString();
    const QRect room = style()->subElementRect(QStyle::SE_ItemViewItemText, &option, this);
    return option.fontMetrics.horizontalAdvance(option.text) <= room.width();
}

bool MSFlexGrid::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Wheel && !isEnabled()) {
        QCoreApplication::sendEvent(verticalScrollBar(), event);
        return true;
    }
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    // A text that does not fit is told whole.
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    if (index.isValid() && !fits(index))
        QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(index.data().toString()), viewport(),
                           visualRect(index));
    else
        QToolTip::hideText();
    return true;
}

void MSFlexGrid::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    emit scrolled();
}

void MSFlexGrid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    m_edge->setGeometry(rect());
    m_edge->raise();
    emit scrolled();
}

void MSFlexGrid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() != QEvent::EnabledChange)
        return;
    viewport()->update();
    parentWidget()->removeEventFilter(this);
    if (!isEnabled())
        parentWidget()->installEventFilter(this);
}

/// A disabled list cannot have the keyboard; its container hands it the Page keys that nobody wanted.
bool MSFlexGrid::eventFilter(QObject* watched, QEvent* event) {
    if (watched != parentWidget() || event->type() != QEvent::KeyPress || isEnabled() || !isVisible())
        return QTableView::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    verticalScrollBar()->triggerAction(key == Qt::Key_PageUp ? QAbstractSlider::SliderPageStepSub
                                                             : QAbstractSlider::SliderPageStepAdd);
    return true;
}

} // namespace qinghe
