#include "ui/frame_box.h"

#include <QPaintEvent>
#include <QPainter>

namespace tarvix {

void FrameBox::paintEvent(QPaintEvent* event) {
    const int captionHeight = title().isEmpty() ? 0 : fontMetrics().height();
    const QRect border = rect().adjusted(0, captionHeight, -1, -1);
    // Most of the time a field inside has changed, which neither line nor caption touch.
    if (border.adjusted(1, 1, -1, -1).contains(event->rect())) {
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(border);
    const QRect caption(0, 0, width(), captionHeight);
    if (caption.intersects(event->rect())) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title());
    }
}

}  // namespace tarvix
