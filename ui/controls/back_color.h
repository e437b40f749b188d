// The back colors of state, and the texts on them.
#pragma once

#include <QWidget>

namespace tarvix {

// Back colours of state, as 0xBBGGRR. Text on them is dark, in dark desktop themes too.
enum class BackColor : int {
    Default = -1,           // none set by the program
    WindowBackground = -2,  // the system's window background: a field that applies
    Green = 0x00FF00,       // result fields, selected mode and fluid
    LightGrey = 0xC0C0C0,   // mode and fluid not selected
    PaleGrey = 0xE0E0E0,    // a field that does not apply; the message line without a message
    Yellow = 0x00FFFF,
    Red = 0x0000FF,
};

void SetBackColor(QWidget& widget, BackColor color);
BackColor BackColorOf(const QWidget& widget);

// Text that is no longer true stands dimmed on its back color, 4.5 to 1 on green.
void SetDimmed(QWidget& widget, bool dimmed);

}  // namespace tarvix
