#include "ledger/categories_page.h"

#include "core/hover.h"
#include "store/tables.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double MinorsLeft = 120; ///< twips

constexpr PageTraits Categories{u"Frame3", u"分类设置", 240, 1200, 12015, 6615};

// The buttons end with their grid.
constexpr CategoryList::Traits Majors{
    .frame = u"Frame4",
    .caption = u"项目大类",
    .left = 120,
    .gridWidth = 5100,
    .grid = u"ms3",
    .editor = u"tx3",
    .buttons =
        {.add = u"Command7", .remove = u"Command8", .save = u"Command9", .right = 5220, .top = 4695, .what = u"大类"},
};

constexpr CategoryList::Traits Minors{
    .frame = u"Frame5",
    .caption = u"项目小类",
    .left = 5580,
    .gridWidth = 5595,
    .grid = u"ms4",
    .editor = u"tx4",
    .buttons = {.add = u"Command10",
                .remove = u"Command11",
                .save = u"Command12",
                .right = 5715,
                .top = 4695,
                .what = u"小类"},
};

} // namespace

struct CategoriesPage::Classification {
    QStringView majorsSource;
    QStringView minorsSource; ///< %1 stands for the major
    std::array<ListColumn, 1> majors;
    std::array<ListColumn, 2> minors; ///< saved one field to the left of where they are shown from
};

const CategoriesPage::Classification& CategoriesPage::income() {
    static constexpr Classification Chosen{
        u"select distinct 收入大类 from srflb",
        u"select 收入大类 ,收入细类,快速代码 from srflb where 收入大类 = '%1'",
        {{{u"收入大类", columns::IncomeMajor}}},
        {{{u"收入细类", columns::IncomeMinor, columns::IncomeMajor},
          {u"快速代码", columns::QuickCode, columns::IncomeMinor}}},
    };
    return Chosen;
}

const CategoriesPage::Classification& CategoriesPage::expense() {
    static constexpr Classification Chosen{
        u"select distinct 支出大类 from zcflb",
        u"select 支出大类 ,支出细类,快速代码 from zcflb where 支出大类 = '%1'",
        {{{u"消费大类", columns::ExpenseMajor}}},
        {{{u"消费细类", columns::ExpenseMinor, columns::ExpenseMajor},
          {u"快速代码", columns::QuickCode, columns::ExpenseMinor}}},
    };
    return Chosen;
}

CategoriesPage::CategoriesPage(MainWindow& window)
    : Page(window.navigation(), Categories),
      m_shared(window.shared()),
      Adodc1(*window.Adodc1),
      Adodc2(*window.Adodc2),
      Frame3(frame()),
      Option3(new OptionButton(&Frame3, u"Option3"_s, u"收入分类"_s)),
      Option4(new OptionButton(&Frame3, u"Option4"_s, u"支出分类"_s)),
      m_majors(Frame3, m_shared, Majors),
      m_minors(Frame3, m_shared, Minors) {
    // Until it is opened the page is a small strip beside the window.
    Frame3.place(13200, 1440, 975, 255);
    Option3->place(240, 870, 1320, 300);
    Option4->place(1680, 870, 1320, 300);
    for (OptionButton* option : {Option3, Option4})
        showHandOver(option);
    bindEvents();
}

void CategoriesPage::bindEvents() {
    Option3->Click = [this] { Form2_Option3_Click(); };
    Option4->Click = [this] { Form2_Option4_Click(); };
    m_majors.grid->Click = [this] { Form2_ms3_Click(); };
    m_minors.grid->Click = [this] { Form2_ms4_Click(); };
    m_majors.buttons.add->Click = [this] { Form2_Command7_Click(); };
    m_majors.buttons.remove->Click = [this] { Form2_Command8_Click(); };
    m_majors.buttons.save->Click = [this] { Form2_Command9_Click(); };
    m_minors.buttons.add->Click = [this] { Form2_Command10_Click(); };
    m_minors.buttons.remove->Click = [this] { Form2_Command11_Click(); };
    m_minors.buttons.save->Click = [this] { Form2_Command12_Click(); };
    m_majors.buttons.save->setToolTip(u"只保存大类：原有的小类和快速代码会全部清掉。"_s);
    m_minors.buttons.save->setToolTip(
        u"取代当前大类原有的内容：\n下次打开时，这些小类列在大类里，快速代码列在小类里。"_s);
    m_shared.openCategories = [this] { enter(); };
}

