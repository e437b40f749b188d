#pragma once

#include <QFontMetrics>
#include <QFrame>
#include <QGroupBox>

namespace tarvix {

// A frame with a caption above its border. Paints with a line and a text instead of the style's
// pictures: a frame is painted again behind every field that changes, at each key press.
class FrameBox : public QGroupBox {
  public:
    using QGroupBox::QGroupBox;

    // Pixels from the upper edge to the border.
    static int CaptionHeight(const QFont& font) { return QFontMetrics(font).height(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

// A frame without a caption, with the same line.
class PlainFrame : public QFrame {
  public:
    using QFrame::QFrame;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarvix
