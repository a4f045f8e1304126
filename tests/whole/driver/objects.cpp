#include "objects.h"

#include <QAbstractButton>
#include <QApplication>

namespace driver {

namespace {

/// A window that was closed may still wait for its end beside a new one of the same name: the one on view is meant.
QWidget* window(const QString& name) {
    QWidget* found = nullptr;
    for (QWidget* candidate : QApplication::topLevelWidgets())
        if (nameOf(*candidate) == name && (!found || candidate->isVisible()))
            found = candidate;
    return found;
}

} // namespace

QString nameOf(const QObject& object) {
    return object.objectName().isEmpty() ? QString::fromLatin1(object.metaObject()->className()) : object.objectName();
}

QObject& objectAt(const QString& path) {
    const QStringList names = path.split(u'/');
    QObject* object = window(names.first());
    for (qsizetype i = 1; object && i < names.size(); ++i)
        object = object->findChild<QObject*>(names[i]);
    if (!object)
        throw Refusal{QStringLiteral("there is no ") + path};
    return *object;
}

QWidget& widgetOnView(const QString& path) {
    auto* widget = qobject_cast<QWidget*>(&objectAt(path));
    if (!widget)
        throw Refusal{path + QStringLiteral(" is no widget")};
    if (!widget->isVisible())
        throw Refusal{path + QStringLiteral(" is not on view")};
    return *widget;
}

QMessageBox* messageBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

QAbstractButton& buttonOf(const QMessageBox& box, const QString& caption) {
    for (QAbstractButton* button : box.buttons())
        if (plainCaption(button->text()) == caption)
            return *button;
    throw Refusal{QStringLiteral("the message \"%1\" has no button %2").arg(box.text(), caption)};
}

QString plainCaption(QString caption) {
    return caption.remove(u'&');
}

void checkInReach(const QWidget& widget, const QPoint& point) {
    const QWidget* window = widget.window();
    const QWidget* front = QApplication::activePopupWidget();
    if (!front)
        front = QApplication::activeModalWidget();
    if (front && front != window)
        throw Refusal{nameOf(widget) + QStringLiteral(" is out of reach behind ") + front->windowTitle()};

    const QPoint inWindow = widget.mapTo(window, point);
    const QWidget* hit = window->childAt(inWindow);
    if (!hit && window->rect().contains(inWindow))
        hit = window;
    if (!hit)
        throw Refusal{QStringLiteral("%1 lies outside its window at %2,%3 of %4 x %5")
                          .arg(nameOf(widget))
                          .arg(inWindow.x())
                          .arg(inWindow.y())
                          .arg(window->width())
                          .arg(window->height())};
    if (hit != &widget && !widget.isAncestorOf(hit))
        throw Refusal{QStringLiteral("%1 is covered at %2,%3 by %4")
                          .arg(nameOf(widget))
                          .arg(inWindow.x())
                          .arg(inWindow.y())
                          .arg(nameOf(*hit))};
}

} // namespace driver
