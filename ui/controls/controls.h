// The kinds of control that the main window is made of, where the toolkit's own differ from what
// the calculator needs.
#pragma once

#include "app/shared/module1.h"
#include "numbers/entered_number.h"
#include "ui/controls/entry_line.h"

#include <QComboBox>
#include <QRadioButton>
#include <QStyleOptionButton>

#include <functional>
#include <string>
#include <vector>

namespace tarvix {

// Back colours of state, as 0xBBGGRR. Text on them is dark, in dark desktop themes too.
enum class BackColor : int {
    Default = -1,           // none set by the program
    WindowBackground = -2,  // the system's window background: a field that applies
    Green = 0x00FF00,       // result fields, selected mode and fluid
    LightGrey = 0xC0C0C0,   // mode and fluid not selected
    PaleGrey = 0xE0E0E0,    // a field that does not apply; the message line without a message
    Yellow = 0x00FFFF,
    Red = 0x0000FF,
};

void SetBackColor(QWidget& widget, BackColor color);
BackColor BackColorOf(const QWidget& widget);

// A text box for a number. Asks `onKeyPress` about every character that a key, or an input method,
// would put into it, and drops those for which it answers 0; pasted text is not asked about. Tells
// `onChange` at once when the text has become a different one.
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

    // A locked field shows a result: in bold, and it can't be typed into.
    void SetLocked(bool locked);
    bool Locked() const { return isReadOnly(); }
    void SetTabStop(bool stop) { setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus); }
    bool TabStop() const { return (focusPolicy() & Qt::TabFocus) != 0; }

    // The text in three pieces around the selection or the caret.
    FieldSelection Selection() const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

  private:
    bool IsKept(QChar character) const;

    QString reportedText_;
    NumberLocale locale_;
    mutable EnteredNumber number_;
};

// An option button. Selecting it from code runs its click handler, as a click does, also when it is
// selected already. Of the options of a frame, the Tab key visits the selected one; the arrow keys
// click the next one.
class OptionButton : public QRadioButton {
  public:
    explicit OptionButton(QWidget* parent);

    void Select();
    bool Value() const { return isChecked(); }

    // Shows the option as a bar in its back color, with room at both ends, that can be clicked
    // anywhere.
    void ShowAsBar() { isBar_ = true; }

    // Where the disc and the text are painted.
    QRect DiscArea() const;
    QRect TextArea() const;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void TakeTabStop();
    int BarPadding() const;
    // How much larger the disc is than the style's, which does not grow with the font.
    int DiscGrowth() const;
    // What the style paints from, without the room at the ends of a bar.
    QStyleOptionButton StyleOption() const;
    // The part of the style's option in which the style places text beside the larger disc.
    QStyleOptionButton BesideDisc(const QStyleOptionButton& option) const;
    // All options of the frame around it.
    std::vector<OptionButton*> Options() const;
    // The usable option of the same frame that follows this one, or stands before it; the last is
    // followed by the first.
    OptionButton* Neighbor(bool following) const;

    bool isBar_ = false;
};

// A drop-down list. Selecting an entry from code runs its click handler, as a pick does, also for
// the entry that is selected already; clearing runs nothing.
class DropDownList : public QComboBox {
  public:
    explicit DropDownList(QWidget* parent);

    // The entry for which the list asks for room, whatever it holds at the moment.
    void SetWidestEntry(const char* entry) { widestEntry_ = QLatin1String(entry); }

    std::string Text() const { return currentText().toStdString(); }
    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);
    void AddItem(std::string_view text);
    void Clear() { clear(); }

    QSize sizeHint() const override;
    void showPopup() override;

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    QString widestEntry_;
};

}  // namespace tarvix
