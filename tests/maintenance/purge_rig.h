#pragma once

#include "support/program_test.h"

#include <array>

namespace qinghe::testing {

/// One kind of record that can be purged.
struct PurgeKind {
    const char* name;   ///< in the names of tests
    Name<CheckBox> box; ///< of the purge window
    QStringView table;
    QStringView date; ///< its column, empty when it has none
    QStringView row;  ///< of the day %1, as SQL behind the table's name
    QStringView done;
    QStringView none;
};

inline void PrintTo(const PurgeKind& kind, std::ostream* out) {
    *out << kind.name;
}

inline constexpr QStringView Loan = u" values('户', %1, 1, 1, 1, '甲', '乙', '备', 1)";
/// In the order in which they are purged.
inline constexpr std::array<PurgeKind, 7> PurgeKinds{{
    {"Income", purge::Kind[0], u"srb", u"时间", u" values('1', %1, '项目', '人', 5, '户', '备', 1)",
     u"收入记录已清空！", u"当前收入记录为空！"},
    {"Expense", purge::Kind[1], u"zcb", u"时间", u" values('1', %1, '项目', '人', 5, '户', '备', 1)",
     u"支出记录已清空！", u"当前支出记录为空！"},
    {"Borrowed", purge::Kind[2], u"jrb", u"日期", Loan, u"借入记录已清空", u"当前借入记录为空！"},
    {"Lent", purge::Kind[3], u"jcb", u"日期", Loan, u"借出记录已清空", u"当前借出记录为空！"},
    {"Accounts", purge::Kind[4], u"zhb", u"", u"(账户名称, 余额, 区别) values('户', 8, 1)", u"账户记录已清空",
     u"当前账户记录为空！"},
    {"Budget", purge::Kind[5], u"ysb", u"预算时间", u" values(%1, '项目', 5, '备', 1)", u"预算记录已清空",
     u"当前预算记录为空！"},
    {"Plans", purge::Plans, u"rcb", u"日程日期", u" values('2024-06-18 08:00:00', 1, %1, '8:05', '内容', '音乐1', 1)",
     u"日程记录已清空", u"当前日程记录为空！"},
}};

/// A program whose settings are on view and whose purge window is open.
class PurgeTest : public ProgramTest {
protected:
    PurgeTest() {
        rig.signIn();
        rig.click(rig.at(pages::Settings));
        rig.settle();
        openPurge();
    }

    void openPurge() {
        rig.click(tick());
        rig.settle();
    }
    CheckBox& tick() { return rig.at(settings::Purge); }
    Form* window() { return rig.loaded(forms::Purge); }
    template<class T>
    T& inside(const QString& name) {
        return rig.control<T>(forms::Purge, name);
    }
    TextBox& date() { return inside<TextBox>(purge::Date); }
    CheckBox& box(int kind) { return rig.at(PurgeKinds[static_cast<std::size_t>(kind)].box); }
    void choose(std::initializer_list<int> kinds) {
        for (const int kind : kinds)
            rig.click(box(kind));
    }
    /// Presses 开始删除; its question is answered with yes unless told otherwise.
    void start() {
        rig.messages->shown.clear();
        rig.click(inside<CommandButton>(purge::Start));
        rig.settle();
    }
    /// Types a date and starts.
    void purge(const QString& day) {
        date().selectAll();
        rig.type(date(), day);
        start();
    }

    /// Stores a row a day, given as ISO texts.
    void store(const PurgeKind& kind, const QStringList& days) {
        for (const QString& day : days)
            rig.sql(u"insert into %1%2"_s.arg(kind.table.toString(),
                                              kind.row.toString().replace(u"%1"_s, u'\'' + day + u'\'')));
    }
    void storeEverywhere(const QStringList& days) {
        for (const PurgeKind& kind : PurgeKinds)
            store(kind, days);
    }
    /// What is left of a kind: its days, or its names where it has no date.
    QStringList left(const PurgeKind& kind) {
        const QString column = !kind.date.isEmpty() ? kind.date.toString() : u"账户名称"_s;
        return rig.sql(u"select %1 from %2 order by rowid"_s.arg(column, kind.table.toString()));
    }
    int count(int kind) { return static_cast<int>(left(PurgeKinds[static_cast<std::size_t>(kind)]).size()); }
    /// The texts told after the question.
    QStringList told() {
        QStringList texts;
        for (const ShownMessage& message : rig.messages->shown) {
            EXPECT_EQ(message.title, u"提示"_s);
            EXPECT_EQ(message.style, texts.isEmpty() ? 36 : 64);
            texts << message.text;
        }
        EXPECT_EQ(texts.value(0), u"是否确定清空选择的记录？"_s);
        return texts.mid(1);
    }
};

constexpr int IncomeKind = 0, ExpenseKind = 1, BorrowedKind = 2, LentKind = 3, AccountsKind = 4, BudgetKind = 5,
              PlansKind = 6;
inline const QString NoDate = u"请选择日期！"_s;

} // namespace qinghe::testing
