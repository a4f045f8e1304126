#pragma once

#include "core/page_table.h"
#include "core/workbench.h"

#include <functional>
#include <map>

namespace qinghe {

/// The page scheme of the main window: a row of labels selects one page, each page is a frame. Makes labels and frames;
/// a page that has work of its own at its opening binds it with onOpen and calls leaveOthers and bringForward there.
class Navigation {
public:
    Navigation(Form& window, Workbench& bench);

    Frame& frame(const QString& name) const { return *m_frames.at(name); }
    Label& label(const QString& name) const { return *m_labels.at(name); }
    static const Page& page(int code);

    /// Binds the click of the page's label.
    void onOpen(int code, std::function<void()> open);
    /// Binds what follows when a change of page hides this frame, whether it was on view or not.
    void onHidden(const QString& frame, std::function<void()> follow) { m_onHidden[frame] = std::move(follow); }

    /// The first half of a page change: takes the number, unloads the tools, marks the label, hides the other frames.
    void leaveOthers(int code);
    /// The second half: moves the page's frame into its place and shows it, below the row of labels.
    void bringForward(int code);

    // The same two halves for a frame that comes to the front without its label.
    void hideOthers(const QString& frame, const QString& leftAlone = {});
    /// Shows a frame where it stands, before the others and below the row of labels.
    void show(const QString& frame);

    Int16 currentPage = 24;

    /// The labels' colours while the pointer is on the bare form: red for the page in front, black for the others.
    void markCurrent();

private:
    void makeLabels(Form& window);
    void makeFrames(Form& window);

    Workbench& m_bench;
    std::map<QString, Frame*> m_frames;
    std::map<QString, Label*> m_labels;
    std::map<QString, std::function<void()>> m_onHidden;
};

} // namespace qinghe
