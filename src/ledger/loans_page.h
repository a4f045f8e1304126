#pragma once

#include "core/grid_page.h"

namespace qinghe {

/// The page of loans, `Frame6`: two lists of one shape in one grid, money borrowed (`jrb`) and money lent (`jcb`). What
/// is left of a loan is no difference that this page works out: all three amounts stand as they are written.
class LoansPage : public GridPage {
    Q_OBJECT

public:
    explicit LoansPage(MainWindow& window);

    void tabClicked(int) override { Form2_Label1_Click(); }
    void formClicked() override;

    void Form2_Label1_Click(); ///< brings up the lent list
    void Form2_Image1_Click(); ///< brings up the borrowed list, over whatever page is chosen
    void Form2_Option1_Click();
    void Form2_Option2_Click();

protected:
    QString table() const override;

private:
    /// What the two lists differ in.
    struct List;
    static const List& borrowed();
    static const List& lent();

    void makeImage1();
    /// What both ways to the page share: option, table, columns, rows. The first row is not blanked.
    void bringUp(OptionButton& option, const List& list);
    /// An option's click: list, captions and totals.
    void choose(const List& list);
    /// The rows of the list, with its caption of the amount.
    void loadList(const List& list);
    void showTotal(const List& list);

    OptionButton* Option1; // 借入表
    OptionButton* Option2; // 借出表
    Label* Label11;        // the totals
    Image* Image1;         // 借入记录, in the title band
};

} // namespace qinghe
