#pragma once

#include "app/shared/module1.h"
#include "numbers/entered_number.h"
#include "ui/controls/entry_line.h"

#include <functional>
#include <string>

namespace tarvix {

// A text box for a number. Asks `onKeyPress` about every character that a key, or an input method,
// would put into it, and drops those for which it answers 0; pasted text is not asked about. Tells
// `onChange` at once when the text has become a different one. A double click selects all of it.
class NumericField : public EntryLine {
  public:
    explicit NumericField(QWidget* parent);

    std::function<int(int keyCode)> onKeyPress;
    std::function<void()> onChange;

    std::string Text() const { return text().toStdString(); }
    void SetText(const std::string& value) { setText(QString::fromStdString(value)); }

    // The text with its value, read once for each text.
    const EnteredNumber& Number() const;

    // How the field reads its text; the decimal key of the number pad types its separator.
    void SetLocale(const NumberLocale& locale);

    // A locked field shows a result: in bold and whole, with a smaller font for a long one, and it
    // can't be typed into.
    void SetLocked(bool locked);
    bool Locked() const { return isReadOnly(); }
    void SetTabStop(bool stop) { setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus); }

    // A result that stands from before, and does not belong to what is entered now, is not current:
    // it is dimmed and not bold.
    void SetCurrent(bool current);
    bool Current() const { return current_; }

    // The text in three pieces around the selection or the caret.
    FieldSelection Selection() const;

    // Where the text stands, in pixels.
    QRect TextArea() const;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    bool IsKept(QChar character) const;
    void ChooseFont();

    QString reportedText_;
    NumberLocale locale_;
    mutable EnteredNumber number_;
    bool current_ = true;
};

}  // namespace tarvix
