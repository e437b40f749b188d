#pragma once

#include <QMargins>
#include <QWidget>

namespace tarvix {

// What the window manager adds around a window that is not shown yet, in pixels of the window. On
// X11 it is asked for that; where it does not answer, a title bar of the style's height is taken
// for its frame. Nothing is added where there is no window manager.
QMargins FrameOf(QWidget& window);

}  // namespace tarvix
