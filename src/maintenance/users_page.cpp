#include "maintenance/users_page.h"

#include "core/grid_rows.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageCode = 4;
constexpr double Half = 5508; ///< of the grid less 400 twips, rounded

constexpr PageTab Tabs[] = {{u"Label4", u" 用户", 7680, PageCode}};

constexpr std::array<GridPage::Column, 2> Columns{{
    {u"用户名", Half},
    {u"用户密码", Half},
}};

const GridPage::Traits Users{
    .page = {u"Frame7", u"用户设置", 120, 1680, 11655, 6255, Tabs},
    .grid = u"ms5",
    .editor = u"tx5",
    .add = u"Command13",
    .remove = u"Command14",
    .save = u"Command15",
    .columns = Columns,
    .addCommitsBox = true,
    .addTests = GridPage::AddTests::CurrentRow,
    .addedBox = GridPage::AddedBox::KeepsText,
    .rowInSave = GridPage::RowInSave::Writes,
    .endsInRemark = false,
};

} // namespace

UsersPage::UsersPage(MainWindow& form) : GridPage(form, Users) {
    // The page may stand behind the schedule's, whose date picker is none of its business.
    frame.Click = [this] { hideEditor(); };
}

QString UsersPage::table() const {
    return u"yhb"_s;
}

QString UsersPage::source() const {
    return u"select 用户名,用户密码 from yhb"_s;
}

void UsersPage::beforeSave() {
    load(table()); // all its columns, of which the grid was filled from two
}

int UsersPage::rowForEmptyText() const {
    // The row number of the loan grid decides, and is meant to.
    return loanRow(m_shared);
}

void UsersPage::Form2_Label4_Click() {
    navigation().leaveOthers(*this, PageCode);
    hideEditor();
    navigation().bringForward(*this);
    loadTable();
}

void UsersPage::formClicked() {
    if (!frame.Visible())
        return;
    commitAndHideBox();
    grid->takeFocus();
}

} // namespace qinghe
