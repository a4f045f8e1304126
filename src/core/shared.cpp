#include "core/shared.h"

#include "store/connection_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

QString Shared::connection(bool blankBehind) const {
    return connectionText(services.appPath, blankBehind);
}

QString Shared::beside(const QString& name) const {
    return services.appPath.endsWith('/'_L1) ? services.appPath + name : services.appPath + '/'_L1 + name;
}

void Shared::unloadTools() {
    forms.unload(u"Form1"_s);
    forms.unload(u"Form3"_s);
    forms.unload(u"Form9"_s);
}

void Shared::unloadPickers() {
    forms.unload(u"Form1"_s);
    forms.unload(u"Form9"_s);
}

void Shared::openDatePicker(const FieldTarget& field, double left, double top) {
    dateTarget = field.number;
    openTool(u"Form1"_s, field, left, top);
}

void Shared::openCalculator(const FieldTarget& field, double left, double top) {
    calcTarget = field.number;
    openTool(u"Form9"_s, field, left, top);
}

void Shared::openTool(const QString& name, const FieldTarget& field, double left, double top) {
    auto& tool = forms.get<FieldTool>(name);
    tool.serve(field);
    tool.moveTo(left, top);
    tool.showForm();
    tool.keepOnScreen();
}

} // namespace qinghe
