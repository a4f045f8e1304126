#pragma once

#include "support/grid_list.h"

#include <array>

namespace qinghe::testing {

inline constexpr GridList Income{
    .name = "Income",
    .label = pages::Income,
    .frame = income::Page,
    .grid = income::Grid,
    .box = income::Box,
    .add = income::Add,
    .remove = income::Remove,
    .save = income::Save,
    .table = u"srb",
    .values =
        u"n, date('2024-05-01', (n - 1) || ' days'), '项目' || n, '人' || n, n + 0.5, '账户' || n, '备注' || n, n",
    .firstRow = u"1|2024-5-1|项目1|人1|1.5|账户1|备注1",
    .text = 3,
    .amount = 5,
    .date = 2,
};

inline constexpr GridList Expense = [] {
    GridList list = Income;
    list.name = "Expense";
    list.label = pages::Expense;
    list.table = u"zcb";
    return list;
}();

inline constexpr GridList Lent{
    .name = "Lent",
    .label = pages::Loans,
    .frame = loans::Page,
    .grid = loans::Grid,
    .box = loans::Box,
    .add = loans::Add,
    .remove = loans::Remove,
    .save = loans::Save,
    .table = u"jcb",
    .values = u"'户' || n, date('2024-05-01', (n - 1) || ' days'), 100, n, 90, '甲', '乙', '备' || n, n",
    .firstRow = u"户1|2024-5-1|100|1|90|甲|乙|备1",
    .text = 1,
    .amount = 3,
    .date = 2,
    .refusalMovesRow = false,
};

inline constexpr GridList Borrowed = [] {
    GridList list = Lent;
    list.name = "Borrowed";
    list.option = loans::Borrowed;
    list.table = u"jrb";
    return list;
}();

inline constexpr GridList Budget{
    .name = "Budget",
    .label = pages::Budget,
    .frame = budget::Page,
    .grid = budget::Grid,
    .box = budget::Box,
    .add = budget::Add,
    .remove = budget::Remove,
    .save = budget::Save,
    .table = u"ysb",
    .values = u"date('2024-05-01', (n - 1) || ' days'), '项目' || n, n + 0.5, '备注' || n, n",
    .firstRow = u"2024-5-1|项目1|1.5|备注1",
    .text = 2,
    .amount = 3,
    .date = 1,
    .enterPicksDate = false,
};

inline constexpr GridList Accounts{
    .name = "Accounts",
    .label = pages::Accounts,
    .frame = accounts::Page,
    .grid = accounts::Grid,
    .box = accounts::Box,
    .add = accounts::Add,
    .remove = accounts::Remove,
    .save = accounts::Save,
    .table = u"zhb",
    .values = u"'户' || n, 100, 10, 20, 30, 40, 50, 60, 70 + n, '备' || n, n",
    .firstRow = u"户1|100|10|20|30|40|50|60|71|备1",
    .text = 1,
    .amount = 2,
};

inline constexpr std::array<GridList, 6> LedgerLists{Income, Expense, Lent, Borrowed, Budget, Accounts};
inline constexpr std::array<GridList, 5> DatedLists{Income, Expense, Lent, Borrowed, Budget};

} // namespace qinghe::testing
