#pragma once

#include <QtGlobal>

/// Colours by which controls tell what they are at present, as the controls keep them: 0x00BBGGRR.
namespace qinghe::ink {

inline constexpr quint32 Black = 0x000000;
inline constexpr quint32 White = 0xFFFFFF;
inline constexpr quint32 Red = 0x0000FF;
inline constexpr quint32 Blue = 0xFF0000;
inline constexpr quint32 Amber = 0x004A7A;
inline constexpr quint32 Yellow = 0x00FFFF;
inline constexpr quint32 Pine = 0x2C4A1E;
inline constexpr quint32 HoverGrey = 0xE0E0E0;

} // namespace qinghe::ink
