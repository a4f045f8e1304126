#pragma once

#include <QStyle>

/// What the controls ask of the program's style beyond Qt's own elements. The controls only say what they are; how they
/// look is told in the look floor alone.
namespace qinghe {

enum class Role {
    Plain,
    // labels
    ProductName,  ///< the program's name as a heading
    PageLabel,    ///< the row of page labels
    ChosenLabel,  ///< the one of them whose page is in view: bold, on its tab, over a bar
    ClockText,    ///< date and time in the title band, 9 pt
    Link,         ///< underlined address
    Figure,       ///< a sum among others: serif, bold, right-aligned
    PlanList,     ///< a list of lines: running text from the top
    Total,        ///< the sum below a table
    SignInButton, ///< a label that is pressed like a button; red (ForeColor 255) is its pointed-at state
    MonthTitle,   ///< a calendar's year and month
    WeekRow,      ///< a calendar's head line: seven characters over seven columns
    DayCell,      ///< one day of a calendar
    WalkedDay,    ///< the one of them that keys are at: in a ring
    Help,         ///< small explaining text, running
    ReminderText, ///< a notice's words: running text, 12 pt
    Hairline,     ///< no words: a line through the middle of the label
    Caution,      ///< an amber ground; its words stand at its head behind a warning sign
    Well,         ///< no words: a pale ground under other labels
    // images
    Glyph,     ///< an icon of the set, see Placed::setGlyph
    GlyphDisc, ///< an icon on a pale disc
    Picture,   ///< a picture that fills its control
    // buttons
    Primary,      ///< the one main button of a group
    PickerArrow,  ///< a step button of a calendar
    CalcKey,      ///< a key of a calculator
    CalcOperator, ///< an operator key
    // text boxes
    CellEditor,  ///< lies over a cell of a grid
    CalcDisplay, ///< large figures on the right; of a text too long for it the end
    // grids
    Report, ///< disabled because it is there to be read, and not for want of something
    // frames
    PageFrame,  ///< a page
    InnerFrame, ///< a group on a page or in a window
    BareFrame,  ///< paints nothing
    StripFrame, ///< a narrow bar of controls
};

/// The ground of a form.
enum class Ground {
    Main,       ///< the picture, the veil over the title band, the label shelf
    SignIn,     ///< the picture alone
    Dialog,     ///< F7FBF3 to E6F2D8 with seedlings along the foot
    Pine,       ///< dark green, one colour
    Calculator, ///< EEF5E6, one colour
};

/// The line icons.
enum class Glyph {
    None,
    Borrow,
    Info,
    Tools,
    Minimise,
    Close,
    Add,
    Remove,
    Accept,
    Search,
    List,
    Back,
    Forward,
    Income,
    Expense,
    Budget,
    Borrowed,
    Lent,
    Calendar,
    Music,
    Mute,
    Bell,
    Backup,
    Restore,
    Question,
    Warning,
    Person,
    Lock,
    Down,
    AppIcon, ///< the program's own icon, in colour
};

/// Elements that the style paints for our controls. The option is a plain QStyleOption with rect and palette; the
/// widget is the control and is asked for the rest.
enum StyleElement : unsigned {
    PE_FormGround = static_cast<unsigned>(QStyle::PE_CustomBase) + 1, ///< widget: Form
    PE_LedgerPaper,  ///< rules below a grid's last row; option.rect is the empty room; widget: MSFlexGrid
    PE_GridEdge,     ///< the edge round a grid; it tells whether the grid has the keyboard
    PE_KeyboardRing, ///< round what has the keyboard, to be seen on every ground
    CE_Words = static_cast<unsigned>(QStyle::CE_CustomBase) + 1,   ///< widget: Label
    CE_Image,                                                      ///< widget: Image
    SH_CellFit = static_cast<unsigned>(QStyle::SH_CustomBase) + 1, ///< a CellFit; a view item's option; widget:
                                                                   ///< MSFlexGrid
};

/// How a cell shows its text: whole, whole in type that is hard to read, or no more than its head.
enum class CellFit { Whole, Tiny, Cut };

} // namespace qinghe
