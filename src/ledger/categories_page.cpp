#include "ledger/categories_page.h"

#include "core/grid_rows.h"
#include "core/hover.h"

namespace qinghe {

using namespace Qt::StringLiterals;

namespace {

constexpr double MinorsLeft = 120; ///< twips

constexpr PageTraits Categories{u"Frame3", u"分类设置", 240, 1200, 12015, 6615};

constexpr CategoryList::Traits Majors{
    .frame = u"Frame4",
    .caption = u"项目大类",
    .left = 120,
    .gridWidth = 5100,
    .grid = u"ms3",
    .editor = u"tx3",
    .add = u"Command7",
    .remove = u"Command8",
    .save = u"Command9",
    .columns = 1,
    .firstField = 0,
};

constexpr CategoryList::Traits Minors{
    .frame = u"Frame5",
    .caption = u"项目小类",
    .left = 5580,
    .gridWidth = 5595,
    .grid = u"ms4",
    .editor = u"tx4",
    .add = u"Command10",
    .remove = u"Command11",
    .save = u"Command12",
    .columns = 2,
    .firstField = 1, // field 0 is the major
};

} // namespace

struct CategoriesPage::Classification {
    const char16_t* majorsSource;
    const char16_t* minorsSource; ///< up to the major's name
    std::array<const char16_t*, 1> majorsCaptions;
    std::array<const char16_t*, 2> minorsCaptions;
};

const CategoriesPage::Classification& CategoriesPage::income() {
    static constexpr Classification classification{
        u"select distinct 收入大类 from srflb",
        u"select 收入大类 ,收入细类,快速代码 from srflb where 收入大类 = '",
        {u"收入大类"},
        {u"收入细类", u"快速代码"},
    };
    return classification;
}

const CategoriesPage::Classification& CategoriesPage::expense() {
    static constexpr Classification classification{
        u"select distinct 支出大类 from zcflb",
        u"select 支出大类 ,支出细类,快速代码 from zcflb where 支出大类 = '",
        {u"消费大类"},
        {u"消费细类", u"快速代码"},
    };
    return classification;
}

CategoriesPage::CategoriesPage(MainWindow& form)
    : Page(form.navigation(), Categories),
      m_shared(form.shared()),
      Adodc1(*form.Adodc1),
      Adodc2(*form.Adodc2),
      Frame3(frame()),
      Option3(new OptionButton(&Frame3, u"Option3"_s, u"收入分类"_s)),
      Option4(new OptionButton(&Frame3, u"Option4"_s, u"支出分类"_s)),
      majors(Frame3, m_shared, Majors),
      minors(Frame3, m_shared, Minors) {
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
    majors.grid->Click = [this] { Form2_ms3_Click(); };
    minors.grid->Click = [this] { Form2_ms4_Click(); };
    majors.editor->KeyPress = [this](int key) { Form2_tx3_KeyPress(key); };
    minors.editor->KeyPress = [this](int key) { Form2_tx4_KeyPress(key); };
    majors.addButton->Click = [this] { Form2_Command7_Click(); };
    majors.removeButton->Click = [this] { Form2_Command8_Click(); };
    majors.saveButton->Click = [this] { Form2_Command9_Click(); };
    minors.addButton->Click = [this] { Form2_Command10_Click(); };
    minors.removeButton->Click = [this] { Form2_Command11_Click(); };
    minors.saveButton->Click = [this] { Form2_Command12_Click(); };
    m_shared.openCategories = [this] { enter(); };
}

void CategoriesPage::left() {
    minors.setUsable(false);
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
    minors.grid->setLeft(MinorsLeft);
    open(expense());
}

void CategoriesPage::open(const Classification& chosen) {
    minors.setUsable(false);
    Adodc1.setVisible(false);
    Adodc1.setConnectionString(m_shared.connection());
    Recordset& records = Adodc1.open(QString::fromUtf16(chosen.majorsSource));
    m_majors = Adodc1.loaded();
    minors.layOut(chosen.minorsCaptions);
    startRows(*minors.grid);
    majors.layOut(chosen.majorsCaptions);
    startRows(*majors.grid);
    // An empty name is blanked in the row where the loan grid stands, wherever it was met here; meant.
    majors.fill(records, loanRow(m_shared));
    blankRows(*minors.grid);
    navigation().bringForward(*this);
    majors.hideEditor();
    minors.hideEditor();
}

// ---- cells

void CategoriesPage::Form2_ms3_Click() {
    minors.setUsable(true);
    minors.hideEditor();
    majors.edit();
    const Classification& chosen = Option4->Value() ? expense() : income();
    Adodc2.setConnectionString(m_shared.connection());
    Recordset& records = Adodc2.open(QString::fromUtf16(chosen.minorsSource) + majors.editor->Text() + u"'"_s);
    m_minors = Adodc2.loaded();
    // A major without minors goes on showing the first one of the major before.
    startRows(*minors.grid);
    minors.fill(records);
}

void CategoriesPage::Form2_ms4_Click() {
    minors.edit();
}

void CategoriesPage::Form2_tx3_KeyPress(int KeyAscii) {
    majors.editorKey(KeyAscii);
}

void CategoriesPage::Form2_tx4_KeyPress(int KeyAscii) {
    minors.editorKey(KeyAscii);
}

// ---- rows

void CategoriesPage::Form2_Command7_Click() {
    majors.commitBox();
    majors.editor->setBoxText({});
    majors.addRow();
    majors.goToLastRow();
    majors.editor->place();
    majors.editor->setShown(true);
}

void CategoriesPage::Form2_Command10_Click() {
    minors.commitBox();
    minors.goToLastRow();
    minors.addRow();
}

void CategoriesPage::Form2_Command8_Click() {
    if (majors.isDeletionWanted() && !majors.removeRow())
        blankRows(*majors.grid);
}

void CategoriesPage::Form2_Command11_Click() {
    if (minors.isDeletionWanted())
        minors.removeRow(); // the only one stays as it is, unlike that of the majors
}

void CategoriesPage::Form2_Command9_Click() {
    Adodc1.setRecordSource(u"ysb"_s); // named only: the save works on the majors that the page loaded
    majors.save(m_majors->records());
}

void CategoriesPage::Form2_Command12_Click() {
    minors.save(m_minors->records());
}

} // namespace qinghe
