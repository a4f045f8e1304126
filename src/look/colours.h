#pragma once

#include <QColor>

/// The colours of the program. No other file of the look names a colour that appears in more than one control.
namespace qinghe::colour {

inline constexpr QColor fromRgb(QRgb rgb) {
    return {qRed(rgb), qGreen(rgb), qBlue(rgb)};
}
/// The same colour, `percent` of a hundred opaque.
inline QColor faded(QColor colour, double percent) {
    colour.setAlphaF(static_cast<float>(percent / 100.0));
    return colour;
}

inline constexpr QColor Ink = fromRgb(0x1F2D22);       ///< text
inline constexpr QColor Ink2 = fromRgb(0x47584A);      ///< help text
inline constexpr QColor Ink3 = fromRgb(0x5F6F62);      ///< units and axes, on white only
inline constexpr QColor LeafBlack = fromRgb(0x23491B); ///< the product's name
inline constexpr QColor LeafDark = fromRgb(0x2F5E24);  ///< captions of grids, totals, inner tags, primary captions
inline constexpr QColor LeafDeep = fromRgb(0x3A7426);  ///< page tags, primary edges, ticks, icons
inline constexpr QColor Leaf = fromRgb(0x5FA33A);      ///< the accent; never text
inline constexpr QColor LeafLink = fromRgb(0x285A1A);
inline constexpr QColor LeafTag = fromRgb(0xD9EBC8);
inline constexpr QColor LeafSel = fromRgb(0xD5ECBF);  ///< the current cell
inline constexpr QColor LeafPale = fromRgb(0xE4F1D8); ///< grid captions, icon discs
inline constexpr QColor LeafMist = fromRgb(0xF5FAF0); ///< every second row
inline constexpr QColor TitleGlyph = fromRgb(0x2E4433);

inline constexpr QColor Ctl = fromRgb(0x7E9A70); ///< a control's edge
inline constexpr QColor PanelLine = fromRgb(0xC9DABF);
inline constexpr QColor Line = fromRgb(0xD8E4D0); ///< lines of grids
inline constexpr QColor Pressed = fromRgb(0xCFE3BD);
inline constexpr QColor Hovered = fromRgb(0xE0E0E0);

inline constexpr QColor Off = fromRgb(0x8A968C); ///< disabled text, fill and edge
inline constexpr QColor OffBg = fromRgb(0xF1F4EE);
inline constexpr QColor OffLine = fromRgb(0xCBD5C6);

inline constexpr QColor Pine = fromRgb(0x1E4A2C); ///< the date picker's body
inline constexpr QColor PineWords = fromRgb(0xBFE0A2);
inline constexpr QColor PineLine = fromRgb(0x3F7A55);
inline constexpr QColor TodayEdge = fromRgb(0xC9D8FF);

inline constexpr QColor Amber = fromRgb(0xB86A00); ///< what cannot be undone
inline constexpr QColor AmberText = fromRgb(0x7A4A00);
inline constexpr QColor AmberPale = fromRgb(0xFFF9ED);
inline constexpr QColor AmberDisc = fromRgb(0xFFF4DE);

inline constexpr QColor Brown = fromRgb(0x6A4A0C); ///< the plans card
inline constexpr QColor BrownPale = fromRgb(0xF6EBC9);
inline constexpr QColor BrownRow = fromRgb(0x8A5A12); ///< loan rows of the desktop
inline constexpr QColor BrownRowPale = fromRgb(0xF8EDD5);

inline constexpr QColor White = fromRgb(0xFFFFFF);
inline constexpr QColor Red = fromRgb(0xFF0000); ///< the selected page label
inline constexpr QColor Neighbour = fromRgb(0xFFFF00);
inline constexpr QColor Today = fromRgb(0x0000FF);

inline constexpr QColor GridEdge = fromRgb(0xBCD0AE);
inline constexpr QColor CaptionBase = fromRgb(0xB4CE9F);
inline constexpr QColor MarkerColumn = fromRgb(0xEFF6E8);
inline constexpr QColor PaperRule = fromRgb(0xEDF3E7);
inline constexpr QColor CurrentRow = fromRgb(0xEAF5DE);
inline constexpr QColor EditorOff = fromRgb(0xEDF3E6);
inline constexpr QColor Thumb = fromRgb(0xA9C298);
inline constexpr QColor Groove = fromRgb(0xE9F1E1);
inline constexpr QColor BarFrom = fromRgb(0x8CC866);
inline constexpr QColor Paper = fromRgb(0xFFFEF8);
inline constexpr QColor PaperLine = fromRgb(0xE3EBD2);
inline constexpr QColor Strip = fromRgb(0xEDF6E4);
inline constexpr QColor Well = fromRgb(0xF1F8EA);
inline constexpr QColor WellEdge = fromRgb(0xD3E6C2);
inline constexpr QColor DialogFrom = fromRgb(0xF7FBF3);
inline constexpr QColor DialogTo = fromRgb(0xE6F2D8);
inline constexpr QColor CalculatorGround = fromRgb(0xEEF5E6);

} // namespace qinghe::colour
