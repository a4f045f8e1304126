#include "core/shared.h"

#include "platform/files.h"
#include "store/connection_text.h"
#include "store/data_file.h"

namespace qinghe {

using namespace Qt::StringLiterals;

Adodc* Shared::newControl(const QString& name, QObject* parent) {
    return new Adodc(store, name, connection(), parent);
}

QString Shared::connection() const {
    return connectionText(services.appPath);
}

QString Shared::dataFile() const {
    return beside(DataFileName.toString());
}

QString Shared::diaryFolder() const {
    return beside(u"mydiary"_s);
}

QString Shared::safeDiaryFolder() const {
    files::requireFolderOfItsOwn(diaryFolder(), services.appPath);
    return diaryFolder();
}

QString Shared::beside(const QString& name) const {
    return services.appPath.endsWith('/'_L1) ? services.appPath + name : services.appPath + '/'_L1 + name;
}

void Shared::note(const QString& text) {
    notes << text;
    if (noted)
        noted();
}

void Shared::unloadTools() {
    forms.unload(names::DatePicker);
    forms.unload(names::Purge);
    forms.unload(names::Calculator);
}

void Shared::unloadPickers() {
    forms.unload(names::DatePicker);
    forms.unload(names::Calculator);
}

void Shared::handBack(const FieldTarget& next) {
    FieldTool* const calculator = forms.loaded(names::Calculator);
    if (calculator && !calculator->serves(next))
        calculator->handBack();
}

void Shared::finishPickers() {
    handBack();
    unloadPickers();
}

void Shared::finishTools() {
    handBack();
    unloadTools();
}

void Shared::hideDatePicker() {
    if (FieldTool* picker = forms.loaded(names::DatePicker))
        picker->setShown(false);
}

void Shared::openDatePicker(DateField field, const FieldTarget& target, QPointF place) {
    dateTarget = static_cast<int>(field);
    openTool(names::DatePicker, target, place);
}

void Shared::openCalculator(AmountField field, const FieldTarget& target, QPointF place) {
    calcTarget = static_cast<int>(field);
    openTool(names::Calculator, target, place);
}

void Shared::openTool(const FormName<FieldTool>& name, const FieldTarget& target, QPointF place) {
    FieldTool& tool = forms.get(name);
    tool.serve(target);
    tool.moveTo(place.x(), place.y());
    tool.showForm();
    const TextBox* const box = target.box;
    tool.keepOnScreen(box ? QRect(box->mapToGlobal(QPoint()), box->size()) : QRect());
}

} // namespace qinghe
