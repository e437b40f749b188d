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
    return DesktopPalette(0x2A2E32, 0x1B1E20, 0x31363B, 0xFCFCFC, 0x6E7175);
}

inline QPalette PaleDarkPalette() {
    return DesktopPalette(0x353535, 0x2D2D2D, 0x373737, 0xEEEEEC, 0x919190);
}

inline QPalette LightPalette() {
    return DesktopPalette(0xF6F5F4, 0xFFFFFF, 0xF6F5F4, 0x2E3436, 0x8B8E8F);
}

}  // namespace tarvix::testing
