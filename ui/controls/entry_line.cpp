#include "ui/controls/entry_line.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <utility>

namespace tarvix {

namespace {

// The focus comes back from another window, the menu bar or the line's own menu.
bool FocusComesBack(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

}  // namespace

void EntryLine::focusInEvent(QFocusEvent* event) {
    const QScopedValueRollback moving(focusIsMoving_, true);
    QLineEdit::focusInEvent(event);
    if (FocusComesBack(event->reason())) {
        return;
    }
    focusCameByThisPress_ = event->reason() == Qt::MouseFocusReason;
    if (onGotFocus) {
        onGotFocus();
    }
}

void EntryLine::focusOutEvent(QFocusEvent* event) {
    const QScopedValueRollback moving(focusIsMoving_, true);
    QLineEdit::focusOutEvent(event);
}

void EntryLine::mousePressEvent(QMouseEvent* event) {
    // The press that brings the focus leaves the whole text selected; the next one sets the caret.
    if (std::exchange(focusCameByThisPress_, false)) {
        if (event->button() == Qt::LeftButton) {
            KeepSelectionUntilDragged(event->pos());
        }
        return;
    }
    QLineEdit::mousePressEvent(event);
}

void EntryLine::mouseMoveEvent(QMouseEvent* event) {
    if (keepingPress_) {
        // A hand that trembles does not select.
        if ((event->pos() - *keepingPress_).manhattanLength() < QApplication::startDragDistance()) {
            return;
        }
        // Now the press counts, but not as one on the selected text, which would drag that.
        deselect();
        QMouseEvent press(QEvent::MouseButtonPress, *keepingPress_, mapToGlobal(*keepingPress_),
                          Qt::LeftButton, event->buttons(), event->modifiers());
        keepingPress_.reset();
        QLineEdit::mousePressEvent(&press);
    }
    QLineEdit::mouseMoveEvent(event);
}

void EntryLine::mouseReleaseEvent(QMouseEvent* event) {
    keepingPress_.reset();
    QLineEdit::mouseReleaseEvent(event);
}

void EntryLine::keyPressEvent(QKeyEvent* event) {
    focusCameByThisPress_ = false;
    QLineEdit::keyPressEvent(event);
}

}  // namespace tarvix
