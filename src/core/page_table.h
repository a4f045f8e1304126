#pragma once

#include <QString>

#include <array>

namespace qinghe {

/// A page of the main window: its label in the row across the top, its number and its frame. Twips.
struct Page {
    const char16_t* label;
    const char16_t* caption;
    double labelLeft;
    int code; ///< currentPage while the page is in front
    const char16_t* frame;
    double left, top, width, height;
};

inline constexpr std::array<Page, 11> Pages{{
    {u"Label24", u"  桌面", 0, 24, u"Frame13", 200, 1680, 11535, 6135},
    {u"Label2(0)", u"  收入", 1080, 20, u"Frame2", 120, 1680, 11655, 6255},
    {u"Label2(1)", u"  支出", 2160, 21, u"Frame2", 120, 1680, 11655, 6255},
    {u"Label1", u"  暂借", 3240, 1, u"Frame6", 120, 1680, 11655, 6255},
    {u"Label6", u"  储蓄", 4320, 6, u"frame9", 120, 1680, 11655, 6255},
    {u"Label5", u"  预算", 5400, 5, u"Frame8", 120, 1680, 11655, 6255},
    {u"Label12", u"  图表", 6480, 12, u"Frame15", 120, 1680, 11655, 6225},
    {u"Label4", u" 用户", 7680, 4, u"Frame7", 120, 1680, 11655, 6255},
    {u"Label8", u"  日记", 8640, 8, u"Frame10", 120, 1680, 11655, 6255},
    {u"Label23", u"  日程", 9720, 23, u"Frame17", 120, 1680, 11655, 6015},
    {u"Label7", u" 设置", 10920, 7, u"Frame16", 120, 1680, 11655, 6135},
}};

/// The frames of the window from the back to the front, with the captions that they hold at first. `Frame3` (the
/// categories) has no label of its own.
struct PageFrame {
    const char16_t* name;
    const char16_t* caption;
};

inline constexpr std::array<PageFrame, 11> PageFrames{{
    {u"Frame13", u"桌面"},
    {u"Frame2", u"收入—支出"},
    {u"Frame6", u"借入—借出"},
    {u"frame9", u"账户"},
    {u"Frame8", u"支出预算"},
    {u"Frame15", u"图表分析"},
    {u"Frame7", u"用户设置"},
    {u"Frame10", u"日记"},
    {u"Frame17", u"日程提醒"},
    {u"Frame16", u"设置"},
    {u"Frame3", u"分类设置"},
}};

} // namespace qinghe
