#include "ui/controls/frame_box.h"

#include <QPaintEvent>
#include <QPainter>

namespace tarvix {

namespace {

// A quarter of the way from the background to the text, so that the line can be seen, but no more,
// on light and dark desktops.
QColor BorderColor(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const auto between = [](int from, int to) { return from + (to - from) / 4; };
    return QColor(between(window.red(), text.red()), between(window.green(), text.green()),
                  between(window.blue(), text.blue()));
}

void PaintBorder(QPainter& painter, const QRect& border, const QPalette& palette) {
    // Filled, not drawn: a drawn line lies half outside at the edge where a pixel is a fraction.
    const QColor color = BorderColor(palette);
    painter.fillRect(QRect(border.topLeft(), QSize(border.width(), 1)), color);
    painter.fillRect(QRect(border.bottomLeft(), QSize(border.width(), 1)), color);
    painter.fillRect(QRect(border.topLeft(), QSize(1, border.height())), color);
    painter.fillRect(QRect(border.topRight(), QSize(1, border.height())), color);
}

}  // namespace

void FrameBox::paintEvent(QPaintEvent* event) {
    const int captionHeight = title().isEmpty() ? 0 : CaptionHeight(font());
    const QRect border = rect().adjusted(0, captionHeight, 0, 0);
    // Most of the time a field inside has changed, which neither line nor caption touch.
    if (border.adjusted(1, 1, -1, -1).contains(event->rect())) {
        return;
    }
    QPainter painter(this);
    PaintBorder(painter, border, palette());
    const QRect caption(0, 0, width(), captionHeight);
    if (caption.intersects(event->rect())) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title());
    }
}

void PlainFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    PaintBorder(painter, rect(), palette());
}

}  // namespace tarvix
