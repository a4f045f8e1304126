#include "store/rewritten_table.h"

using namespace Qt::StringLiterals;

namespace qinghe {

void rewriteTable(Store& store, Adodc& control, const QString& mark, int rows) {
    Recordset& set = control.open(u"srb"_s);
    for (; !set.eof(); set.moveNext())
        set.deleteCurrent();
    for (int row = 1; row <= rows; ++row) {
        set.addNew();
        set.field(u"区别").setValue(row);
        set.field(u"时间").setValue(u"2024-%1-%2"_s.arg(1 + row % 12).arg(1 + row % 28));
        set.field(u"项目").setValue(mark);
        set.field(u"金额").setValue(row * 1.25);
        set.update();
    }
    store.commit();
}

QString markOfTable(Adodc& control, int rows) {
    Recordset& set = control.open(u"srb"_s);
    EXPECT_EQ(set.recordCount(), rows);
    const QString mark = set.eof() ? QString() : set.field(u"项目").text();
    int mixed = 0;
    for (int row = 1; !set.eof(); set.moveNext(), ++row)
        mixed += set.field(u"项目").text() != mark || set.field(u"区别").value().number() != row;
    EXPECT_EQ(mixed, 0);
    return mark;
}

} // namespace qinghe
