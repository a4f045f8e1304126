#pragma once

#include <QStringView>

#include <array>

namespace qinghe {

/// The tables of the data file, by what they hold. Their names in the file never change.
namespace tables {

inline constexpr QStringView Income = u"srb";
inline constexpr QStringView Expense = u"zcb";
inline constexpr QStringView Borrowed = u"jrb";
inline constexpr QStringView Lent = u"jcb";
inline constexpr QStringView Budget = u"ysb";
inline constexpr QStringView Accounts = u"zhb";
inline constexpr QStringView Schedule = u"rcb";
inline constexpr QStringView Diary = u"rjb";
inline constexpr QStringView Users = u"yhb";
inline constexpr QStringView Remembered = u"登陆用户记录表"; ///< the pair that the sign-in offers, one row or none
inline constexpr QStringView IncomeClasses = u"srflb";
inline constexpr QStringView ExpenseClasses = u"zcflb";
inline constexpr QStringView Reminding = u"txb";   ///< one row: remind at sign-in
inline constexpr QStringView Tray = u"systuopanb"; ///< one row: minimise to the tray
inline constexpr QStringView OfferedSkins = u"软件皮肤";
inline constexpr QStringView ChosenSkin = u"皮肤选择"; ///< one row
inline constexpr QStringView DesktopPicture = u"主界面";
inline constexpr QStringView SignInPicture = u"登陆皮肤";
inline constexpr QStringView IncomeScratch = u"nsrb";   ///< income by months, filled for a chart
inline constexpr QStringView ExpenseScratch = u"nzcb";  ///< the same of expense
inline constexpr QStringView MonthScratch = u"sztjlsb"; ///< a whole ledger by months, filled for the month's reports

/// What initialising the file empties, in this order. Users, categories, the month statistics, settings and pictures
/// stay, and so do the files of the diary.
inline constexpr std::array Initialised{Lent,  Borrowed, IncomeScratch, ExpenseScratch, Schedule,
                                        Diary, Income,   Budget,        Expense,        Accounts};

} // namespace tables

/// Their columns. One name may stand in several tables.
namespace columns {

// income and expense, and the scratch tables
inline constexpr QStringView Code = u"编号";
inline constexpr QStringView Time = u"时间"; ///< a day; in the scratch tables a month as a text
inline constexpr QStringView Item = u"项目";
inline constexpr QStringView Payee = u"收款人";
inline constexpr QStringView Payer = u"付款人";
inline constexpr QStringView Amount = u"金额";
inline constexpr QStringView Account = u"账户"; ///< of loans too
inline constexpr QStringView Note = u"备注";    ///< of loans and the budget too
inline constexpr QStringView Person = u"人员";
/// The row's number when it was saved, in every table that is shown in a grid; the last of its first columns.
inline constexpr QStringView RowNumber = u"区别";
// loans
inline constexpr QStringView Day = u"日期"; ///< of the diary too
inline constexpr QStringView BorrowedAmount = u"借入金额";
inline constexpr QStringView LentAmount = u"借出金额";
inline constexpr QStringView PaidBack = u"已还金额";
inline constexpr QStringView Balance = u"余额"; ///< of savings accounts too
inline constexpr QStringView Lender = u"借出人";
inline constexpr QStringView Borrower = u"借给人";
// budget
inline constexpr QStringView BudgetTime = u"预算时间";
inline constexpr QStringView BudgetItem = u"预算项目";
inline constexpr QStringView BudgetAmount = u"预算金额";
// savings accounts
inline constexpr QStringView AccountName = u"账户名称";
inline constexpr QStringView OpeningAmount = u"起始金额";
inline constexpr QStringView Received = u"收入";
inline constexpr QStringView Spent = u"支出";
inline constexpr QStringView Borrowed = u"借入";
inline constexpr QStringView Lent = u"借出";
inline constexpr QStringView MovedIn = u"转入";
inline constexpr QStringView MovedOut = u"转出";
inline constexpr QStringView AccountNote = u"备注信息";
// schedule and diary
inline constexpr QStringView WrittenOn = u"设置日期";
inline constexpr QStringView PlanNumber = u"日程号";
inline constexpr QStringView PlanDay = u"日程日期";
inline constexpr QStringView PlanTime = u"提醒时间";
inline constexpr QStringView PlanText = u"日程内容";
inline constexpr QStringView PlanMusic = u"提醒音乐";
inline constexpr QStringView DiaryTitle = u"日记标题";
// users
inline constexpr QStringView UserName = u"用户名";
inline constexpr QStringView UserPassword = u"用户密码";
inline constexpr QStringView RememberedPassword = u"密码";
// categories
inline constexpr QStringView IncomeMajor = u"收入大类";
inline constexpr QStringView IncomeMinor = u"收入细类";
inline constexpr QStringView ExpenseMajor = u"支出大类";
inline constexpr QStringView ExpenseMinor = u"支出细类";
inline constexpr QStringView QuickCode = u"快速代码";
// choices
inline constexpr QStringView RemindAtSignIn = u"日程提醒";
inline constexpr QStringView MinimiseToTray = u"最小化到托盘";
// pictures: name, size in bytes, bytes; three tables, three words
inline constexpr QStringView PictureName = u"名称";
inline constexpr QStringView PictureSize = u"大小";
inline constexpr QStringView SkinBytes = u"皮肤";
inline constexpr QStringView DesktopBytes = u"文件";
inline constexpr QStringView ChosenName = u"皮肤名";
inline constexpr QStringView ChosenSize = u"文件大小";
inline constexpr QStringView ChosenBytes = u"皮肤文件";

} // namespace columns

} // namespace qinghe
