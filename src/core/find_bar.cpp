#include "core/find_bar.h"

#include "controls/key_presses.h"
#include "core/grid_search.h"
#include "core/hover.h"

#include <QKeyEvent>

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

// Twips. A narrow list has no room for the captions of the buttons.
constexpr double BarHeight = 480, Gap = 90, ControlTop = 60, ControlHeight = 330;
constexpr double WidestWords = 3600, WordsShare = 0.38;
constexpr double NarrowList = 6000, WideButton = 1080, ArrowButton = 420;

CommandButton* button(Frame* bar, const QString& caption, Glyph glyph, const QString& tip) {
    auto* made = new CommandButton(bar, {}, caption);
    made->setGlyph(glyph);
    made->setToolTip(tip);
    showHandOver(made);
    return made;
}

bool isBefore(const GridCell& one, const GridCell& other) {
    return one.row != other.row ? one.row < other.row : one.col < other.col;
}

} // namespace

FindBar::FindBar(MainWindow& window)
    : Frame(&window, {}),
      m_window(window),
      m_shared(window.shared()),
      m_words(new TextBox(this, {})),
      m_previous(button(this, u"上一处"_s, Glyph::Back, u"上一处（Shift+回车）"_s)),
      m_next(button(this, u"下一处"_s, Glyph::Forward, u"下一处（回车）"_s)),
      m_note(new Label(this, {})),
      m_close(button(this, u"关闭"_s, Glyph::Close, u"关闭（Esc）"_s)) {
    setRole(Role::StripFrame);
    setShown(false);
    m_close->setRole(Role::PickerArrow);
    setAccessibleName(u"查找"_s);
    m_words->setAccessibleName(u"要查找的内容"_s);
    m_note->setAnnounced();
    m_words->setPlaceholderText(u"查找"_s);
    m_words->installEventFilter(this);
    m_words->Change = [this] { find(Way::Here); };
    m_words->KeyPress = [this](int key) {
        if (key == key_presses::Enter)
            find(Way::Next);
        else if (key == key_presses::Escape)
            close();
    };
    m_previous->Click = [this] { find(Way::Previous); };
    m_next->Click = [this] { find(Way::Next); };
    m_close->Click = [this] { close(); };
}

// ---- coming and going

std::vector<EditorTarget> FindBar::offered() const {
    const Page* const page = m_window.navigation().inView();
    return page ? page->searchedLists() : std::vector<EditorTarget>();
}

void FindBar::open() {
    const std::vector<EditorTarget> lists = offered();
    if (lists.empty())
        return;
    const auto isUsed = [](const EditorTarget& list) { return list.grid->hasFocus() || list.box->hasFocus(); };
    auto chosen = std::ranges::find_if(lists, isUsed);
    if (chosen == lists.end())
        chosen = std::ranges::find(lists, m_list.grid, &EditorTarget::grid);
    serve(chosen == lists.end() ? lists.front() : *chosen);
    m_words->selectAll();
    m_words->takeFocus();
}

void FindBar::serve(const EditorTarget& list) {
    if (list.grid == m_list.grid)
        return;
    close();
    m_list = list;
    setParent(m_list.grid->parentWidget());
    layOut();
    setShown(true);
    raise();
    m_following = connect(m_list.grid, &MSFlexGrid::scrolled, this, &FindBar::follow);
    follow();
    note({});
}

void FindBar::layOut() {
    const MSFlexGrid& grid = *m_list.grid;
    place(grid.Left(), grid.Top() + grid.Height() - BarHeight, grid.Width(), BarHeight);
    m_isNarrow = grid.Width() < NarrowList;
    double left = Gap;
    const auto put = [&left](Placed& control, double width) {
        control.place(left, ControlTop, width, ControlHeight);
        left += width + Gap;
    };
    put(*m_words, std::min(WidestWords, grid.Width() * WordsShare));
    for (CommandButton* step : {m_previous, m_next}) {
        step->setRole(m_isNarrow ? Role::PickerArrow : Role::Plain);
        put(*step, m_isNarrow ? ArrowButton : WideButton);
    }
    const double end = grid.Width() - Gap - ArrowButton;
    put(*m_note, end - Gap - left);
    put(*m_close, ArrowButton);
}

