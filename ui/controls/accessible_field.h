// What screen readers and other helpers are told about a field for a number, and what they may do
// to it: a locked or disabled field can be read, but not changed.
#pragma once

#include "ui/controls/accessible_control.h"

namespace tarvix {

class FieldInterface : public ControlInterface,
                       public QAccessibleTextInterface,
                       public QAccessibleEditableTextInterface {
  public:
    explicit FieldInterface(NumericField* field);

    bool isValid() const override;

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType kind) override;

    // Reading.
    QString text(int start, int end) const override;
    int characterCount() const override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    int selectionCount() const override;
    void selection(int index, int* start, int* end) const override;
    void setSelection(int index, int start, int end) override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;

    // Changing.
    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

  private:
    bool CanBeChanged() const;
    // Pixels from the left edge of the field to a character.
    int CharacterX(int offset) const;

    NumericField& field_;
};

}  // namespace tarvix
