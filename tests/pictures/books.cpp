#include "books.h"

#include <QDir>
#include <QStringEncoder>

#include <array>

namespace pictures {

namespace {

using whole::LedgerFolder;

void writeDiary(const LedgerFolder& folder, const std::string& day, const std::string& title, const QString& text) {
    QDir().mkpath(folder.file("mydiary"));
    QStringEncoder encode("GB18030");
    folder.write("mydiary/" + title + ".dll", encode(text + QStringLiteral("\r\n")));
    folder.execute("insert into rjb values('" + day + "', '" + title + "')");
}

void leaveEmpty(const LedgerFolder&) {}

/// Income and expense of a year, with more in this month than in the others.
void writeMoney(const LedgerFolder& folder) {
    folder.execute(R"(
        insert into srb select printf('%02d', n), printf('2024-%02d-15', n), '基本工资', '王青', 8200 + 60 * (n % 4), '工资卡', '', n
            from (with recursive m(n) as (select 1 union all select n + 1 from m where n < 11) select n from m);
        insert into srb values('12', '2024-11-05', '稿费', '李禾', 650.5, '现金', '第一篇', 12),
            ('13', '2024-11-11', '家教', '李禾', 480, '现金', '四次', 13), ('14', '2024-11-16', '存款利息', '王青', 96.32, '工资卡', '', 14);
        insert into zcb select printf('%02d', n), printf('2024-%02d-08', n), '买菜', '李禾', 900 + 37.5 * (n % 5), '现金', '', n
            from (with recursive m(n) as (select 1 union all select n + 1 from m where n < 11) select n from m);
        insert into zcb values('12', '2024-11-02', '房租物业', '王青', 1850, '工资卡', '十一月', 12),
            ('13', '2024-11-06', '水电燃气', '王青', 263.4, '工资卡', '', 13), ('14', '2024-11-09', '学费书本', '李禾', 318, '现金', '字典和练习册', 14),
            ('15', '2024-11-12', '看病买药', '李禾', 86.5, '现金', '', 15), ('16', '2024-11-15', '在外就餐', '王青', 142, '现金', '小满生日', 16),
            ('17', '2024-11-17', '衣服鞋帽', '李禾', 399, '工资卡', '棉衣', 17), ('18', '2024-11-18', '公交地铁', '王青', 36, '现金', '', 18))");
}

void writeLists(const LedgerFolder& folder) {
    folder.execute(R"(
        insert into jrb values('现金', '2024-10-12', 3000, 1000, 2000, '大伯', '王青', '修屋顶', 1), ('工资卡', '2024-11-03', 800, 0, 800, '赵田', '李禾', '', 2);
        insert into jcb values('现金', '2024-09-20', 500, 200, 300, '李禾', '周晴', '月底还', 1), ('现金', '2024-11-10', 1200, 0, 1200, '王青', '赵田', '', 2);
        insert into ysb values('2024-10-01', '买菜', 1000, '', 1), ('2024-11-01', '买菜', 1100, '', 2), ('2024-11-01', '房租物业', 1850, '', 3), ('2024-11-01', '旅游', 600, '周末', 4);
        insert into zhb values('工资卡', 5200, 9100, 2512.4, 800, 0, 0, 500, 12087.6, '每月十五日', 1), ('现金', 860, 1130.5, 982.5, 0, 1200, 500, 0, 308, '', 2), ('存折', 20000, 0, 0, 0, 0, 0, 0, 20000, '明年十月到期', 3);
        insert into rcb values('2024-11-17', 1, '2024-11-18', '7 40', '送小满上学，带上字典', '音乐1', 1), ('2024-11-17', 2, '2024-11-18', '18 30', '买菜：豆腐、青菜、鱼', '音乐2', 2),
            ('2024-11-18', 3, '2024-11-18', '20 36', '给爷爷打电话', '音乐1', 3);
        insert into yhb values('小满', 'mi2015', 2))");
}

void writeHousehold(const LedgerFolder& folder) {
    writeMoney(folder);
    writeLists(folder);
    writeDiary(folder, "2024-11-03", "第一场霜", QStringLiteral("早上起来，菜地里白了一层。青菜反而甜了。"));
    writeDiary(folder, "2024-11-15", "小满生日",
               QStringLiteral("小满今天九岁。晚上一家人在巷口的小馆子吃面，爷爷讲了他九岁时放牛的事。"));
}

void writeTenRows(const LedgerFolder& folder) {
    const auto ten = [](const std::string& table, const std::string& values) {
        return "insert into " + table + " select " + values +
               " from (with recursive m(n) as (select 1 union all select n + 1 from m where n < 10) select n from m);";
    };
    folder.execute(ten("srb", "n, '2024-11-15', '工资', '王青', 800 + n, '工资卡', '', n") +
                   ten("zcb", "n, '2024-11-15', '买菜', '王青', 80 + n, '现金', '', n") +
                   ten("jrb", "'现金', '2024-11-15', 100, n, 100 - n, '大伯', '王青', '', n") +
                   ten("jcb", "'现金', '2024-11-15', 100, n, 100 - n, '李禾', '周晴', '', n") +
                   ten("ysb", "'2024-11-01', '买菜', 100, '', n") +
                   ten("zhb", "'账户' || n, 100, 0, 0, 0, 0, 0, 0, 100 * n, '', n") +
                   ten("rcb", "'2024-11-18', n, '2024-11-18', '8 ' || n, '第' || n || '件事', '音乐1', n") +
                   ten("yhb", "'家人' || n, '123456', n + 1") + ten("rjb", "'2024-11-15', '第' || n || '篇'"));
}

/// As many rows as a grid holds, with amounts that fill their columns and more.
void writeFull(const LedgerFolder& folder) {
    const auto full = [](const std::string& table, const std::string& values) {
        return "insert into " + table + " select " + values +
               " from (with recursive m(n) as (select 1 union all select n + 1 from m where n < 32766) select n from "
               "m);";
    };
    folder.execute(full("srb", "n, '2024-11-15', '项目' || (n % 300), '王青', 1234567.89, '工资卡', '', n") +
                   full("zcb", "n, '2024-11-15', '项目' || (n % 40), '王青', 34567.8, '现金', '', n") +
                   full("jrb", "'现金', '2024-11-15', 1234567.89, n, 100, '大伯', '王青', '', n") +
                   full("jcb", "'现金', '2024-11-15', 77.5, n, 100, '李禾', '周晴', '', n") +
                   full("ysb", "'2024-11-01', '买菜', 1e308, '', n") +
                   full("zhb", "'账户' || n, 1234567.89, 0, 0, 0, 0, 0, 0, -1234567.89 * n, '', n") +
                   full("rjb", "'2024-11-15', '第' || n || '篇'"));
}

/// Every text as long as somebody may write it, and figures that no place holds.
void writeLong(const LedgerFolder& folder) {
    const std::string text = "替外婆在镇上的老供销社里买了两斤新磨的芝麻香油和一包给小满的桂花糖还有过冬用的厚棉被面子";
    const std::string longest = text + text + text + text;
    folder.execute(
        "insert into srb values('" + longest + "', '2024-11-15', '" + longest + "', '" + longest + "', 1234567.89, '" +
        longest + "', '" + longest +
        "', 1), ('WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW', '2024-11-15', 'iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii', '" + text +
        "', 123456789012345, '', '', 2);"
        "insert into zcb values('1', '2024-11-15', '" +
        longest + "', '" + longest +
        "', 1e308, '现金', '', 1), ('2', '2024-11-15', '买菜', '李禾', 1e308, '现金', '', 2);"
        "insert into jrb values('" +
        longest + "', '2024-11-15', 1234567.89, 1234567.89, -1234567.89, '" + longest + "', '" + longest + "', '" +
        longest +
        "', 1);"
        "insert into jcb values('" +
        longest + "', '2024-10-15', 12345678.9, 0.01, 12345678.89, '" + longest + "', '" + longest + "', '" + longest +
        "', 1);"
        "insert into ysb values('2024-10-01', '" +
        longest + "', 1e308, '" + longest + "', 1), ('2024-10-01', '" + longest +
        "', 1e308, '', 2);"
        "insert into zhb values('" +
        longest +
        "', 1234567.89, 1234567.89, 1234567.89, 1234567.89, 1234567.89, 1234567.89, 1234567.89, 1234567.89, '" +
        longest +
        "', 1),"
        " ('短', 1, 1, 1, 1, 1, 1, 1, -99, '', 2);"
        "insert into rcb values('2024-11-18', 1, '2024-11-18', '20 36', '" +
        longest + "', '" + longest + "', 1), ('2024-11-18', 2, '2024-11-18', '20 36', '" + longest +
        "', '音乐1', 2);"
        "insert into yhb values('" +
        longest + "', '" + longest +
        "', 2);"
        "insert into srflb values('" +
        longest + "', '" + longest + "', '" + text +
        "');"
        "insert into 软件皮肤 select '" +
        longest + "', 大小, 皮肤 from 软件皮肤 limit 1;");
    writeDiary(folder, "2024-11-03", text,
               QString::fromStdString(longest + longest + longest + longest + longest + longest));
}

void writeShort(const LedgerFolder& folder) {
    folder.execute("insert into srb values('1', '2024-11-1', '米', '我', 1, '钱', '', 1);"
                   "insert into zcb values('1', '2024-11-1', '米', '我', 0.5, '钱', '', 1);"
                   "insert into zhb values('钱', 0, 0, 0, 0, 0, 0, 0, 1, '', 1);"
                   "insert into rcb values('2024-11-18', 1, '2024-11-18', '20 36', '睡', '音乐1', 1);");
    writeDiary(folder, "2024-11-03", "雪", QStringLiteral("雪"));
}

} // namespace

std::span<const Book> books() {
    static const std::array all{Book{"household", writeHousehold}, Book{"empty", leaveEmpty},
                                Book{"ten", writeTenRows},         Book{"full", writeFull},
                                Book{"long", writeLong},           Book{"short", writeShort}};
    return all;
}

} // namespace pictures
