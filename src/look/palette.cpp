#include "look/palette.h"

#include "look/colours.h"

namespace qinghe {

QPalette programPalette() {
    QPalette palette(colour::White, colour::DialogFrom);
    const auto set = [&](QPalette::ColorRole role, const QColor& usual, const QColor& disabled) {
        palette.setColor(role, usual);
        palette.setColor(QPalette::Disabled, role, disabled);
    };
    set(QPalette::WindowText, colour::Ink, colour::Off);
    set(QPalette::Text, colour::Ink, colour::Off);
    set(QPalette::ButtonText, colour::Ink, colour::Off);
    set(QPalette::PlaceholderText, colour::Ink3, colour::Off);
    set(QPalette::Window, colour::DialogFrom, colour::DialogFrom);
    set(QPalette::Base, colour::White, colour::OffBg);
    set(QPalette::AlternateBase, colour::LeafMist, colour::OffBg);
    set(QPalette::Button, colour::White, colour::OffBg);
    set(QPalette::Highlight, colour::LeafSel, colour::OffLine);
    set(QPalette::HighlightedText, colour::Ink, colour::Ink);
    set(QPalette::ToolTipBase, colour::White, colour::White);
    set(QPalette::ToolTipText, colour::Ink, colour::Ink);
    set(QPalette::Link, colour::LeafLink, colour::Off);
    set(QPalette::LinkVisited, colour::LeafLink, colour::Off);
    set(QPalette::Light, colour::White, colour::White);
    set(QPalette::Midlight, colour::Line, colour::Line);
    set(QPalette::Mid, colour::PanelLine, colour::OffLine);
    set(QPalette::Dark, colour::Ctl, colour::OffLine);
    return palette;
}

} // namespace qinghe
