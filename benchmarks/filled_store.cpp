#include "filled_store.h"

#include "bare_sqlite.h"
#include "store/header_toggle.h"
#include "store/header_vfs.h"

#include <QFile>

namespace qinghe::benchmarks {

using namespace Qt::StringLiterals;

namespace {

/// Rows 1 to `rows` of a table in one go, their values by n.
QString insertMany(const QString& table, const QString& values, int rows) {
    return u"with recursive c(n) as (select 1 union all select n+1 from c where n<"_s + QString::number(rows) +
           u") insert into "_s + table + u" select "_s + values + u" from c"_s;
}

/// Some day of ten years.
const QString Day = u"date('2015-01-01', '+'||(n*7919%3650)||' days')"_s;

} // namespace

void fillTables(const QString& dataFile, int rows) {
    healHeader(dataFile);
    {
        Bare db(dataFile, headerVfsName());
        db.run(u"begin"_s);
        const QString money = u"round(n*37%99991/7.0,2)"_s;
        for (const char* table : {"srb", "zcb"})
            db.run(insertMany(QString::fromUtf8(table),
                              u"'B'||n,%1,'项目'||(n%40),'家人'||(n%5),%2,'账户'||(n%6),"
                              "case when n%3 then '备注'||n end,n"_s.arg(Day, money),
                              rows));
        for (const char* table : {"jrb", "jcb"})
            db.run(insertMany(QString::fromUtf8(table),
                              u"'账户'||(n%6),%1,%2,1,%2-1,'甲','乙','备注'||n,n"_s.arg(Day, money), rows));
        db.run(insertMany(u"ysb"_s, u"%1,'预算'||(n%40),%2,'备注'||n,n"_s.arg(Day, money), rows));
        db.run(insertMany(u"zhb(账户名称,起始金额,收入,支出,借入,借出,转入,转出,余额,备注信息,区别)"_s,
                          u"'账户'||n,%1,n%100,n%50,0,0,n%7,n%3,%1+n%53,'备注'||n,n"_s.arg(money), rows));
        for (const char* table : {"srflb", "zcflb"}) {
            db.run(u"delete from "_s + QString::fromUtf8(table));
            db.run(insertMany(QString::fromUtf8(table), u"'大类'||n,'细类'||n,'dm'||n"_s, rows));
        }
        db.run(insertMany(u"rcb"_s, u"%1,n%9,%1,'8:'||(n%60),'日程内容'||n,'音乐1',n"_s.arg(Day), rows));
        db.run(u"commit"_s);
    }
    spoilHeader(dataFile);
}

void plainCopy(const QString& dataFile, const QString& copy) {
    QFile::remove(copy);
    QFile::copy(dataFile, copy);
    QFile file(copy);
    if (!file.open(QIODevice::ReadWrite) || !file.seek(1) || file.write("QL", 2) != 2)
        qFatal("cannot make the plain copy");
}

} // namespace qinghe::benchmarks
