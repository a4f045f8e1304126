#pragma once

#include "controls/control.h"

#include <QImage>
#include <QLabel>

namespace qinghe {

/// Words, or what else its role is. A double click that nobody asks for is two clicks.
class Label : public WithClicks<WithMoves<QLabel>> {
    Q_OBJECT
    QINGHE_CONTROL

public:
    Label(QWidget* parent, const QString& name, const QString& caption = {});

    QString Caption() const { return text(); }
    void setCaption(const QString& caption);

    /// What it comes to say is told to a screen reader at once: for words that come by themselves.
    void setAnnounced() { m_announced = true; }
    bool isAnnounced() const { return m_announced; }

    /// Tab comes to it, and Enter and Space click it; a click of the mouse leaves the keyboard where it is. What it
    /// tells in a tool tip it tells whoever comes to it by a key, too.
    void setReachable();
    bool isReachable() const { return m_reachable; }

    /// A character that the style shows beside the words: the key that clicks the label. None while it is empty.
    void setKeyHint(const QString& character);
    const QString& keyHint() const { return m_keyHint; }

    Event<> DblClick;
    /// The tool tip is about to be shown and may be set anew.
    Event<> ToolTipAsked;

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override;

    /// Has the style paint one of its own elements.
    void paintElement(StyleElement element);

private:
    bool m_announced = false;
    bool m_reachable = false;
    QString m_keyHint;
};

/// A picture that fills its control, or a glyph of the set.
class Image : public Label {
    Q_OBJECT

public:
    Image(QWidget* parent, const QString& name);

    const QImage& picture() const { return m_picture; }
    void setPicture(QImage picture);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QImage m_picture;
};

} // namespace qinghe
