#include "delivery/first_data.h"

#include "delivery/pictures.h"
#include "runtime/runtime_error.h"
#include "store/data_file.h"
#include "store/header_toggle.h"
#include "store/recordset.h"
#include "store/schema.h"
#include "store/store.h"
#include "store/tables.h"

#include <QDir>
#include <QFile>

#include <initializer_list>

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView FirstUser = u"管理员";
constexpr QStringView FirstPassword = u"123456";

/// Major class, minor class, quick code.
struct Category {
    QStringView major;
    QStringView minor;
    QStringView code;
};

constexpr Category IncomeCategories[] = {
    {u"工资薪金", u"基本工资", u"gz"}, {u"工资薪金", u"奖金", u"jj"},     {u"工资薪金", u"津贴补助", u"bt"},
    {u"投资理财", u"存款利息", u"lx"}, {u"投资理财", u"基金分红", u"fh"}, {u"投资理财", u"房屋租金", u"fz"},
    {u"兼职副业", u"稿费", u"gf"},     {u"兼职副业", u"家教", u"jz"},     {u"人情往来", u"节日红包", u"hb"},
    {u"其他收入", u"退款", u"tk"},     {u"其他收入", u"卖废品", u"fp"},
};

constexpr Category ExpenseCategories[] = {
    {u"餐饮食品", u"买菜", u"mc"},     {u"餐饮食品", u"在外就餐", u"jc"}, {u"餐饮食品", u"水果零食", u"sg"},
    {u"居家生活", u"水电燃气", u"sd"}, {u"居家生活", u"日用品", u"ry"},   {u"居家生活", u"房租物业", u"wy"},
    {u"居家生活", u"电话网络", u"dh"}, {u"交通出行", u"公交地铁", u"gj"}, {u"交通出行", u"加油停车", u"jy"},
    {u"衣着服饰", u"衣服鞋帽", u"yf"}, {u"医疗保健", u"看病买药", u"yp"}, {u"教育学习", u"学费书本", u"xf"},
    {u"休闲娱乐", u"旅游", u"ly"},     {u"人情往来", u"礼金红包", u"lj"}, {u"其他支出", u"其他", u"qt"},
};

/// Adds one row, its values in the order of the columns.
void addRow(Store& store, QStringView table, std::initializer_list<Value> values) {
    Recordset rows(store, store.fetch(table.toString()));
    rows.addNew();
    int ordinal = 0;
    for (const Value& value : values) {
        rows.field(ordinal++).setValue(value);
    }
    rows.update();
}

void addUserAndSettings(Store& store) {
    addRow(store, tables::Users, {FirstUser.toString(), FirstPassword.toString(), 1});
    addRow(store, tables::Remembered, {FirstUser.toString(), FirstPassword.toString()});
    addRow(store, tables::Reminding, {false});
    addRow(store, tables::Tray, {false});
}

void addCategories(Store& store) {
    for (const auto& [major, minor, code] : IncomeCategories) {
        addRow(store, tables::IncomeClasses, {major.toString(), minor.toString(), code.toString()});
    }
    for (const auto& [major, minor, code] : ExpenseCategories) {
        addRow(store, tables::ExpenseClasses, {major.toString(), minor.toString(), code.toString()});
    }
}

/// Name, byte count, and the bytes with the one zero that stands behind every stored picture.
void addPicture(Store& store, QStringView table, const Picture& picture, const QByteArray& jpeg) {
    addRow(store, table, {picture.name.toString(), static_cast<double>(jpeg.size()), jpeg + '\0'});
}

void addPictures(Store& store) {
    for (const Picture& skin : skins()) {
        const QByteArray jpeg = jpegOf(skin);
        addPicture(store, tables::OfferedSkins, skin, jpeg);
        if (&skin == &skins().front()) {
            addPicture(store, tables::ChosenSkin, skin, jpeg);
        }
    }
    addPicture(store, tables::DesktopPicture, desktopPicture(), jpegOf(desktopPicture()));
    addPicture(store, tables::SignInPicture, signInPicture(), jpegOf(signInPicture()));
}

void fill(const QString& path) {
    Store store;
    store.use(path);
    addUserAndSettings(store);
    addCategories(store);
    addPictures(store);
    store.close();
}

} // namespace

bool deliverFirstData(const QString& folder) {
    const QDir place(folder);
    const QString finished = place.filePath(DataFileName.toString());
    if (QFile::exists(finished)) {
        return false;
    }
    const QString unfinished = place.filePath(u"first_data.unfinished"_s);
    QFile::remove(unfinished);
    QFile::remove(journalOf(unfinished));
    createStore(unfinished);
    fill(unfinished);
    spoilHeader(unfinished);
    if (!QFile::rename(unfinished, finished)) {
        throw RuntimeError(RuntimeError::PathFileAccess, u"无法写入账本文件“%1”。"_s.arg(finished));
    }
    return true;
}

} // namespace qinghe
