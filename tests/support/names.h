#pragma once

#include <QString>

#include <array>
#include <string>

/// The names by which forms and controls are known from outside, once for all tests. They are fixed, so the tests keep
/// a list of their own: a control that is renamed in the program is no longer found.
namespace qinghe {

class CheckBox;
class ComboBox;
class CommandButton;
class CommonDialog;
class Frame;
class Image;
class Label;
class LongTextBox;
class MMControl;
class MSChart;
class MSFlexGrid;
class OptionButton;
class ProgressBar;
class TextBox;
class Timer;
class WebBrowser;

} // namespace qinghe

namespace qinghe::testing {

struct FormName {
    QStringView name;

    operator QString() const { return name.toString(); }
    operator std::string() const { return name.toString().toStdString(); }
};

/// A control of the class T. As a QString it is the control's own name, as a std::string the way to it from outside:
/// "Form2/Label2(0)".
template<class T>
struct Name {
    FormName form;
    QStringView name;
    int number = -1; ///< of those that bear a name in common

    constexpr Name operator[](int which) const { return {form, name, which}; }
    /// The one that bears this name on another form.
    constexpr Name on(const FormName& other) const { return {other, name, number}; }

    operator QString() const {
        return number < 0 ? name.toString() : name.toString() + u'(' + QString::number(number) + u')';
    }
    operator std::string() const { return std::string(form) + '/' + QString(*this).toStdString(); }
};

namespace forms {
inline constexpr FormName DatePicker{u"Form1"};
inline constexpr FormName Main{u"Form2"};
inline constexpr FormName Purge{u"Form3"};
inline constexpr FormName SignIn{u"Form5"};
inline constexpr FormName Reminder{u"Form6"};
inline constexpr FormName Web{u"Form7"};
inline constexpr FormName SkinPictures{u"Form8"};
inline constexpr FormName Calculator{u"Form9"};
inline constexpr FormName DesktopPictures{u"Form10"};
inline constexpr FormName SignInPictures{u"Form11"};
inline constexpr FormName Backup{u"Form13"};
} // namespace forms

/// The labels across the top of the main window, which bring the pages up.
namespace pages {
inline constexpr Name<Label> Desktop{forms::Main, u"Label24"};
inline constexpr Name<Label> Income{forms::Main, u"Label2", 0};
inline constexpr Name<Label> Expense{forms::Main, u"Label2", 1};
inline constexpr Name<Label> Loans{forms::Main, u"Label1"};
inline constexpr Name<Label> Accounts{forms::Main, u"Label6"};
inline constexpr Name<Label> Budget{forms::Main, u"Label5"};
inline constexpr Name<Label> Charts{forms::Main, u"Label12"};
inline constexpr Name<Label> Users{forms::Main, u"Label4"};
inline constexpr Name<Label> Diary{forms::Main, u"Label8"};
inline constexpr Name<Label> Schedule{forms::Main, u"Label23"};
inline constexpr Name<Label> Settings{forms::Main, u"Label7"};
} // namespace pages

/// The band with the name of the program.
namespace title {
inline constexpr Name<Image> Band{forms::Main, u"Picture3"};
inline constexpr Name<Label> Date{forms::Main, u"Label16"};
inline constexpr Name<Label> Time{forms::Main, u"Label17"};
inline constexpr Name<Timer> Clock{forms::Main, u"Timer1"};
inline constexpr Name<Label> WebAddress{forms::Main, u"Label20"};
inline constexpr Name<Label> Product{forms::Main, u"Label26"};
inline constexpr Name<Image> About{forms::Main, u"Image7"};
inline constexpr Name<Image> Tools{forms::Main, u"Image5"};
inline constexpr Name<Image> Minimise{forms::Main, u"Image4"};
inline constexpr Name<Image> Close{forms::Main, u"Image3"};
} // namespace title

namespace desktop {
inline constexpr Name<Frame> Page{forms::Main, u"Frame13"};
inline constexpr Name<Image> Picture{forms::Main, u"Image2"};
inline constexpr Name<Label> Plans{forms::Main, u"Label36"};
inline constexpr Name<Label> LastIncome{forms::Main, u"Label25"};
inline constexpr Name<Label> LastExpense{forms::Main, u"Label27"};
inline constexpr Name<Label> LastBudget{forms::Main, u"Label28"};
inline constexpr Name<Label> LastBorrowed{forms::Main, u"Label29"};
inline constexpr Name<Label> LastLent{forms::Main, u"Label30"};
inline constexpr Name<Label> Income{forms::Main, u"Label31"};
inline constexpr Name<Label> Expense{forms::Main, u"Label32"};
inline constexpr Name<Label> Budget{forms::Main, u"Label33"};
inline constexpr Name<Label> Borrowed{forms::Main, u"Label34"};
inline constexpr Name<Label> Lent{forms::Main, u"Label35"};
} // namespace desktop

/// Income and expense, which share a page.
namespace income {
inline constexpr Name<Frame> Page{forms::Main, u"Frame2"};
inline constexpr Name<MSFlexGrid> Grid{forms::Main, u"ms2"};
inline constexpr Name<TextBox> Box{forms::Main, u"tx2"};
inline constexpr Name<CommandButton> Add{forms::Main, u"Command4"};
inline constexpr Name<CommandButton> Remove{forms::Main, u"Command5"};
inline constexpr Name<CommandButton> Save{forms::Main, u"Command6"};
inline constexpr Name<OptionButton> Records{forms::Main, u"Option7"};
inline constexpr Name<OptionButton> ByItem{forms::Main, u"Option8"};
inline constexpr Name<OptionButton> ByPerson{forms::Main, u"Option9"};
inline constexpr Name<Label> Total{forms::Main, u"Label10"};
} // namespace income

namespace loans {
inline constexpr Name<Frame> Page{forms::Main, u"Frame6"};
inline constexpr Name<MSFlexGrid> Grid{forms::Main, u"ms1"};
inline constexpr Name<TextBox> Box{forms::Main, u"tx1"};
inline constexpr Name<CommandButton> Add{forms::Main, u"Command1"};
inline constexpr Name<CommandButton> Remove{forms::Main, u"Command2"};
inline constexpr Name<CommandButton> Save{forms::Main, u"Command3"};
inline constexpr Name<OptionButton> Borrowed{forms::Main, u"Option1"};
inline constexpr Name<OptionButton> Lent{forms::Main, u"Option2"};
inline constexpr Name<Label> Total{forms::Main, u"Label11"};
inline constexpr Name<Image> Picture{forms::Main, u"Image1"};
} // namespace loans

namespace accounts {
inline constexpr Name<Frame> Page{forms::Main, u"frame9"};
inline constexpr Name<MSFlexGrid> Grid{forms::Main, u"ms7"};
inline constexpr Name<TextBox> Box{forms::Main, u"tx7"};
inline constexpr Name<CommandButton> Add{forms::Main, u"Command19"};
inline constexpr Name<CommandButton> Remove{forms::Main, u"Command20"};
inline constexpr Name<CommandButton> Save{forms::Main, u"Command21"};
} // namespace accounts

namespace budget {
inline constexpr Name<Frame> Page{forms::Main, u"Frame8"};
inline constexpr Name<MSFlexGrid> Grid{forms::Main, u"ms6"};
inline constexpr Name<TextBox> Box{forms::Main, u"tx6"};
inline constexpr Name<CommandButton> Add{forms::Main, u"Command16"};
inline constexpr Name<CommandButton> Remove{forms::Main, u"Command17"};
inline constexpr Name<CommandButton> Save{forms::Main, u"Command18"};
} // namespace budget

namespace users {
inline constexpr Name<Frame> Page{forms::Main, u"Frame7"};
inline constexpr Name<MSFlexGrid> Grid{forms::Main, u"ms5"};
inline constexpr Name<TextBox> Box{forms::Main, u"tx5"};
inline constexpr Name<CommandButton> Add{forms::Main, u"Command13"};
inline constexpr Name<CommandButton> Remove{forms::Main, u"Command14"};
inline constexpr Name<CommandButton> Save{forms::Main, u"Command15"};
} // namespace users

namespace categories {
inline constexpr Name<Frame> Page{forms::Main, u"Frame3"};
inline constexpr Name<OptionButton> Income{forms::Main, u"Option3"};
inline constexpr Name<OptionButton> Expense{forms::Main, u"Option4"};
inline constexpr Name<Frame> MajorsFrame{forms::Main, u"Frame4"};
inline constexpr Name<MSFlexGrid> Majors{forms::Main, u"ms3"};
inline constexpr Name<TextBox> MajorBox{forms::Main, u"tx3"};
inline constexpr Name<CommandButton> AddMajor{forms::Main, u"Command7"};
inline constexpr Name<CommandButton> RemoveMajor{forms::Main, u"Command8"};
inline constexpr Name<CommandButton> SaveMajors{forms::Main, u"Command9"};
inline constexpr Name<Frame> MinorsFrame{forms::Main, u"Frame5"};
inline constexpr Name<MSFlexGrid> Minors{forms::Main, u"ms4"};
inline constexpr Name<TextBox> MinorBox{forms::Main, u"tx4"};
inline constexpr Name<CommandButton> AddMinor{forms::Main, u"Command10"};
inline constexpr Name<CommandButton> RemoveMinor{forms::Main, u"Command11"};
inline constexpr Name<CommandButton> SaveMinors{forms::Main, u"Command12"};
} // namespace categories

namespace charts {
inline constexpr Name<Frame> Page{forms::Main, u"Frame15"};
inline constexpr Name<Frame> Kinds{forms::Main, u"Frame11"};
inline constexpr Name<OptionButton> Accounts{forms::Main, u"Option10"};
inline constexpr Name<OptionButton> YearsIncome{forms::Main, u"Option11"};
inline constexpr Name<OptionButton> YearsExpense{forms::Main, u"Option12"};
inline constexpr Name<OptionButton> IncomeByItem{forms::Main, u"Option13"};
inline constexpr Name<OptionButton> ExpenseByItem{forms::Main, u"Option15"};
inline constexpr Name<Frame> Range{forms::Main, u"Frame1"};
inline constexpr Name<Label> In{forms::Main, u"Label13"};
inline constexpr Name<TextBox> From{forms::Main, u"Text1"};
inline constexpr Name<Label> And{forms::Main, u"Label14"};
inline constexpr Name<TextBox> To{forms::Main, u"Text2"};
inline constexpr Name<Label> Between{forms::Main, u"Label15"};
inline constexpr Name<CommandButton> Query{forms::Main, u"Command25"};
inline constexpr Name<Frame> ChartFrame{forms::Main, u"Frame12"};
inline constexpr Name<MSChart> Chart{forms::Main, u"MSC1"};
} // namespace charts

namespace diary_page {
inline constexpr Name<Frame> Page{forms::Main, u"Frame10"};
inline constexpr Name<OptionButton> Write{forms::Main, u"Option6"};
inline constexpr Name<OptionButton> Find{forms::Main, u"Option5"};
inline constexpr Name<CommandButton> Add{forms::Main, u"Command22"};
inline constexpr Name<CommandButton> Remove{forms::Main, u"Command23"};
inline constexpr Name<CommandButton> Save{forms::Main, u"Command24"};
inline constexpr Name<MSFlexGrid> Grid{forms::Main, u"ms8"};
inline constexpr Name<TextBox> Box{forms::Main, u"tx9"};
inline constexpr Name<LongTextBox> Text{forms::Main, u"tx8"};
} // namespace diary_page

namespace schedule {
inline constexpr Name<Frame> Page{forms::Main, u"Frame17"};
inline constexpr Name<Label> Counter{forms::Main, u"Label3"};
inline constexpr Name<LongTextBox> Plan{forms::Main, u"Text3"};
inline constexpr Name<Frame> Reminder{forms::Main, u"Frame18"};
inline constexpr Name<Label> DateWords{forms::Main, u"Label9"};
inline constexpr Name<TextBox> Date{forms::Main, u"Text4"};
inline constexpr Name<Label> TimeWords{forms::Main, u"Label18"};
inline constexpr Name<ComboBox> Hour{forms::Main, u"Combo3"};
inline constexpr Name<Label> HourWord{forms::Main, u"Label19"};
inline constexpr Name<ComboBox> Minute{forms::Main, u"Combo4"};
inline constexpr Name<Label> MinuteWord{forms::Main, u"Label45"};
inline constexpr Name<Label> MusicWords{forms::Main, u"Label46"};
inline constexpr Name<ComboBox> Music{forms::Main, u"Combo1"};
inline constexpr Name<CommandButton> TakeMusic{forms::Main, u"Command29"};
inline constexpr Name<Label> Taken{forms::Main, u"Label22"};
inline constexpr Name<CheckBox> Remind{forms::Main, u"Check1"};
inline constexpr Name<CommandButton> New{forms::Main, u"Command26"};
inline constexpr Name<CommandButton> Today{forms::Main, u"Command27"};
inline constexpr Name<CommandButton> Save{forms::Main, u"Command28"};
inline constexpr Name<Timer> Watch{forms::Main, u"Timer2"};
inline constexpr Name<Timer> Pause{forms::Main, u"Timer3"};
inline constexpr Name<MMControl> Player{forms::Main, u"MM1"};
} // namespace schedule

namespace settings {
inline constexpr Name<Frame> Page{forms::Main, u"Frame16"};
inline constexpr Name<Frame> System{forms::Main, u"Frame20"};
inline constexpr Name<CheckBox> Remind{forms::Main, u"Check8"};
inline constexpr Name<CheckBox> ToTray{forms::Main, u"Check7"};
inline constexpr Name<CheckBox> AtSystemStart{forms::Main, u"Check5"};
inline constexpr Name<CheckBox> ChangeSkin{forms::Main, u"Check10"};
inline constexpr Name<ComboBox> Skins{forms::Main, u"Combo2"};
inline constexpr Name<CommandButton> KeepSkin{forms::Main, u"Command30"};
inline constexpr Name<CommandButton> Categories{forms::Main, u"Command31"};
inline constexpr Name<CommandButton> Pictures{forms::Main, u"Command32"};
inline constexpr Name<Frame> Files{forms::Main, u"Frame19"};
inline constexpr Name<OptionButton> Backup{forms::Main, u"Option14"};
inline constexpr Name<OptionButton> Restore{forms::Main, u"Option16"};
inline constexpr Name<CheckBox> Purge{forms::Main, u"Check3"};
inline constexpr Name<CheckBox> WipeDiary{forms::Main, u"Check2"};
inline constexpr Name<CheckBox> Initialise{forms::Main, u"Check4"};
} // namespace settings

namespace sign_in {
inline constexpr Name<ComboBox> User{forms::SignIn, u"Combo1"};
inline constexpr Name<TextBox> Password{forms::SignIn, u"Text2"};
inline constexpr Name<CheckBox> Remember{forms::SignIn, u"Check1"};
inline constexpr Name<Label> RememberWords{forms::SignIn, u"Label3"};
inline constexpr Name<Label> Enter{forms::SignIn, u"Label1"};
inline constexpr Name<Image> Minimise{forms::SignIn, u"Image1"};
inline constexpr Name<Image> Close{forms::SignIn, u"Image2"};
} // namespace sign_in

namespace date_picker {
inline constexpr Name<CommandButton> Forward{forms::DatePicker, u"Command1"};
inline constexpr Name<CommandButton> Back{forms::DatePicker, u"Command2"};
inline constexpr Name<Label> Month{forms::DatePicker, u"Label1"};
inline constexpr Name<Label> WeekDays{forms::DatePicker, u"Label2"};
inline constexpr Name<Label> Day{forms::DatePicker, u"Label3"};
} // namespace date_picker

namespace calculator {
inline constexpr Name<TextBox> Display{forms::Calculator, u"Text1"};
inline constexpr Name<CommandButton> Digit{forms::Calculator, u"Command1"};
inline constexpr Name<CommandButton> Operation{forms::Calculator, u"Command2"};
inline constexpr Name<CommandButton> Equals{forms::Calculator, u"Command3"};
inline constexpr Name<CommandButton> Clear{forms::Calculator, u"Command4"};
inline constexpr Name<CommandButton> Fill{forms::Calculator, u"fill"};
} // namespace calculator

namespace reminder {
inline constexpr Name<Label> Plan{forms::Reminder, u"Label1"};
inline constexpr Name<CommandButton> Understood{forms::Reminder, u"Command1"};
inline constexpr Name<CommandButton> EndMusic{forms::Reminder, u"Command2"};
inline constexpr Name<Timer> Clock{forms::Reminder, u"Timer1"};
} // namespace reminder

namespace web {
inline constexpr Name<WebBrowser> Browser{forms::Web, u"Web1"};
} // namespace web

namespace purge {
inline constexpr Name<Frame> Records{forms::Purge, u"Frame1"};
inline constexpr Name<CheckBox> Kind{forms::Purge, u"Check1"};
inline constexpr Name<CheckBox> Plans{forms::Purge, u"Check2"};
inline constexpr Name<Label> DateWords{forms::Purge, u"Label2"};
inline constexpr Name<TextBox> Date{forms::Purge, u"Text1"};
inline constexpr Name<Label> BeforeWords{forms::Purge, u"Label3"};
inline constexpr Name<Frame> Explained{forms::Purge, u"Frame2"};
inline constexpr Name<Label> Explanation{forms::Purge, u"Label1"};
inline constexpr Name<CommandButton> Start{forms::Purge, u"Command1"};
} // namespace purge

namespace backup {
inline constexpr Name<Frame> Ground{forms::Backup, u"Frame1"};
inline constexpr Name<Image> Disc{forms::Backup, u"Image1"};
inline constexpr Name<Label> Words{forms::Backup, u"Label1"};
inline constexpr Name<ProgressBar> Progress{forms::Backup, u"Pro1"};
inline constexpr Name<CommandButton> Start{forms::Backup, u"Command1"};
inline constexpr Name<CommonDialog> Chooser{forms::Backup, u"Com1"};
} // namespace backup

/// The three windows that take pictures in name their controls alike.
namespace pictures {
inline constexpr Name<Label> PathWords{forms::SkinPictures, u"Label1"};
inline constexpr Name<TextBox> Path{forms::SkinPictures, u"Text1"};
inline constexpr Name<Label> NameWords{forms::SkinPictures, u"Label2"};
inline constexpr Name<TextBox> Called{forms::SkinPictures, u"Text2"};
inline constexpr Name<CommandButton> Browse{forms::SkinPictures, u"Command1"};
inline constexpr Name<CommandButton> Store{forms::SkinPictures, u"Command2"};
} // namespace pictures

/// A page that a label of the row brings up.
struct LabelledPage {
    Name<Label> label;
    QStringView caption;
    double left; ///< of the label, in twips
    int number;  ///< currentPage while it is in front
    Name<Frame> frame;
};

/// All of them, as their labels stand from left to right.
inline constexpr std::array LabelledPages{
    LabelledPage{pages::Desktop, u"  桌面", 0, 24, desktop::Page},
    LabelledPage{pages::Income, u"  收入", 1080, 20, income::Page},
    LabelledPage{pages::Expense, u"  支出", 2160, 21, income::Page},
    LabelledPage{pages::Loans, u"  暂借", 3240, 1, loans::Page},
    LabelledPage{pages::Accounts, u"  储蓄", 4320, 6, accounts::Page},
    LabelledPage{pages::Budget, u"  预算", 5400, 5, budget::Page},
    LabelledPage{pages::Charts, u"  图表", 6480, 12, charts::Page},
    LabelledPage{pages::Users, u" 用户", 7680, 4, users::Page},
    LabelledPage{pages::Diary, u"  日记", 8640, 8, diary_page::Page},
    LabelledPage{pages::Schedule, u"  日程", 9720, 23, schedule::Page},
    LabelledPage{pages::Settings, u" 设置", 10920, 7, settings::Page},
};

} // namespace qinghe::testing
