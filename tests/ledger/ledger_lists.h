#pragma once

#include <array>
#include <ostream>
#include <string_view>

namespace qinghe::testing {

/// One list of the ledger: what its page is called in the main window, and rows for its table.
struct LedgerList {
    const char* name;       ///< in the names of tests
    const char16_t* label;  ///< brings its page up
    const char16_t* option; ///< is clicked then; none when empty
    const char16_t* frame;
    int number;      ///< of grid and box: 2 is "ms2" with "tx2"
    int firstButton; ///< 增加; the next numbers are 删除 and 保存
    const char16_t* table;
    const char16_t* values;      ///< of the stored row n, as SQL
    const char16_t* firstRow;    ///< what the grid shows of the row 1
    int text, amount;            ///< a column of each kind
    int date = 0;                ///< none when 0
    bool refusalMovesRow = true; ///< to the row with the gap
};

inline bool operator==(const LedgerList& one, const LedgerList& other) {
    return std::string_view(one.name) == other.name;
}

inline void PrintTo(const LedgerList& list, std::ostream* out) {
    *out << list.name;
}

inline constexpr LedgerList Income{
    .name = "Income",
    .label = u"Label2(0)",
    .option = u"",
    .frame = u"Frame2",
    .number = 2,
    .firstButton = 4,
    .table = u"srb",
    .values =
        u"n, date('2024-05-01', (n - 1) || ' days'), '项目' || n, '人' || n, n + 0.5, '账户' || n, '备注' || n, n",
    .firstRow = u"1|2024-5-1|项目1|人1|1.5|账户1|备注1",
    .text = 3,
    .amount = 5,
    .date = 2,
};

inline constexpr LedgerList Expense = [] {
    LedgerList list = Income;
    list.name = "Expense";
    list.label = u"Label2(1)";
    list.table = u"zcb";
    return list;
}();

inline constexpr LedgerList Lent{
    .name = "Lent",
    .label = u"Label1",
    .option = u"",
    .frame = u"Frame6",
    .number = 1,
    .firstButton = 1,
    .table = u"jcb",
    .values = u"'户' || n, date('2024-05-01', (n - 1) || ' days'), 100, n, 90, '甲', '乙', '备' || n, n",
    .firstRow = u"户1|2024-5-1|100|1|90|甲|乙|备1",
    .text = 1,
    .amount = 3,
    .date = 2,
    .refusalMovesRow = false,
};

inline constexpr LedgerList Borrowed = [] {
    LedgerList list = Lent;
    list.name = "Borrowed";
    list.option = u"Option1";
    list.table = u"jrb";
    return list;
}();

inline constexpr LedgerList Budget{
    .name = "Budget",
    .label = u"Label5",
    .option = u"",
    .frame = u"Frame8",
    .number = 6,
    .firstButton = 16,
    .table = u"ysb",
    .values = u"date('2024-05-01', (n - 1) || ' days'), '项目' || n, n + 0.5, '备注' || n, n",
    .firstRow = u"2024-5-1|项目1|1.5|备注1",
    .text = 2,
    .amount = 3,
    .date = 1,
};

inline constexpr LedgerList Accounts{
    .name = "Accounts",
    .label = u"Label6",
    .option = u"",
    .frame = u"frame9",
    .number = 7,
    .firstButton = 19,
    .table = u"zhb",
    .values = u"'户' || n, 100, 10, 20, 30, 40, 50, 60, 70 + n, '备' || n, n",
    .firstRow = u"户1|100|10|20|30|40|50|60|71|备1",
    .text = 1,
    .amount = 2,
};

inline constexpr std::array<LedgerList, 6> LedgerLists{Income, Expense, Lent, Borrowed, Budget, Accounts};
inline constexpr std::array<LedgerList, 5> DatedLists{Income, Expense, Lent, Borrowed, Budget};

} // namespace qinghe::testing
