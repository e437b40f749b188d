#include "ui/controls/readable_palette.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvix {

namespace {

// A little above 4.5, the least contrast of text that counts as readable (WCAG 2.1, 1.4.3).
constexpr double kContrastWanted = 5.0;
constexpr int kSteps = 20;

// More than 3, the least contrast of what has to be seen, but not read (1.4.11): the edges of a
// thin ring are blended with what is beside it.
constexpr double kRingContrastWanted = 3.8;

// A little above 1.5, at which an empty field is seen beside the window.
constexpr double kFieldContrastWanted = 1.52;

// How much darker than the window styles paint the ring around the disc of an option; percent.
constexpr int kRingShade = 150;

// Styles paint tabs and the upper ends of buttons lighter than the color of buttons; percent.
constexpr int kLightestShade = 140;

double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double{color.redF()}) + 0.7152 * linear(double{color.greenF()}) +
           0.0722 * linear(double{color.blueF()});
}

QColor LightestShade(const QPalette& palette) {
    return palette.color(QPalette::Button).lighter(kLightestShade);
}

// `step` of kSteps on the way from one color to the other.
QColor Between(const QColor& from, const QColor& to, int step) {
    const auto part = [step](int start, int end) { return start + (end - start) * step / kSteps; };
    return {part(from.red(), to.red()), part(from.green(), to.green()),
            part(from.blue(), to.blue())};
}

bool IsDark(const QPalette& desktop) {
    return Luminance(desktop.color(QPalette::WindowText)) >
           Luminance(desktop.color(QPalette::Window));
}

// The inside of fields on a dark desktop: its own, or as much darker as needed, or, where black is
// not enough, as much lighter. The page of a tab, on which fields stand, too, lies between the
// window and the lightest shade.
QColor FieldColor(const QPalette& desktop) {
    const QColor window = desktop.color(QPalette::Active, QPalette::Window);
    const QColor own = desktop.color(QPalette::Active, QPalette::Base);
    for (const QColor& end : {QColor(Qt::black), desktop.color(QPalette::Active, QPalette::Text)}) {
        for (int step = 0; step <= kSteps; ++step) {
            const QColor color = Between(own, end, step);
            if (std::min(ContrastOf(color, window), ContrastOf(color, LightestShade(desktop))) >=
                kFieldContrastWanted) {
                return color;
            }
        }
    }
    return own;
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QPalette ReadablePalette(const QPalette& desktop) {
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> kTextsAndBackgrounds[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
    };
    const QColor lightest = LightestShade(desktop);
    QPalette palette;
    QPalette shown = desktop;
    if (IsDark(desktop)) {
        palette.setColor(QPalette::Base, FieldColor(desktop));
        shown.setColor(QPalette::Base, FieldColor(desktop));
    }
    for (const auto& [text, background] : kTextsAndBackgrounds) {
        const QColor disabled = desktop.color(QPalette::Disabled, text);
        const QColor enabled = desktop.color(QPalette::Active, text);
        const QColor behind = shown.color(QPalette::Disabled, background);
        int step = 0;
        QColor readable = disabled;
        while (step < kSteps && std::min(ContrastOf(readable, behind),
                                         ContrastOf(readable, lightest)) < kContrastWanted) {
            readable = Between(disabled, enabled, ++step);
        }
        palette.setColor(QPalette::Disabled, text, readable);
    }
    return palette;
}

QPalette DiscPalette(const QPalette& option, const QPalette& desktop) {
    if (!IsDark(desktop)) {
        return option;
    }
    const QColor window = option.color(QPalette::Window);
    const QColor text = option.color(QPalette::Active, QPalette::WindowText);
    const QColor lightest = LightestShade(option);
    const auto contrast = [&](const QColor& color) {
        const QColor ring = color.darker(kRingShade);
        return std::min(ContrastOf(ring, window), ContrastOf(ring, lightest));
    };
    int step = 0;
    QColor color = window;
    while (step < kSteps && contrast(color) < kRingContrastWanted) {
        color = Between(window, text, ++step);
    }
    QPalette disc = option;
    disc.setColor(QPalette::Window, color);
    return disc;
}

}  // namespace tarvix
