#pragma once

#include <QLineEdit>
#include <QPoint>

#include <functional>
#include <optional>

namespace tarvix {

// A line to type into that tells `onGotFocus` when the focus comes to it from another control. The
// focus that comes back from another window, the menu bar or the line's own menu is no entry: what
// the user was typing goes on. The mouse press that brings the focus leaves the selection alone,
// unless it turns into a drag; the next one sets the caret.
class EntryLine : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

    std::function<void()> onGotFocus;

    // True while the focus comes or goes, which selects the text or takes the selection away.
    bool FocusIsMoving() const { return focusIsMoving_; }

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    // The press that went down there leaves the selection alone unless it turns into a drag.
    void KeepSelectionUntilDragged(QPoint press) { keepingPress_ = press; }

  private:
    bool focusIsMoving_ = false;
    bool focusCameByThisPress_ = false;
    // Where such a press went down, until it turns into a drag or ends.
    std::optional<QPoint> keepingPress_;
};

}  // namespace tarvix
