#pragma once

#include "controls/controls.h"
#include "core/names.h"

#include <span>
#include <vector>

namespace qinghe {

struct EditorTarget;

class Navigation;
class RescuedTexts;

/// A label in the row across the top of the main window.
struct PageTab {
    QStringView label;
    QStringView caption;
    double left; ///< twips; where labels would lie over one another, only the order counts (Navigation)
    PageCode code;
};

/// A page as the navigation knows it. Twips.
struct PageTraits {
    QStringView frame;
    QStringView caption; ///< of the frame at first
    double left, top, width, height;
    std::span<const PageTab> tabs = {}; ///< none for a page that is entered in another way
    QStringView leavesAlone = {};       ///< the frame that stays as it stands behind this page
};

/// The buttons that the keys for adding and for saving press; nullptr where there is none.
struct KeyedButtons {
    CommandButton* add = nullptr;
    CommandButton* save = nullptr;
};

/// A page of the main window: a frame, what brings it to the front, and what it does when others do something that
/// concerns it. It enters itself with the navigation, which makes frame and labels and alone shows and hides frames.
class Page : public QObject {
    Q_OBJECT

public:
    /// Both outlive the page; the frame's window owns it.
    Page(Navigation& navigation, const PageTraits& traits);

    const PageTraits& traits() const { return m_traits; }
    Frame& frame() const { return m_frame; }

    /// The click of one of the page's labels.
    virtual void tabClicked(PageCode code) { Q_UNUSED(code) }
    /// Another page has been chosen, whether this one was on view or not.
    virtual void left() {}
    /// A click on the bare ground of the main window, whatever page is on view.
    virtual void formClicked() {}
    /// The main window loads: what is stored of the page's settings is to be shown, and to take effect.
    virtual void windowLoads() {}
    /// A run-time error ends the program: what was typed here and is not in the book is to be told.
    virtual void rescue(RescuedTexts& texts) const { Q_UNUSED(texts) }
    /// The lists on this page in which words can be looked for at present (FindBar), the usual one first.
    virtual std::vector<EditorTarget> searchedLists() const;
    /// What the keys for adding and for saving press at present (WindowKeys).
    virtual KeyedButtons keyedButtons() const { return {}; }

protected:
    Navigation& navigation() const { return m_navigation; }

private:
    Navigation& m_navigation;
    const PageTraits& m_traits;
    Frame& m_frame;
};

} // namespace qinghe
