#pragma once

#include "core/shared.h"
#include "store/tables.h"

namespace qinghe {

/// A choice of yes or no that is the one row of a table. It is rewritten whole at each change: all rows go, one comes.
struct StoredChoice {
    QStringView query; ///< of its column
    QStringView column;

    /// Whether the table holds a row and its first one says yes. Leaves the query open on `control`.
    bool isYes(Adodc& control) const;
    /// Through `control`, which keeps the query open.
    void rewrite(Adodc& control, bool yes) const;
};

inline constexpr StoredChoice RemindAtSignIn{u"select 日程提醒 from txb", columns::RemindAtSignIn};
inline constexpr StoredChoice MinimiseToTray{u"select 最小化到托盘 from systuopanb", columns::MinimiseToTray};

/// Whether reminders begin with the sign-in: the table holds one row, which says yes. Leaves the query open.
bool remindsAtSignIn(Adodc& control);

/// The click of a box that stands for a choice: rewrites it and says so. Ticking what is already stored is silent,
/// because the start ticks the boxes in code and is heard here like a user.
void storeTick(const Shared& shared, Adodc& control, const StoredChoice& choice, const CheckBox& box,
               const QString& done, const QString& title);

/// The same of a box that stands for RemindAtSignIn. There are two, on two pages; they are brought into line when the
/// main window loads and not again: the one clicked last counts.
void storeReminderTick(const Shared& shared, Adodc& control, const CheckBox& box);

} // namespace qinghe
