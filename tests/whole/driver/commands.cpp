#include "commands.h"

#include "objects.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QJsonArray>
#include <QLineEdit>
#include <QMenu>
#include <QMetaMethod>
#include <QPixmap>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <array>
#include <map>

namespace driver {

namespace {

QString textIn(const QJsonObject& command, const char* key) {
    return command[QLatin1String(key)].toString();
}

QWidget& widgetIn(const QJsonObject& command) {
    return widgetOnView(textIn(command, "at"));
}

QPoint pairIn(const QJsonObject& command, const char* key, const QPoint& otherwise) {
    const QJsonArray pair = command[QLatin1String(key)].toArray();
    return pair.size() == 2 ? QPoint(pair[0].toInt(), pair[1].toInt()) : otherwise;
}

QPoint pointIn(const QJsonObject& command, const QWidget& widget) {
    return pairIn(command, "point", widget.rect().center());
}

QJsonValue jsonOf(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<QRect>()) {
        const QRect rect = value.toRect();
        return QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()};
    }
    return QJsonValue::fromVariant(value);
}

Outcome get(const QJsonObject& command) {
    const QObject& object = objectAt(textIn(command, "at"));
    const QVariant value = object.property(textIn(command, "property").toUtf8());
    if (!value.isValid())
        throw Refusal{textIn(command, "at") + QStringLiteral(" has no property ") + textIn(command, "property")};
    return {jsonOf(value), {}};
}

QMetaMethod methodOf(const QObject& object, const QByteArray& name, qsizetype arguments) {
    for (int i = 0; i < object.metaObject()->methodCount(); ++i)
        if (const QMetaMethod method = object.metaObject()->method(i);
            method.name() == name && method.parameterCount() == arguments)
            return method;
    return {};
}

Outcome set(const QJsonObject& command) {
    QObject& object = objectAt(textIn(command, "at"));
    if (!object.setProperty(textIn(command, "property").toUtf8(), command[QLatin1String("value")].toVariant()))
        throw Refusal{textIn(command, "at") + QStringLiteral(" has no property ") + textIn(command, "property")};
    return {};
}

/// Calls an invokable with up to two whole numbers.
Outcome call(const QJsonObject& command) {
    QObject& object = objectAt(textIn(command, "at"));
    const QString name = textIn(command, "method");
    const QJsonArray given = command[QLatin1String("arguments")].toArray();
    const std::array<int, 2> numbers{given.at(0).toInt(), given.at(1).toInt()};
    std::array<QGenericArgument, 2> arguments;
    for (std::size_t i = 0; i < std::min(numbers.size(), std::size_t(given.size())); ++i)
        arguments[i] = QGenericArgument("int", &numbers[i]);

    const QMetaMethod method = methodOf(object, name.toUtf8(), given.size());
    QVariant result(method.returnMetaType());
    const QGenericReturnArgument returned =
        result.isValid() ? QGenericReturnArgument(method.typeName(), result.data()) : QGenericReturnArgument();
    if (!method.invoke(&object, Qt::DirectConnection, returned, arguments[0], arguments[1]))
        throw Refusal{textIn(command, "at") + QStringLiteral(" has no such method ") + name};
    return {jsonOf(result), {}};
}

Outcome visible(const QJsonObject& command) {
    const auto* widget = qobject_cast<QWidget*>(&objectAt(textIn(command, "at")));
    return {widget && widget->isVisible(), {}};
}

/// Where the widget lies on the screen, in the screen's own pixels.
Outcome place(const QJsonObject& command) {
    const QWidget& widget = widgetIn(command);
    const qreal scale = widget.devicePixelRatio();
    const QPointF corner = widget.mapToGlobal(QPointF(0, 0)) * scale;
    return {jsonOf(QRect(corner.toPoint(), (QSizeF(widget.size()) * scale).toSize())), {}};
}

Outcome windows(const QJsonObject&) {
    QJsonArray names;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            names.append(nameOf(*window));
    return {names, {}};
}

/// The window that has the keyboard, "" when none of the program's has it.
Outcome keyboard(const QJsonObject&) {
    const QWidget* window = QApplication::activeWindow();
    return {window ? nameOf(*window) : QString(), {}};
}

Outcome message(const QJsonObject&) {
    const QMessageBox* box = messageBox();
    if (!box)
        return {QJsonValue::Null, {}};
    QJsonArray buttons;
    for (const QAbstractButton* button : box->buttons())
        buttons.append(plainCaption(button->text()));
    return {QJsonObject{{QStringLiteral("text"), box->text()},
                        {QStringLiteral("title"), box->windowTitle()},
                        {QStringLiteral("icon"), box->icon()},
                        {QStringLiteral("buttons"), buttons}},
            {}};
}

