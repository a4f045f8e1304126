#pragma once

#include "controls/forms.h"

#include <QStringView>

namespace qinghe {

class BackupWindow;
class FieldTool;
class PurgeWindow;
class WebWindow;

/// Every name by which one place in the program asks for something that another place made, once: what is mistyped does
/// not compile. Names that only their maker says stand with the maker.
namespace names {

// Forms, each with what others may know of it.
inline constexpr FormName<FieldTool> DatePicker{u"Form1"};
inline constexpr FormName<> Main{u"Form2"};
inline constexpr FormName<PurgeWindow> Purge{u"Form3"};
inline constexpr FormName<> SignIn{u"Form5"};
inline constexpr FormName<> Reminder{u"Form6"};
inline constexpr FormName<WebWindow> Web{u"Form7"};
inline constexpr FormName<> InjectSkin{u"Form8"};
inline constexpr FormName<FieldTool> Calculator{u"Form9"};
inline constexpr FormName<> InjectDesktopPicture{u"Form10"};
inline constexpr FormName<> InjectSignInPicture{u"Form11"};
inline constexpr FormName<BackupWindow> Backup{u"Form13"};

// Frames and grids that pages know of each other.
inline constexpr QStringView UsersFrame = u"Frame7";
inline constexpr QStringView LoanGrid = u"ms1";
inline constexpr QStringView LedgerGrid = u"ms2";

} // namespace names

/// currentPage while a page is in front by its label.
enum class PageCode : int {
    None = 0, ///< the page has no label
    Loans = 1,
    Users = 4,
    Budget = 5,
    Accounts = 6,
    Settings = 7,
    Diary = 8,
    Charts = 12,
    Income = 20,
    Expense = 21,
    Schedule = 23,
    Desktop = 24,
};

/// dateTarget: the field that asked for the date picker.
enum class DateField : int {
    None = 0,
    ChartFrom = 1,
    ChartTo = 2,
    Ledger = 3,
    Loans = 4,
    Diary = 5,
    Schedule = 6,
    Budget = 7,
    Purge = 8,
};

/// calcTarget: the list whose cell asked for the calculator.
enum class AmountField : int {
    None = 0,
    Ledger = 1,
    Loans = 2,
    Accounts = 3,
    Budget = 4,
};

} // namespace qinghe
