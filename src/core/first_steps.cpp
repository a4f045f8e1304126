#include "core/first_steps.h"

#include "runtime/runtime_error.h"
#include "store/ledger_folder.h"
#include "store/recordset.h"
#include "store/tables.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

/// A book that has grown beyond this has been written in, and none of it is read for these words: a start has other
/// things to do.
constexpr qint64 LargestNewBook = 2 << 20; // bytes

/// Every row in them bears a number; a sum is asked for without reading the rows.
constexpr std::array Numbered{tables::Income, tables::Expense,  tables::Borrowed, tables::Lent,
                              tables::Budget, tables::Accounts, tables::Schedule};

bool hasRows(Store& store, QStringView table) {
    Recordset sum(store, store.fetch(u"select sum(%1) as 合计 from %2"_s.arg(columns::RowNumber, table)));
    return !sum.field(u"合计"_s).isNull();
}

bool isWrittenIn(Store& store) {
    return std::ranges::any_of(Numbered, [&](QStringView table) { return hasRows(store, table); }) ||
           Recordset(store, store.fetch(tables::Diary.toString())).recordCount() > 0;
}

/// Of a book that cannot be read its pages tell.
bool isUntouched(Store& store) {
    if (QFileInfo(store.path()).size() > LargestNewBook)
        return false;
    try {
        return !isWrittenIn(store);
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace

QStringList firstSteps(Shared& shared) {
    if (!isUntouched(shared.store))
        return {};
    const QString& folder = shared.services.appPath;
    const QString place = folder == ownLedgerFolder() ? u"“青禾家庭记账本”"_s : u"程序的文件夹"_s;
    return {u"新账本在%1：先点“支出”写第一行\n"
            "账本还没有人写过，它在文件夹：\n%2\n"
            "里面的 data.dll 是全部记录；退出程序后拷走整个文件夹，就带走了全部。\n"
            "第一步：点“支出”，点第一行的格子，写好一行，点“保存”。\n"
            "新账本的第一个用户是“管理员”，密码 123456；\n请到“用户”页换成自己的名字和密码。\n"
            "每一页能做什么：点右上角的“软件介绍”。"_s.arg(place, QDir::toNativeSeparators(folder))};
}

} // namespace qinghe
