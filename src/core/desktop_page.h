#pragma once

#include "core/navigation.h"

namespace qinghe {

/// The desktop page, `Frame13`: ten sums of last month and this month, computed once at the load of the main window,
/// and today's plans, which are always current.
class DesktopPage : public Page {
    Q_OBJECT

public:
    DesktopPage(Shared& shared, Navigation& navigation, Adodc& Adodc1);

    void tabClicked(int) override { Form2_Label24_Click(); }

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

    Shared& m_shared;
    Adodc& Adodc1;
    std::array<Sum, 10> m_sums;
};

/// The two keys of the desktop's sums. The keys are meant as they are: together with the dates' text form they decide
/// which rows are counted. Last month: the year, "-", "0" and the month before without further care (00 in January, 010
/// in November). This month: no leading zero.
QString lastMonthKey(const QDate& today);
QString thisMonthKey(const QDate& today);

} // namespace qinghe
