#pragma once

#include "controls/label_row.h"
#include "core/page.h"
#include "core/shared.h"

#include <vector>

namespace qinghe {

/// The page scheme of the main window: a row of labels selects one page, each page is a frame. It owns what crosses
/// pages: which one is in front, and that nothing of the others is left with the keyboard. Nobody else shows or hides a
/// page's frame.
class Navigation {
public:
    Navigation(Form& window, Shared& shared);
    Navigation(const Navigation&) = delete;
    Navigation& operator=(const Navigation&) = delete;

    Form& window() const { return m_window; }
    const std::vector<Page*>& pages() const { return m_pages; }

    /// Takes a page in: makes its frame, out of view, and its labels. Called by Page.
    Frame& enter(Page& page);

    // A page change is two halves; a page does its own work between or behind them.
    /// Takes the label's number, unloads the tools, marks the label, hides the other pages; the keyboard goes to the
    /// window.
    void leaveOthers(const Page& opened, PageCode code);
    /// Moves the page's frame into its place and shows it, below the row of labels.
    void bringForward(const Page& page);

    // The same two halves for a page that comes to the front without its label.
    void hideOthers(const Page& opened);
    /// Shows the page's frame where it stands, before the others and below the row of labels.
    void show(const Page& page);

    Int16 currentPage; ///< the PageCode of the label chosen last

    /// The labels' colours while the pointer is on the bare form: red for the page in front, black for the others. The
    /// tab under a label does not go by its colour: it is that of the page in view, whatever the pointer was over.
    void markCurrent();
    /// The page on view; nullptr before the first.
    Page* inView() const;
    /// The label of a code, or nullptr.
    Label* labelOf(PageCode code) const;
    /// Where Tab goes: through the page in view first, then round by the title band and the row of labels.
    std::vector<QWidget*> tabStops() const;

    /// The page that the main window begins with, before any other was on view.
    void begin(const Page& page);

private:
    struct Tab {
        Label* label;
        const PageTab* traits;
    };
    void makeTab(Page& page, const PageTab& tab);
    /// Gives the label of the page in view its tab. A page without a label leaves the one through which it was entered.
    void chooseTab(const Page& shown);
    /// Each label in its own place, or, where two of them would overlap, all in one even row in the same order.
    void placeTabs();

    Form& m_window;
    Shared& m_shared;
    std::vector<Page*> m_pages;
    std::vector<Tab> m_tabs; ///< from left to right
    LabelRow m_row;          ///< the same labels
};

} // namespace qinghe
