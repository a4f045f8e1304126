#include "controls/controls.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <limits>
#include <utility>

namespace qinghe {

namespace {

constexpr int ShortestPaintMs = 17; ///< no more than 60 times a second

/// What every control is set up with.
void introduce(QWidget* control, const QString& name) {
    control->setObjectName(name);
    control->setMouseTracking(true);
}

bool leftInside(const QWidget* control, const QMouseEvent* event) {
    return event->button() == Qt::LeftButton && control->rect().contains(event->position().toPoint());
}

/// Whether this is the mouse on a disabled control: Qt's buttons swallow it, here it is the container's.
bool isContainers(const QWidget* control, QEvent* event) {
    const bool mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease ||
                       event->type() == QEvent::MouseButtonDblClick || event->type() == QEvent::MouseMove;
    if (!mouse || control->isEnabled())
        return false;
    event->ignore();
    return true;
}

/// Lets code set a state without the signal that stands for the user's click.
template<class Button>
void setCheckedQuietly(Button* button, bool on) {
    const QSignalBlocker quiet(button);
    button->setChecked(on);
}

} // namespace

Label::Label(QWidget* parent, const QString& name, const QString& caption) : QLabel(parent), Placed(this) {
    introduce(this, name);
    setTextFormat(Qt::PlainText);
    setText(caption);
}

void Label::setCaption(const QString& caption) {
    if (text() != caption)
        setText(caption);
}

void Label::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawControl(static_cast<QStyle::ControlElement>(CE_Words), &option, &painter, this);
}

void Label::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->button() == Qt::LeftButton;
    pressBegan();
    event->accept();
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (std::exchange(m_pressed, false) && leftInside(this, event))
        Click.fromQt();
}

void Label::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!DblClick) {
        mousePressEvent(event);
        return;
    }
    event->accept();
    m_pressed = false;
    if (event->button() == Qt::LeftButton && pressBeganHere())
        DblClick.fromQt();
}

void Label::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    MouseMove.fromQt();
}

Image::Image(QWidget* parent, const QString& name) : Label(parent, name) {}

void Image::setPicture(QImage picture) {
    m_picture = std::move(picture);
    update();
}

void Image::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawControl(static_cast<QStyle::ControlElement>(CE_Image), &option, &painter, this);
}

CommandButton::CommandButton(QWidget* parent, const QString& name, const QString& caption)
    : QPushButton(caption, parent), Placed(this) {
    introduce(this, name);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { Click.fromQt(); });
}

bool CommandButton::event(QEvent* event) {
    return !isContainers(this, event) && QPushButton::event(event);
}

void CommandButton::mouseMoveEvent(QMouseEvent* event) {
    QPushButton::mouseMoveEvent(event);
    event->accept();
    MouseMove.fromQt();
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
    // Enter presses the button that has the keyboard, as Space does.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat())
            click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

OptionButton::OptionButton(QWidget* parent, const QString& name, const QString& caption)
    : QRadioButton(caption, parent), Placed(this) {
    introduce(this, name);
    connect(this, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            Click.fromQt();
    });
}

void OptionButton::setValue(bool value) {
    if (value == isChecked())
        return;
    if (value) {
        for (OptionButton* other : parentWidget()->findChildren<OptionButton*>(Qt::FindDirectChildrenOnly))
            if (other != this)
                other->setValue(false);
        setCheckedQuietly(this, true);
        Click.raise();
    } else {
        // An exclusive group refuses to be left without a choice.
        setAutoExclusive(false);
        setCheckedQuietly(this, false);
        setAutoExclusive(true);
    }
}

bool OptionButton::event(QEvent* event) {
    return !isContainers(this, event) && QRadioButton::event(event);
}

void OptionButton::mouseMoveEvent(QMouseEvent* event) {
    QRadioButton::mouseMoveEvent(event);
    event->accept();
    MouseMove.fromQt();
}

CheckBox::CheckBox(QWidget* parent, const QString& name, const QString& caption)
    : QCheckBox(caption, parent), Placed(this) {
    introduce(this, name);
    connect(this, &QCheckBox::toggled, this, [this] { Click.fromQt(); });
}

void CheckBox::setValue(bool value) {
    if (value == isChecked())
        return;
    setCheckedQuietly(this, value);
    Click.raise();
}

bool CheckBox::event(QEvent* event) {
    return !isContainers(this, event) && QCheckBox::event(event);
}

void CheckBox::mouseMoveEvent(QMouseEvent* event) {
    QCheckBox::mouseMoveEvent(event);
    event->accept();
    MouseMove.fromQt();
}

Frame::Frame(QWidget* parent, const QString& name, const QString& caption) : QGroupBox(caption, parent), Placed(this) {
    introduce(this, name);
}

void Frame::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->button() == Qt::LeftButton;
    pressBegan();
    event->accept();
}

void Frame::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (std::exchange(m_pressed, false) && leftInside(this, event))
        Click.fromQt();
}

void Frame::mouseDoubleClickEvent(QMouseEvent* event) {
    // Not a second click: a double click on a cell ends here when the editor over it is disabled.
    m_pressed = false;
    event->accept();
}

void Frame::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    MouseMove.fromQt();
}

ProgressBar::ProgressBar(QWidget* parent, const QString& name) : QProgressBar(parent), Placed(this) {
    introduce(this, name);
}

void ProgressBar::setMax(qint64 max) {
    m_step = max / std::numeric_limits<int>::max() + 1;
    setMaximum(static_cast<int>(max / m_step));
    m_sincePainted.invalidate();
}

void ProgressBar::setValue(qint64 value) {
    const bool tooSoon = m_sincePainted.isValid() && m_sincePainted.elapsed() < ShortestPaintMs;
    if (tooSoon && value > 0 && value / m_step < maximum())
        return;
    m_sincePainted.start();
    QProgressBar::setValue(static_cast<int>(value / m_step)); // paints where it is on view
}

} // namespace qinghe
