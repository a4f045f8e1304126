#pragma once

#include "core/navigation.h"

#include <QDate>

namespace qinghe {

/// The desktop page, `Frame13`: ten sums of last month and this month, computed once at the load of the main window,
/// and today's plans, which are always current.
class DesktopPage : public Page {
    Q_OBJECT

public:
    DesktopPage(Shared& shared, Navigation& navigation, Adodc& Adodc1);

    void tabClicked(PageCode) override { Form2_Label24_Click(); }

    Image* Image2;  // the picture behind, which carries the words of the rows and columns
    Label* Label36; // today's plans

    /// Reads the ten sums and writes them into their labels.
    void computeSums();
    /// Adds today's plans to what Label36 shows, or says that there are none.
    void listPlans(bool clearFirst);

    void Form2_Label24_Click();

private:
    struct Sum {
        Label* label;
        Value total; ///< of the sign-in, NULL where nothing was summed
    };
    void showSums();
    /// What the figure's tool tip says: the sum of its calendar month as the book stands now, and of when the figure
    /// is.
    void tellTrueSum(std::size_t figure);
    /// The text of that sum; nothing while the book cannot be read.
    QString trueSum(std::size_t figure) const;

    Shared& m_shared;
    Adodc& Adodc1;
    QDate m_signedIn; ///< the day to whose months the sums belong
    std::array<Sum, 10> m_sums;
};

} // namespace qinghe
