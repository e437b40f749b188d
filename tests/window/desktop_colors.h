// Colors of desktops, as their themes hand them to a program.
#pragma once

#include <QPalette>

namespace tarvix::testing {

// The palettes by name: the toolkit's own light one, and dark and light ones of common desktops.
inline QPalette DesktopPalette(const QColor& window, const QColor& base, const QColor& button,
                               const QColor& text, const QColor& disabled) {
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor shown = group == QPalette::Disabled ? disabled : text;
        palette.setColor(group, QPalette::Window, window);
        palette.setColor(group, QPalette::Base, base);
        palette.setColor(group, QPalette::AlternateBase, window);
        palette.setColor(group, QPalette::Button, button);
        palette.setColor(group, QPalette::Light, button.lighter(150));
        palette.setColor(group, QPalette::Midlight, button.lighter(125));
        palette.setColor(group, QPalette::Mid, button.darker(130));
        palette.setColor(group, QPalette::Dark, button.darker(200));
        palette.setColor(group, QPalette::WindowText, shown);
        palette.setColor(group, QPalette::Text, shown);
        palette.setColor(group, QPalette::ButtonText, shown);
    }
    return palette;
}

inline QPalette DarkPalette() {
    return DesktopPalette(QColor(0x2A, 0x2E, 0x32), QColor(0x1B, 0x1E, 0x20),
                          QColor(0x31, 0x36, 0x3B), QColor(0xFC, 0xFC, 0xFC),
                          QColor(0x6E, 0x71, 0x75));
}

inline QPalette PaleDarkPalette() {
    return DesktopPalette(QColor(0x35, 0x35, 0x35), QColor(0x2D, 0x2D, 0x2D),
                          QColor(0x37, 0x37, 0x37), QColor(0xEE, 0xEE, 0xEC),
                          QColor(0x91, 0x91, 0x90));
}

inline QPalette LightPalette() {
    return DesktopPalette(QColor(0xF6, 0xF5, 0xF4), QColor(0xFF, 0xFF, 0xFF),
                          QColor(0xF6, 0xF5, 0xF4), QColor(0x2E, 0x34, 0x36),
                          QColor(0x8B, 0x8E, 0x8F));
}

}  // namespace tarvix::testing