void CategoriesPage::left() {
    m_minors.setUsable(false);
}

void CategoriesPage::rescue(RescuedTexts& texts) const {
    if (!Frame3.Visible())
        return;
    if (m_majorsLoaded)
        m_majors.rescue(texts, *m_majorsLoaded);
    if (m_minorsLoaded)
        m_minors.rescue(texts, *m_minorsLoaded);
}

std::vector<EditorTarget> CategoriesPage::searchedLists() const {
    std::vector<EditorTarget> lists{{m_majors.editing.box, m_majors.grid}};
    if (m_minors.grid->isEnabled()) // those of a major
        lists.push_back({m_minors.editing.box, m_minors.grid});
    return lists;
}

KeyedButtons CategoriesPage::keyedButtons() const {
    for (const CategoryList* list : {&m_majors, &m_minors})
        if (list->hasKeyboard())
            return {list->buttons.add, list->buttons.save};
    return {};
}

void CategoriesPage::enter() {
    navigation().hideOthers(*this);
    if (Option3->Value())
        Form2_Option3_Click();
    else
        Option3->setValue(true);
}

// ---- opening

void CategoriesPage::Form2_Option3_Click() {
    open(income());
}

void CategoriesPage::Form2_Option4_Click() {
    m_minors.grid->setLeft(MinorsLeft);
    open(expense());
}

void CategoriesPage::open(const Classification& chosen) {
    m_minors.setUsable(false);
    Recordset& records = Adodc1.open(chosen.majorsSource.toString());
    m_majorsLoaded = Adodc1.loaded();
    m_minors.layOut(chosen.minors);
    m_majors.layOut(chosen.majors);
    // An empty name goes to the row number that all lists share, wherever it was met here.
    m_majors.fill(records, [this] { return m_shared.loanRow(); });
    blankRows(*m_minors.grid);
    m_minors.grid->watchChanges(0);
    navigation().bringForward(*this);
    m_majors.editing.close();
    m_minors.editing.close();
}

// ---- cells

void CategoriesPage::Form2_ms3_Click() {
    m_minors.setUsable(true);
    m_minors.editing.close();
    m_majors.editing.open();
    const Classification& chosen = Option4->Value() ? expense() : income();
    // The name goes into the query as it stands: one with an apostrophe breaks it.
    Recordset& records = Adodc2.open(chosen.minorsSource.toString().replace(u"%1"_s, m_majors.editing.box->Text()));
    m_minorsLoaded = Adodc2.loaded();
    // A major without minors goes on showing the first one of the major before.
    startRows(*m_minors.grid);
    m_minors.fill(records);
}

void CategoriesPage::Form2_ms4_Click() {
    m_minors.editing.open();
}

// ---- rows

void CategoriesPage::Form2_Command7_Click() {
    m_majors.editing.commitTyped();
    m_majors.editing.box->setBoxText({});
    m_majors.addRow();
    m_majors.goToLastRow();
    m_majors.editing.box->place();
    m_majors.editing.box->setShown(true);
}

void CategoriesPage::Form2_Command10_Click() {
    m_minors.editing.commitTyped();
    m_minors.goToLastRow();
    m_minors.addRow();
}

void CategoriesPage::Form2_Command8_Click() {
    if (m_majors.isDeletionWanted() && !m_majors.removeRow())
        blankRows(*m_majors.grid);
}

void CategoriesPage::Form2_Command11_Click() {
    if (m_minors.isDeletionWanted())
        m_minors.removeRow(); // the only one stays as it is, unlike that of the majors
}

void CategoriesPage::Form2_Command9_Click() {
    Adodc1.setRecordSource(tables::Budget.toString()); // named only: the save works on the majors that the page loaded
    m_majors.save(m_majorsLoaded->records());
}

void CategoriesPage::Form2_Command12_Click() {
    m_minors.save(m_minorsLoaded->records());
}

} // namespace qinghe
