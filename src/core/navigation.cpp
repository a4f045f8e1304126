#include "core/navigation.h"

#include "controls/accessible.h"
#include "controls/tab_order.h"
#include "core/ink.h"

#include <algorithm>

namespace qinghe {

namespace {

constexpr double TabTop = 1080, TabWidth = 960, TabHeight = 480; // twips

} // namespace

Navigation::Navigation(Form& window, Shared& shared) : m_window(window), m_shared(shared) {}

Frame& Navigation::enter(Page& page) {
    const PageTraits& traits = page.traits();
    auto* frame = new Frame(&m_window, traits.frame.toString(), traits.caption.toString());
    frame->setRole(Role::PageFrame);
    frame->setShown(false);
    for (const PageTab& tab : traits.tabs)
        makeTab(page, tab);
    m_pages.push_back(&page);
    return *frame;
}

void Navigation::makeTab(Page& page, const PageTab& tab) {
    auto* label = new Label(&m_window, tab.label.toString(), tab.caption.toString());
    label->setRole(Role::PageLabel);
    label->MouseMove = [label] {
        label->setForeColor(ink::Red);
        label->setHandCursor();
    };
    label->Click = [&page, code = tab.code] { page.tabClicked(code); };
    m_tabs.push_back({label, &tab});
    std::ranges::stable_sort(m_tabs, {}, [](const Tab& each) { return each.traits->left; });
    placeTabs();
    std::vector<Label*> labels;
    std::ranges::transform(m_tabs, std::back_inserter(labels), &Tab::label);
    m_row.setLabels(labels);
}

void Navigation::placeTabs() {
    const bool crowded = std::ranges::adjacent_find(m_tabs, [](const Tab& one, const Tab& next) {
                             return next.traits->left - one.traits->left < TabWidth;
                         }) != m_tabs.end();
    const double share = m_window.Width() / static_cast<double>(m_tabs.size());
    double even = 0;
    for (const Tab& tab : m_tabs) {
        tab.label->place(crowded ? even : tab.traits->left, TabTop, crowded ? std::min(share, TabWidth) : TabWidth,
                         TabHeight);
        even += share;
    }
}

void Navigation::leaveOthers(const Page& opened, PageCode code) {
    currentPage = static_cast<int>(code);
    m_shared.unloadTools();
    markCurrent();
    hideOthers(opened);
}

void Navigation::hideOthers(const Page& opened) {
    for (Page* page : m_pages) {
        // Also of the page that is opened once more: what had the keyboard belonged to its last visit.
        page->frame().giveUpKeyboard();
        if (page == &opened || page->traits().frame == opened.traits().leavesAlone)
            continue;
        page->frame().setShown(false);
        page->left();
    }
}

void Navigation::bringForward(const Page& page) {
    const PageTraits& place = page.traits();
    page.frame().place(place.left, place.top, place.width, place.height);
    show(page);
}

void Navigation::show(const Page& shown) {
    for (const Page* page : m_pages)
        page->frame().setCovered(page != &shown);
    shown.frame().setShown(true);
    shown.frame().raise();
    for (const Tab& tab : m_tabs)
        tab.label->raise();
    chooseTab(shown);
}

Page* Navigation::inView() const {
    const auto shown = std::ranges::find_if(m_pages, [](const Page* page) { return page->frame().isVisible(); });
    return shown == m_pages.end() ? nullptr : *shown;
}

Label* Navigation::labelOf(PageCode code) const {
    const auto tab = std::ranges::find(m_tabs, code, [](const Tab& each) { return each.traits->code; });
    return tab == m_tabs.end() ? nullptr : tab->label;
}

std::vector<QWidget*> Navigation::tabStops() const {
    const Page* const shown = inView();
    std::vector<const QWidget*> frames;
    for (const Page* page : m_pages)
        frames.push_back(&page->frame());
    std::vector<QWidget*> stops = shown ? tabStopsIn(shown->frame()) : std::vector<QWidget*>();
    std::ranges::copy(tabStopsIn(m_window, frames), std::back_inserter(stops));
    return stops;
}

void Navigation::chooseTab(const Page& shown) {
    const auto& own = shown.traits().tabs;
    if (own.empty())
        return;
    // A page that came to the front without a click on one of its labels has one label alone.
    const auto chosen = std::ranges::find(own, static_cast<PageCode>(static_cast<int>(currentPage)), &PageTab::code);
    const PageTab* tab = chosen == own.end() ? own.data() : &*chosen;
    for (const Tab& each : m_tabs) {
        each.label->setRole(each.traits == tab ? Role::ChosenLabel : Role::PageLabel);
        if (each.traits == tab) {
            m_row.choose(*each.label);
            accessible::tell(*each.label, QAccessible::Selection);
        }
    }
}

void Navigation::markCurrent() {
    for (const Tab& tab : m_tabs)
        tab.label->setForeColor(static_cast<int>(tab.traits->code) == currentPage ? ink::Red : ink::Black);
}

void Navigation::begin(const Page& page) {
    currentPage = static_cast<int>(page.traits().tabs.front().code);
    markCurrent();
    bringForward(page);
}

} // namespace qinghe
