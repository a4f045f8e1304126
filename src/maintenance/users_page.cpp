#include "maintenance/users_page.h"

#include "store/tables.h"

namespace qinghe {

namespace {

constexpr double Half = 5508; ///< of the grid less 400 twips, rounded

constexpr PageTab Tabs[] = {{u"Label4", u" 用户", 7680, PageCode::Users}};

constexpr GridPage::Column Columns[] = {
    {{u"用户名", columns::UserName}, Half},
    {{u"用户密码", columns::UserPassword}, Half},
};

const GridPage::Traits Users{
    .page = {names::UsersFrame, u"用户设置", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms5",
    .editor = u"tx5",
    .buttons = {u"Command13", u"Command14", u"Command15"},
    .list = {tables::Users, Columns, u"用户", u"select 用户名,用户密码 from yhb"},
    .quirks = {.addCommitsBox = true,
               .addTestsCurrentRow = true,
               .addKeepsBoxText = true,
               .rowInSave = GridPage::RowInSave::Writes,
               .saveLoadsAnew = true,
               .lastColumnMatters = true,
               .emptyTextsGoToLoanRow = true,
               .frameClickLeavesTools = true, // the page may stand behind the schedule's, whose picker it would close
               .formClickTakesKeyboard = true},
};

} // namespace

UsersPage::UsersPage(MainWindow& window) : GridPage(window, Users) {}

} // namespace qinghe
