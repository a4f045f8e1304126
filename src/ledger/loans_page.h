#pragma once

#include "core/grid_page.h"

namespace qinghe {

/// The page of loans, `Frame6`: two lists of one shape in one grid, money borrowed (`jrb`) and money lent (`jcb`). What
/// is left of a loan is no difference that this page works out: all three amounts stand as they are written.
class LoansPage : public GridPage {
    Q_OBJECT

public:
    explicit LoansPage(MainWindow& window);

    void tabClicked(PageCode) override { Form2_Label1_Click(); }

    void Form2_Label1_Click(); ///< brings up the lent list
    void Form2_Image1_Click(); ///< brings up the borrowed list, over whatever page is chosen
    void Form2_Option1_Click();
    void Form2_Option2_Click();

protected:
    const List& list() const override;

private:
    /// What the two lists differ in.
    struct Loans;
    static const Loans& borrowed();
    static const Loans& lent();
    const Loans& chosen() const;

    void makeImage1();
    /// Gives the balance, which takes no typing, a way to be filled.
    void makeBalanceMenu();
    /// An option's click: list, captions and totals.
    void choose();
    void showTotal();

    OptionButton* Option1; // 借入表
    OptionButton* Option2; // 借出表
    Label* Label11;        // the totals
    Image* Image1;         // 借入记录, in the title band
    QMenu* m_balanceMenu;  ///< of a balance
    int m_menuRow = 1;     ///< whose balance
};

} // namespace qinghe