/// The list ends where the bar begins, whoever lays it out anew; what is no longer offered needs no bar.
void FindBar::follow() {
    const std::vector<EditorTarget> lists = offered();
    if (std::ranges::find(lists, m_list.grid, &EditorTarget::grid) == lists.end())
        return close();
    if (m_list.grid->geometry().bottom() >= y())
        m_list.grid->resize(m_list.grid->width(), y() - m_list.grid->y());
}

void FindBar::close() {
    if (!m_list.grid)
        return;
    disconnect(m_following);
    MSFlexGrid& grid = *std::exchange(m_list, {}).grid;
    const bool hadKeyboard = isAncestorOf(window()->focusWidget());
    setShown(false);
    grid.setMarked(false);
    grid.setHeight(grid.Height());
    if (hadKeyboard && grid.isEnabled())
        grid.takeFocus();
}

void FindBar::hideEvent(QHideEvent* event) {
    Frame::hideEvent(event);
    if (!event->spontaneous())
        close();
}

// ---- finding

bool FindBar::isTypingOpen() const {
    const Form* calculator = m_shared.forms.loaded(names::Calculator);
    return m_list.box->Visible() &&
           (m_list.box->Text() != m_list.grid->Text() || (calculator && calculator->Visible()));
}

void FindBar::find(Way way) {
    if (!m_list.grid)
        return;
    const std::vector<GridCell> cells = cellsThatHold(*m_list.grid, m_words->Text());
    if (cells.empty())
        return note(m_words->Text().isEmpty() ? QString() : u"没有找到"_s);
    if (isTypingOpen())
        return note(m_isNarrow ? u"先按回车或 Esc"_s : u"格子里的内容还没有填入，先在那里按回车或 Esc"_s,
                    u"先回到格子里，按回车填入，或按 Esc 放弃，再来查找。"_s);
    const GridCell current{m_list.grid->Row(), m_list.grid->Col()};
    auto found = way == Way::Next ? std::ranges::upper_bound(cells, current, isBefore)
                                  : std::ranges::lower_bound(cells, current, isBefore);
    if (way == Way::Previous)
        found = found == cells.begin() ? std::prev(cells.end()) : std::prev(found);
    else if (found == cells.end())
        found = cells.begin();
    moveTo(found->row, found->col);
    const auto place = found - cells.begin() + 1;
    note(u"%1 / %2"_s.arg(place).arg(cells.size()), u"第 %1 处，共 %2 处"_s.arg(place).arg(cells.size()),
         u"：第%1行，%2，%3"_s.arg(QString::number(found->row), m_list.grid->TextMatrix(0, found->col),
                                   m_list.grid->TextMatrix(found->row, found->col)));
}

void FindBar::moveTo(int row, int col) {
    MSFlexGrid& grid = *m_list.grid;
    if (m_list.box->Visible()) {
        m_list.box->setShown(false);
        m_shared.unloadPickers();
    }
    grid.setMarked(true);
    grid.setRow(row);
    grid.setCol(col);
    // A box out of sight is committed by a click on the bare form, into the current cell: it must not bring there what
    // stood in another. A report takes none.
    if (grid.isEnabled())
        m_list.box->setBoxText(grid.Text());
}

void FindBar::note(const QString& words, const QString& tip, const QString& cell) {
    m_note->setAccessibleName(cell.isEmpty() ? tip : tip + cell); // before it is announced
    m_note->setCaption(words);
    m_note->setToolTip(tip);
}

// ---- keys

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_words || event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    if (!key_presses::isEnter(key->key()) || !(key->modifiers() & Qt::ShiftModifier))
        return false;
    handlers::enter([this] { find(Way::Previous); });
    return true;
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    handlers::enter([&] {
        if (event->matches(QKeySequence::FindNext) || event->key() == Qt::Key_Down)
            find(Way::Next);
        else if (event->matches(QKeySequence::FindPrevious) || event->key() == Qt::Key_Up)
            find(Way::Previous);
        else if (event->key() == Qt::Key_Escape)
            close();
    });
    event->accept();
}

} // namespace qinghe
