#include "controls/accessible.h"

#include "controls/combo_accessible.h"
#include "controls/container_accessible.h"
#include "controls/form.h"
#include "controls/frame.h"
#include "controls/grid_accessible.h"
#include "controls/label_accessible.h"

namespace qinghe::accessible {

namespace {

QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    Q_UNUSED(className)
    if (auto* label = qobject_cast<Label*>(object))
        return new LabelAccessible(*label);
    if (auto* grid = qobject_cast<MSFlexGrid*>(object))
        return new GridAccessible(*grid);
    if (auto* list = qobject_cast<ComboBox*>(object))
        return new ComboAccessible(*list);
    if (qobject_cast<Frame*>(object) || qobject_cast<Form*>(object))
        return new ContainerAccessible(static_cast<QWidget&>(*object));
    return nullptr;
}

} // namespace

void install() {
    QAccessible::installFactory(interfaceOf);
}

QString namedAfter(QStringView caption) {
    caption = caption.trimmed();
    if (caption.endsWith(u'：'))
        caption.chop(1);
    return caption.toString();
}

QString nameOf(const QWidget& widget) {
    if (!widget.accessibleName().isEmpty())
        return widget.accessibleName();
    if (widget.isWindow())
        return widget.windowTitle();
    const auto* frame = qobject_cast<const Frame*>(&widget);
    if (!frame)
        frame = qobject_cast<const Frame*>(widget.parentWidget());
    return frame ? frame->Caption() : QString();
}

void tellFocusAt(QWidget& widget, int child) {
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(child);
    QAccessible::updateAccessibility(&event);
}

} // namespace qinghe::accessible
