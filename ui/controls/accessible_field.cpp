#include "ui/controls/accessible_field.h"

#include <algorithm>

namespace tarvix {

FieldInterface::FieldInterface(NumericField* field)
    : ControlInterface(field, QAccessible::EditableText), field_(*field) {}

// Of one that is not valid, nothing is told. The toolkit would tell of the caret and the selection
// before it tells of the focus. Readers take such a caret for the focus and then do not say the
// field any more; the selection they would say twice, first in front of the field's name.
bool FieldInterface::isValid() const {
    return ControlInterface::isValid() && !field_.FocusIsMoving();
}

bool FieldInterface::CanBeChanged() const {
    return field_.isEnabled() && !field_.Locked();
}

QString FieldInterface::text(QAccessible::Text kind) const {
    const bool isResult = field_.Locked() && field_.Current();
    switch (kind) {
        case QAccessible::Name:
            return QAccessibleWidget::text(kind) + QLatin1String(isResult ? ", result" : "");
        case QAccessible::Value:
            return field_.text();
        case QAccessible::Description:
            return field_.Current() ? QAccessibleWidget::text(kind)
                                    : QStringLiteral("Not current: it belongs to earlier entries");
        default:
            return QAccessibleWidget::text(kind);
    }
}

void FieldInterface::setText(QAccessible::Text kind, const QString& text) {
    if (kind != QAccessible::Value) {
        QAccessibleWidget::setText(kind, text);
    } else if (CanBeChanged()) {
        field_.setText(text);
    }
}

QAccessible::State FieldInterface::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = CanBeChanged();
    state.readOnly = field_.Locked();
    state.selectableText = true;
    return state;
}

void* FieldInterface::interface_cast(QAccessible::InterfaceType kind) {
    if (kind == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface*>(this);
    }
    if (kind == QAccessible::EditableTextInterface) {
        return CanBeChanged() ? static_cast<QAccessibleEditableTextInterface*>(this) : nullptr;
    }
    return QAccessibleWidget::interface_cast(kind);
}

QString FieldInterface::text(int start, int end) const {
    return field_.text().mid(start, end - start);
}

int FieldInterface::characterCount() const {
    return static_cast<int>(field_.text().size());
}

int FieldInterface::cursorPosition() const {
    return field_.cursorPosition();
}

void FieldInterface::setCursorPosition(int position) {
    field_.setCursorPosition(position);
}

int FieldInterface::selectionCount() const {
    return field_.hasSelectedText() ? 1 : 0;
}

void FieldInterface::selection(int index, int* start, int* end) const {
    const bool isThere = index == 0 && field_.hasSelectedText();
    *start = isThere ? field_.selectionStart() : 0;
    *end = isThere ? field_.selectionEnd() : 0;
}

void FieldInterface::setSelection(int index, int start, int end) {
    if (index == 0) {
        field_.setSelection(start, end - start);
    }
}

void FieldInterface::addSelection(int start, int end) {
    setSelection(0, start, end);
}

void FieldInterface::removeSelection(int index) {
    if (index == 0) {
        field_.deselect();
    }
}

void FieldInterface::scrollToSubstring(int start, int end) {
    field_.setCursorPosition(end);
    field_.setCursorPosition(start);
}

QString FieldInterface::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

int FieldInterface::CharacterX(int offset) const {
    const QFontMetrics metrics = field_.fontMetrics();
    const QRect area = field_.TextArea();
    const QString shown = field_.text();
    // The text ends at the right edge; a text that is too long is taken as if it began at the left.
    const int begin = std::max(area.left(), area.right() + 1 - metrics.horizontalAdvance(shown));
    return begin + metrics.horizontalAdvance(shown.left(offset));
}

QRect FieldInterface::characterRect(int offset) const {
    if (offset < 0 || offset >= characterCount()) {
        return {};
    }
    const int left = CharacterX(offset);
    return {field_.mapToGlobal(QPoint(left, 0)),
            QSize(CharacterX(offset + 1) - left, field_.height())};
}

int FieldInterface::offsetAtPoint(const QPoint& point) const {
    return field_.cursorPositionAt(field_.mapFromGlobal(point));
}

void FieldInterface::deleteText(int start, int end) {
    replaceText(start, end, {});
}

void FieldInterface::insertText(int offset, const QString& text) {
    replaceText(offset, offset, text);
}

void FieldInterface::replaceText(int start, int end, const QString& text) {
    if (CanBeChanged()) {
        field_.setText(field_.text().replace(start, end - start, text));
    }
}

}  // namespace tarvix