Outcome answer(const QJsonObject& command) {
    const QMessageBox* box = messageBox();
    if (!box)
        throw Refusal{QStringLiteral("no message is shown")};
    QAbstractButton& button = buttonOf(*box, textIn(command, "button"));
    return {{}, click(button, button.rect().center(), 1)};
}

Outcome clickAt(const QJsonObject& command) {
    QWidget& widget = widgetIn(command);
    return {{}, click(widget, pointIn(command, widget), command[QLatin1String("times")].toInt(1))};
}

Outcome moveTo(const QJsonObject& command) {
    QWidget& widget = widgetIn(command);
    return {{}, move(widget, pointIn(command, widget))};
}

Outcome dragBy(const QJsonObject& command) {
    QWidget& widget = widgetIn(command);
    return {{}, drag(widget, pointIn(command, widget), pairIn(command, "by", {}))};
}

Outcome keyStroke(const QJsonObject& command) {
    return {{}, key(textIn(command, "key"))};
}

Outcome holdKey(const QJsonObject& command) {
    return {{}, hold(textIn(command, "key"))};
}

Outcome typing(const QJsonObject& command) {
    return {{}, type(textIn(command, "text"))};
}

/// A name given to the file chooser in front, as if typed, and confirmed.
Outcome choose(const QJsonObject& command) {
    QWidget* chooser = QApplication::activeModalWidget();
    auto* name = chooser ? chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")) : nullptr;
    if (!name)
        throw Refusal{QStringLiteral("no file chooser is shown")};
    if (!chooser->isActiveWindow())
        throw Refusal{QStringLiteral("the file chooser has not the keyboard yet")};
    name->setText(textIn(command, "file"));
    return {{}, key(QStringLiteral("Return"))};
}

/// The entry of an open menu or list that reads `text`.
Outcome pick(const QJsonObject& command) {
    QWidget* popup = QApplication::activePopupWidget();
    const QString text = textIn(command, "text");
    if (auto* menu = qobject_cast<QMenu*>(popup))
        for (QAction* action : menu->actions())
            if (plainCaption(action->text()) == text)
                return {{}, click(*menu, menu->actionGeometry(action).center(), 1)};
    if (auto* list = popup ? popup->findChild<QAbstractItemView*>() : nullptr)
        for (const QModelIndex& index :
             list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly)) {
            list->scrollTo(index);
            return {{}, click(*list->viewport(), (list->visualRect(index) & list->viewport()->rect()).center(), 1)};
        }
    throw Refusal{QStringLiteral("no open menu or list offers ") + text};
}

/// What the desktop's close button does.
Outcome close(const QJsonObject& command) {
    return {{}, {[window = QPointer<QWidget>(&widgetIn(command))] {
                if (window)
                    window->close();
            }}};
}

/// A picture of a window, or of the whole screen when none is named.
Outcome picture(const QJsonObject& command) {
    const QString path = textIn(command, "at");
    const QPixmap pixmap = path.isEmpty() ? QGuiApplication::primaryScreen()->grabWindow(0) : widgetOnView(path).grab();
    if (!pixmap.save(textIn(command, "file"), "PNG"))
        throw Refusal{QStringLiteral("cannot write ") + textIn(command, "file")};
    return {};
}

using Command = Outcome (*)(const QJsonObject&);
const std::map<QString, Command>& commands() {
    static const std::map<QString, Command> table{
        {QStringLiteral("get"), get},         {QStringLiteral("set"), set},
        {QStringLiteral("call"), call},       {QStringLiteral("visible"), visible},
        {QStringLiteral("windows"), windows}, {QStringLiteral("keyboard"), keyboard},
        {QStringLiteral("message"), message}, {QStringLiteral("answer"), answer},
        {QStringLiteral("click"), clickAt},   {QStringLiteral("move"), moveTo},
        {QStringLiteral("drag"), dragBy},     {QStringLiteral("key"), keyStroke},
        {QStringLiteral("hold"), holdKey},    {QStringLiteral("type"), typing},
        {QStringLiteral("choose"), choose},   {QStringLiteral("pick"), pick},
        {QStringLiteral("close"), close},     {QStringLiteral("picture"), picture},
        {QStringLiteral("place"), place},
    };
    return table;
}

} // namespace

Outcome carryOut(const QJsonObject& command) {
    const auto found = commands().find(textIn(command, "do"));
    if (found == commands().end())
        throw Refusal{QStringLiteral("there is no command ") + textIn(command, "do")};
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // a window may have come this very moment
    return found->second(command);
}

} // namespace driver
