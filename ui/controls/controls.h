// The kinds of control that the main window is made of, where the toolkit's own differ from what
// the calculator needs.
#pragma once

#include "ui/controls/back_color.h"
#include "ui/controls/numeric_field.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyleOptionButton>

#include <string>
#include <vector>

namespace tarvix {

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

    // An entry for which the list asks for room, whatever it holds at the moment.
    void AskRoomFor(std::string_view entry);

    std::string Text() const { return currentText().toStdString(); }
    int ListIndex() const { return currentIndex(); }
    void SetListIndex(int index);
    void AddItem(std::string_view text);
    void Clear() { clear(); }

    // Keys and the wheel open the closed list instead of picking from it.
    void SetOpensToPick() { opensToPick_ = true; }

    // A list behind something that covers it can't be opened or picked from.
    void SetCovered(bool covered);
    bool Covered() const { return covered_; }

    QSize sizeHint() const override;
    void showPopup() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    std::vector<QString> roomFor_;
    bool opensToPick_ = false;
    bool covered_ = false;
};

// A blank over a control that does not apply: shows what is around it, and keeps the mouse away.
class CoverField : public QLineEdit {
  public:
    explicit CoverField(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

}  // namespace tarvix
