#include "core/workbench.h"

#include "store/connection_text.h"

namespace qinghe {

using namespace Qt::StringLiterals;

QString Workbench::connection(bool blankBehind) const {
    return connectionText(services.appPath, blankBehind);
}

QString Workbench::beside(const QString& name) const {
    return services.appPath.endsWith('/'_L1) ? services.appPath + name : services.appPath + '/'_L1 + name;
}

void Workbench::unloadTools() {
    forms.unload(u"Form1"_s);
    forms.unload(u"Form3"_s);
    forms.unload(u"Form9"_s);
}

void Workbench::unloadPickers() {
    forms.unload(u"Form1"_s);
    forms.unload(u"Form9"_s);
}

void Workbench::openTool(const QString& name, double left, double top) {
    Form& form = forms.get(name);
    form.moveTo(left, top);
    form.showForm();
    form.keepOnScreen();
}

} // namespace qinghe
