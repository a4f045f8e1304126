#include "analysis/charts_rig.h"

namespace qinghe::testing {

using namespace Qt::StringLiterals;

void ChartsTest::store(const QString& table, const QString& date, const QString& item, double amount) {
    rig.sql(u"insert into %1 values('1', %2, %3, '我', %4, '现金', '', 1)"_s.arg(table, date, item).arg(amount));
}

void ChartsTest::storeAccount(const QString& name, const QString& balance) {
    rig.sql(u"insert into zhb(账户名称, 余额, 区别) values(%1, %2, 1)"_s.arg(name, balance));
}

void ChartsTest::storeOneEach() {
    storeAccount(u"'现金'"_s, u"100"_s);
    store(u"srb"_s, u"'2024-05-03'"_s, u"'工资'"_s, 10);
    store(u"zcb"_s, u"'2024-06-04'"_s, u"'买菜'"_s, 20);
}

void ChartsTest::open() {
    press(rig.at(pages::Charts));
}

void ChartsTest::click(const QString& name) {
    press(option(name));
}

void ChartsTest::choose(const QString& name) {
    open();
    click(name);
}

void ChartsTest::query(const QString& from, const QString& to) {
    typeOver(Text1(), from);
    typeOver(Text2(), to);
    press(rig.at(charts::Query));
}

QString ChartsTest::points() {
    QStringList texts;
    for (const QVariant& point : chart().ChartData()) {
        const QVariantList row = point.toList();
        texts << row.at(0).toString() + u'=' + (row.at(1).isValid() ? QString::number(row.at(1).toDouble()) : u""_s);
    }
    return texts.join(u' ');
}

} // namespace qinghe::testing
