#pragma once

#include "support/grid_list.h"

#include <algorithm>
#include <array>
#include <vector>

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
    .captions = u"编号|时间|项目|收款人|金额|账户|备注",
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
    list.captions = u"编号|时间|项目|付款人|金额|账户|备注";
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
    .captions = u"账户|日期|借出金额|已还金额|余额|借出人|借给人|备注",
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
    list.captions = u"账户|日期|借入金额|已还金额|余额|借出人|借给人|备注";
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
    .captions = u"预算日期|预算项目|预算金额|备注",
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
    .captions = u"账户名称|起始金额|收入|支出|借入|借出|转入|转出|余额|备注信息",
    .table = u"zhb",
    .values = u"'户' || n, 100, 10, 20, 30, 40, 50, 60, 70 + n, '备' || n, n",
    .firstRow = u"户1|100|10|20|30|40|50|60|71|备1",
    .text = 1,
    .amount = 2,
};

inline constexpr std::array LedgerLists{Income, Expense, Lent, Borrowed, Budget, Accounts};

/// Those of them that have a date.
inline const std::vector<GridList> DatedLists = [] {
    std::vector<GridList> dated;
    std::ranges::copy_if(LedgerLists, std::back_inserter(dated), [](const GridList& list) { return list.date != 0; });
    return dated;
}();

} // namespace qinghe::testing
