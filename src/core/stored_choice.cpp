#include "core/stored_choice.h"

#include "core/grid_rows.h"

namespace qinghe {

using namespace Qt::StringLiterals;

bool StoredChoice::isYes(Adodc& control) const {
    Recordset& rows = control.open(query.toString());
    return !rows.eof() && rows.field(0).value().truth();
}

void StoredChoice::rewrite(Adodc& control, bool yes) const {
    Recordset& rows = control.open(query.toString());
    emptyTable(rows);
    rows.addNew();
    rows.field(column).setValue(yes);
    rows.update();
}

bool remindsAtSignIn(Adodc& control) {
    return RemindAtSignIn.isYes(control) && control.recordset().recordCount() == 1;
}

void storeTick(const Shared& shared, Adodc& control, const StoredChoice& choice, const CheckBox& box,
               const QString& done, const QString& title) {
    if (box.Value() && choice.isYes(control))
        return;
    choice.rewrite(control, box.Value());
    shared.tell(done, title);
}

void storeReminderTick(const Shared& shared, Adodc& control, const CheckBox& box) {
    storeTick(shared, control, RemindAtSignIn, box, u"设置完毕！"_s, u"系统提示"_s);
}

} // namespace qinghe
