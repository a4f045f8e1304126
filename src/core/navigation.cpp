#include "core/navigation.h"

#include <algorithm>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Red = 255, Black = 0;
constexpr int SchedulePage = 23;

QString name(const char16_t* text) {
    return QString::fromUtf16(text);
}

} // namespace

Navigation::Navigation(Form& window, Workbench& bench) : m_bench(bench) {
    makeFrames(window);
    makeLabels(window);
}

void Navigation::makeFrames(Form& window) {
    for (const PageFrame& entry : PageFrames) {
        auto* frame = new Frame(&window, name(entry.name), name(entry.caption));
        frame->setRole(entry.name == u"Frame13"_s ? Role::DesktopFrame : Role::PageFrame);
        frame->setShown(false);
        m_frames[frame->objectName()] = frame;
    }
    // Until it is opened the categories' frame is a small strip beside the window.
    m_frames.at(u"Frame3"_s)->place(13200, 1440, 975, 255);
}

void Navigation::makeLabels(Form& window) {
    for (const Page& page : Pages) {
        auto* label = new Label(&window, name(page.label), name(page.caption));
        label->place(page.labelLeft, 1080, 960, 480);
        label->setRole(Role::PageLabel);
        label->MouseMove = [label] {
            label->setForeColor(Red);
            label->setHandCursor();
        };
        m_labels[label->objectName()] = label;
        // A page without work of its own is only brought forward.
        onOpen(page.code, [this, code = page.code] {
            leaveOthers(code);
            bringForward(code);
        });
    }
}

const Page& Navigation::page(int code) {
    return *std::find_if(Pages.begin(), Pages.end(), [code](const Page& page) { return page.code == code; });
}

void Navigation::onOpen(int code, std::function<void()> open) {
    label(name(page(code).label)).Click = std::move(open);
}

void Navigation::leaveOthers(int code) {
    const Page& opened = page(code);
    currentPage = code;
    m_bench.unloadTools();
    markCurrent();
    // The schedule leaves the users' page as it stands behind it, and is meant to.
    hideOthers(name(opened.frame), code == SchedulePage ? u"Frame7"_s : QString());
}

void Navigation::hideOthers(const QString& front, const QString& leftAlone) {
    for (auto& [frameName, frame] : m_frames) {
        if (frameName == front || frameName == leftAlone)
            continue;
        frame->setShown(false);
        if (const auto bound = m_onHidden.find(frameName); bound != m_onHidden.end())
            bound->second();
    }
}

void Navigation::bringForward(int code) {
    const Page& opened = page(code);
    Frame& front = frame(name(opened.frame));
    front.place(opened.left, opened.top, opened.width, opened.height);
    show(front.objectName());
}

void Navigation::show(const QString& front) {
    frame(front).setShown(true);
    frame(front).raise();
    for (auto& [labelName, label] : m_labels)
        label->raise();
}

void Navigation::markCurrent() {
    for (const Page& page : Pages)
        label(name(page.label)).setForeColor(page.code == currentPage ? Red : Black);
}

} // namespace qinghe
