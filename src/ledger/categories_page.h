#pragma once

#include "core/main_window.h"
#include "ledger/category_list.h"

namespace qinghe {

/// The page of the categories, `Frame3`: majors on the left (ms3), the minors and quick codes of the major clicked on
/// the right (ms4), for income or for expense. It is a little world of its own: no other page reads what it keeps, and
/// a quick code stands for nothing.
///
/// The two lists share a table and know nothing of each other. Saving the majors leaves no minor; saving minors writes
/// them one column to the left, so that they are majors when the page is opened again: what was saved last is what the
/// table holds.
class CategoriesPage : public Page {
    Q_OBJECT

public:
    explicit CategoriesPage(MainWindow& window);

    void left() override;
    void rescue(RescuedTexts& texts) const override;
    std::vector<EditorTarget> searchedLists() const override;
    /// Those of the list that has the keyboard: the other one's save would clear away what it holds.
    KeyedButtons keyedButtons() const override;

    void Form2_Option3_Click();
    void Form2_Option4_Click();
    void Form2_ms3_Click();
    void Form2_ms4_Click();
    void Form2_Command7_Click();
    void Form2_Command8_Click();
    void Form2_Command9_Click();
    void Form2_Command10_Click();
    void Form2_Command11_Click();
    void Form2_Command12_Click();

private:
    /// What income and expense differ in.
    struct Classification;
    static const Classification& income();
    static const Classification& expense();

    void bindEvents();
    void enter();
    void open(const Classification& chosen);

    Shared& m_shared;
    Adodc& Adodc1; // the majors
    Adodc& Adodc2; // the rows of the major clicked
    Frame& Frame3;
    OptionButton* Option3; // 收入分类
    OptionButton* Option4; // 支出分类
    CategoryList m_majors; // ms3, tx3, Command7 to Command9
    CategoryList m_minors; // ms4, tx4, Command10 to Command12

    // What the saves work on, whatever others use the controls for meanwhile.
    std::shared_ptr<LoadedSet> m_majorsLoaded;
    std::shared_ptr<LoadedSet> m_minorsLoaded;
};

} // namespace qinghe
