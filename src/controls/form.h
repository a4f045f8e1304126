#pragma once

#include "controls/event.h"
#include "controls/placed.h"
#include "controls/press_tracker.h"

#include <QImage>
#include <QPolygon>
#include <QWidget>

#include <optional>
#include <vector>

namespace qinghe {

class Forms;

/// A window. Left and Top are the desktop's, in twips, and follow real moves; the size is the form's own, and no
/// desktop has it fill the screen. A form is made and loaded by its first use (see Forms) and forgets everything when
/// it is unloaded.
class Form : public QWidget, public Placed {
    Q_OBJECT
    QINGHE_CONTROL

public:
    enum class Kind {
        Frameless, ///< draws its own title bar
        Dialog,    ///< the desktop's title bar, no resizing; stays above its owner where it has one; Esc closes it
        Tool,      ///< stays above its owner, takes the keyboard
        QuietTool, ///< stays above its owner and leaves the keyboard where it is
        Notice,    ///< comes up over all windows and leaves the keyboard where it is until it is clicked
    };
    Form(const QString& name, Kind kind, Ground ground, QWidget* owner = nullptr);
    ~Form() override;

    Ground ground() const { return m_ground; }
    const QImage& picture() const { return m_picture; }
    void setPicture(QImage picture);

    QString Caption() const { return windowTitle(); }
    void setCaption(const QString& caption) { setWindowTitle(caption); }

    int WindowState() const; ///< 0 normal, 1 minimised
    void setWindowState(int state);

    /// Gives the form this size (twips), in the middle of another one, or of the screen.
    void placeInMiddle(double width, double height, const Form* of = nullptr);
    /// The height of the screen in whose middle forms come up, less what the desktop keeps for itself; twips.
    static double roomHeight();
    /// Shows the form without blocking.
    void showForm();
    /// Gives the window the shape of a polygon, in pixels.
    void setShape(const QPolygon& points);
    /// Keeps a window that hangs under a field on the screen, and off the field, given as it lies on the screen: where
    /// there is no room below, the window goes above it, and where there is none either, beside it.
    void keepOnScreen(const QRect& field = {});

    /// The load handler; called once by Forms. The base has nothing to do.
    virtual void load() {}
    /// Takes the form away, as Forms::unload does.
    void unload();
    /// What goes before the form; called once by Forms.
    virtual void unloaded() {}

    Event<> Click;
    Event<double, double> MouseDown; ///< twips inside the form
    Event<double, double> MouseMove;
    Event<double, double> MouseUp;
    Event<> Resize;     ///< a change of size or of window state
    Event<> CloseAsked; ///< the desktop's close button; without a handler the form unloads

protected:
    void applyPlace() override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void moveEvent(QMoveEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void changeEvent(QEvent*) override;
    void closeEvent(QCloseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    bool focusNextPrevChild(bool next) override;
    /// The controls in the order in which Tab comes to them, the first one when the form itself has the keyboard.
    virtual std::vector<QWidget*> tabStops() const;

private:
    friend class Forms;
    /// Where the pointer is inside the form, by its place on the screen.
    QPointF twipsAt(const QMouseEvent* event) const;
    void hang();
    QSize frameSize() const { return frameGeometry().size() - size(); }

    Forms* m_forms = nullptr;
    Kind m_kind;
    Ground m_ground;
    QImage m_picture;
    PressTracker m_press;
    bool m_moved = false; ///< the window, since the press

    /// Where a window hangs that is kept on the screen.
    struct Hanging {
        QRect field;
        QPoint asked; ///< the place that it was shown at
        QSize frame;  ///< what the desktop had put round it when it was placed
    };
    std::optional<Hanging> m_hanging;
};

} // namespace qinghe
