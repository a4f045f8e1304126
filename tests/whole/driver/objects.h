#pragma once

#include <QMessageBox>
#include <QPoint>
#include <QString>
#include <QWidget>

/// Finds what a test names inside the running program. A name is a path: "Form2/Command6" is the object called Command6
/// anywhere inside the window called Form2; what has no name of its own goes by its class.
namespace driver {

/// Why a command cannot be carried out; goes back to the test.
struct Refusal {
    QString why;
};

QString nameOf(const QObject& object);

/// Throws Refusal when there is none.
QObject& objectAt(const QString& path);
/// The widget, when a user could see it now. Throws Refusal.
QWidget& widgetOnView(const QString& path);

/// The message box in front, or nullptr.
QMessageBox* messageBox();
QAbstractButton& buttonOf(const QMessageBox& box, const QString& caption);

/// A caption without the mark of its keyboard shortcut.
QString plainCaption(QString caption);

/// Throws Refusal unless a press at `point` of the widget would reach it: nothing lies over it, no box is in front.
void checkInReach(const QWidget& widget, const QPoint& point);

} // namespace driver
