#pragma once

#include "controls/event.h"
#include "controls/placed.h"
#include "controls/press_tracker.h"

/// The schemes of controls that are a widget of Qt's: its name (objectName) and its place in twips, then what it tells
/// of the mouse. A press belongs to the control under the pointer and never reaches its container; a disabled control
/// hands it to its container.
namespace qinghe {

template<class Widget>
class Control : public Widget, public Placed {
public:
    Control(QWidget* parent, const QString& name) : Widget(parent), Placed(this) { this->setObjectName(name); }
};

/// A control that tells how the pointer moves over it.
template<class Widget>
class WithMoves : public Control<Widget> {
public:
    WithMoves(QWidget* parent, const QString& name) : Control<Widget>(parent, name) { this->setMouseTracking(true); }

    Event<> MouseMove;

protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        Widget::mouseMoveEvent(event);
        event->accept();
        MouseMove.fromQt();
    }
};

/// A control that tells its clicks: a press and a release on it.
template<class Base>
class WithClicks : public Base {
public:
    using Base::Base;

    Event<> Click;

protected:
    void mousePressEvent(QMouseEvent* event) override {
        m_press.press(*event);
        Base::mousePressEvent(event);
        event->accept();
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        const bool clicked = m_press.releasedOn(*this, *event);
        Base::mouseReleaseEvent(event);
        event->accept();
        if (clicked)
            Click.fromQt();
    }

    PressTracker m_press;
};

} // namespace qinghe
