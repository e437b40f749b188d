// The form on the screen: its controls on a canvas that scrolls where the window is smaller, and
// below it a footer that stays.
#pragma once

#include <QScrollArea>
#include <QWidget>

namespace tarvix {

class MainForm;

class FormView : public QWidget {
  public:
    explicit FormView(QWidget* parent = nullptr);

    // What scrolls, and what does not.
    QWidget& canvas() { return *canvas_; }
    QWidget& footer() { return *footer_; }
    QScrollArea& scrollArea() { return *scrollArea_; }

    // Scrolls as little as needed to show a control of the canvas, and with it the caption of the
    // frame around it where both find room.
    void BringIntoView(const QWidget& control);

    // True where a control of the canvas is seen whole, or would be with so many more pixels below.
    bool Shows(const QWidget& control, int below = 0) const;

  private:
    QScrollArea* scrollArea_;
    QWidget* canvas_;
    QWidget* footer_;
};

// The scroll position nearest to `position` at which a view of `length` shows all from `from` to
// `to`, or, where that is longer than the view, its beginning.
constexpr int ScrolledTo(int position, int length, int from, int to) {
    if (from < position || to - from > length) {
        return from;
    }
    return to > position + length ? to - length : position;
}

}  // namespace tarvix
