#pragma once

#include "controls/style_roles.h"
#include "controls/twips.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

namespace qinghe {

/// A colour as the forms keep it: 0x00BBGGRR.
QColor colourOf(quint32 bgr);
quint32 bgrOf(const QColor& colour);

/// What every control and form has: its place in twips (exact; the pixels are derived from it, never the other way
/// round), two colours, its own visibility, and what the style needs to know of it. A mixin beside the Qt widget.
class Placed {
public:
    virtual ~Placed() = default;
    Placed(const Placed&) = delete;
    Placed& operator=(const Placed&) = delete;

    double Left() const { return m_left; }
    double Top() const { return m_top; }
    double Width() const { return m_width; }
    double Height() const { return m_height; }
    void setLeft(double twips) { place(twips, m_top, m_width, m_height); }
    void setTop(double twips) { place(m_left, twips, m_width, m_height); }
    void setWidth(double twips) { place(m_left, m_top, twips, m_height); }
    void setHeight(double twips) { place(m_left, m_top, m_width, twips); }
    void place(double left, double top, double width, double height);
    void moveTo(double left, double top) { place(left, top, m_width, m_height); }

    quint32 ForeColor() const { return m_fore; }
    void setForeColor(quint32 bgr);
    quint32 BackColor() const { return m_back; }
    void setBackColor(quint32 bgr);

    /// The control's own visibility, which stays as it is while its container is hidden, or while it is covered.
    bool Visible() const { return m_shown; }
    void setShown(bool shown);
    /// A covered control is out of view, whatever its own visibility says, which it keeps.
    void setCovered(bool covered);

    /// What is hidden, covered or disabled has no keyboard: it goes to the refuge, where there is one that can take it,
    /// else to the window, and never on to the next control, which the next key would press.
    void setUsable(bool usable);
    void setFocusRefuge(QWidget* refuge) { m_refuge = refuge; }
    /// Takes the keyboard from this control, or from one inside it.
    void giveUpKeyboard();

    /// Shows the hand while the pointer is over this control.
    void setHandCursor();

    Role role() const { return m_role; }
    void setRole(Role role);
    Glyph glyph() const { return m_glyph; }
    void setGlyph(Glyph glyph);

    QWidget* widget() const { return m_widget; }
    /// The control behind a widget, or nullptr.
    static Placed* of(const QWidget* widget);

protected:
    explicit Placed(QWidget* widget) : m_widget(widget) {}
    /// Brings the pixels in line with the twips.
    virtual void applyPlace();
    /// For forms, whose place can be changed by the desktop: takes what is there.
    void adoptPlace(double left, double top) { m_left = left, m_top = top; }

private:
    void applyVisibility();

    QWidget* m_widget;
    QPointer<QWidget> m_refuge;
    double m_left = 0, m_top = 0, m_width = 0, m_height = 0;
    quint32 m_fore = 0, m_back = 0xFFFFFF;
    bool m_shown = true;
    bool m_covered = false;
    Role m_role = Role::Plain;
    Glyph m_glyph = Glyph::None;
};

} // namespace qinghe

/// The properties under which every control is reached from outside; stands behind Q_OBJECT in each control class.
#define QINGHE_CONTROL                                                                                                 \
    Q_PROPERTY(double Left READ Left WRITE setLeft)                                                                    \
    Q_PROPERTY(double Top READ Top WRITE setTop)                                                                       \
    Q_PROPERTY(double Width READ Width WRITE setWidth)                                                                 \
    Q_PROPERTY(double Height READ Height WRITE setHeight)                                                              \
    Q_PROPERTY(quint32 ForeColor READ ForeColor WRITE setForeColor)                                                    \
    Q_PROPERTY(quint32 BackColor READ BackColor WRITE setBackColor)                                                    \
    Q_PROPERTY(bool Visible READ Visible WRITE setShown)
