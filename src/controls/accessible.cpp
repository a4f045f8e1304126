#include "controls/accessible.h"

#include "controls/combo_accessible.h"
#include "controls/container_accessible.h"
#include "controls/form.h"
#include "controls/frame.h"
#include "controls/grid_accessible.h"
#include "controls/label_accessible.h"
#include "controls/report_reader.h"

namespace qinghe::accessible {

namespace {

Ear heardBy = nullptr;

QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    Q_UNUSED(className)
    if (auto* label = qobject_cast<Label*>(object))
        return new LabelAccessible(*label);
    if (auto* grid = qobject_cast<MSFlexGrid*>(object))
        return new GridAccessible(*grid);
    if (auto* reader = qobject_cast<ReportReader*>(object))
        QAccessible::queryAccessibleInterface(&reader->list()); // which tells what the keys come to
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

QString nameOf(const QWidget& widget) {
    if (!widget.accessibleName().isEmpty())
        return widget.accessibleName();
    if (widget.isWindow())
        return widget.windowTitle();
    if (const auto* frame = qobject_cast<const Frame*>(&widget))
        return frame->Caption();
    const auto* around = qobject_cast<const Frame*>(widget.parentWidget());
    return !around ? QString() : around->Caption().isEmpty() ? around->accessibleName() : around->Caption();
}

void tell(QWidget& widget, QAccessible::Event what, int part) {
    if (!heardBy && !QAccessible::isActive())
        return;
    QAccessibleEvent event(&widget, what);
    if (part >= 0)
        event.setChild(part);
    if (heardBy)
        heardBy(event);
    else
        QAccessible::updateAccessibility(&event);
}

void setEar(Ear ear) {
    heardBy = ear;
}

} // namespace qinghe::accessible
