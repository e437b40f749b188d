#pragma once

#include <QPalette>

namespace tarvix {

// The desktop's colors with disabled texts that can still be read: where the desktop's own stand
// less than 4.5 to 1 against their backgrounds, they are moved towards those of enabled texts as
// far as needed. On a dark desktop, where styles draw the edges of fields darker than what is
// around them, the insides of fields are made 1.5 to 1 against the window.
QPalette ReadablePalette(const QPalette& desktop);

// The colors in which a style paints the disc of an option that has these on a desktop with those.
// On a dark desktop the ring around the disc, which styles paint darker than what is around it,
// would not be seen: it is made 3 to 1 there, and nothing else changes.
QPalette DiscPalette(const QPalette& option, const QPalette& desktop);

// The contrast of two colors by their relative luminance, 1 to 21.
double ContrastOf(const QColor& one, const QColor& other);

}  // namespace tarvix
