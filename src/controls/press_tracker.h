#pragma once

#include <QMouseEvent>
#include <QWidget>

#include <optional>

namespace qinghe {

/// Follows the mouse from its press on one control to the release, and tells whether that is a click: the left button
/// went down and up on the same control, and no other went down between. A control has one of its own.
class PressTracker {
public:
    PressTracker() = default;
    ~PressTracker();
    PressTracker(const PressTracker&) = delete;
    PressTracker& operator=(const PressTracker&) = delete;

    /// A button goes down on the control.
    void press(const QMouseEvent& event);
    /// A button goes up: where the left one went down, if it is that one and went down here.
    std::optional<QPoint> release(const QMouseEvent& event);
    /// A button goes up: whether that is a click on the control.
    bool releasedOn(const QWidget& control, const QMouseEvent& event);
    /// The press becomes no click.
    void forget() { m_at.reset(); }

    /// Whether the last press that was followed anywhere began here. The second press of a double click that began
    /// elsewhere is nobody's: by then another control may lie under the pointer, such as the box over a cell.
    bool isLast() const { return lastPressed == this; }

private:
    static inline const PressTracker* lastPressed = nullptr;

    std::optional<QPoint> m_at; ///< in the control's pixels
};

} // namespace qinghe
