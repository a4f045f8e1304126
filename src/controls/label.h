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

    Event<> DblClick;
    /// The tool tip is about to be shown and may be set anew.
    Event<> ToolTipAsked;

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;

    /// Has the style paint one of its own elements.
    void paintElement(StyleElement element);

private:
    bool m_announced = false;
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
