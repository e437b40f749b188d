#include "ui/controls/back_color.h"

#include <QLineEdit>
#include <QPalette>
#include <QVariant>

namespace tarvix {

namespace {

constexpr const char* kBackColorProperty = "backColor";
constexpr const char* kDimmedProperty = "dimmed";

const QColor kDarkText(0x00, 0x00, 0x00);
const QColor kDimmedText(0x60, 0x60, 0x60);
const QColor kDarkDisabledText(0x45, 0x45, 0x45);

QColor ColorOf(BackColor color) {
    const auto bgr = static_cast<unsigned>(color);
    return QColor(static_cast<int>(bgr & 0xFFU), static_cast<int>((bgr >> 8U) & 0xFFU),
                  static_cast<int>((bgr >> 16U) & 0xFFU));
}

QPalette PaletteOf(const QWidget& widget, BackColor color) {
    QPalette palette;
    palette.setColor(QPalette::Window, ColorOf(color));
    palette.setColor(QPalette::Button, ColorOf(color));
    // A text box shows the color; the circle of an option stays white, whatever its dot is on.
    const bool isTextBox = qobject_cast<const QLineEdit*>(&widget) != nullptr;
    palette.setColor(QPalette::Base, isTextBox ? ColorOf(color) : QColor(Qt::white));
    const QColor& text = widget.property(kDimmedProperty).toBool() ? kDimmedText : kDarkText;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, text);
        palette.setColor(QPalette::Inactive, role, text);
        palette.setColor(QPalette::Disabled, role, kDarkDisabledText);
    }
    return palette;
}

bool IsSystemColor(BackColor color) {
    return color == BackColor::WindowBackground || color == BackColor::Default;
}

void Show(QWidget& widget, BackColor color) {
    widget.setPalette(IsSystemColor(color) ? QPalette() : PaletteOf(widget, color));
}

}  // namespace

void SetBackColor(QWidget& widget, BackColor color) {
    if (BackColorOf(widget) == color) {
        return;
    }
    widget.setProperty(kBackColorProperty, static_cast<int>(color));
    Show(widget, color);
    // Text boxes fill their own background.
    if (qobject_cast<QLineEdit*>(&widget) == nullptr) {
        widget.setAutoFillBackground(!IsSystemColor(color));
    }
}

BackColor BackColorOf(const QWidget& widget) {
    const QVariant color = widget.property(kBackColorProperty);
    return color.isValid() ? static_cast<BackColor>(color.toInt()) : BackColor::Default;
}

void SetDimmed(QWidget& widget, bool dimmed) {
    if (widget.property(kDimmedProperty).toBool() != dimmed) {
        widget.setProperty(kDimmedProperty, dimmed);
        Show(widget, BackColorOf(widget));
    }
}

}  // namespace tarvix
