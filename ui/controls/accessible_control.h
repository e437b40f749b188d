// What screen readers and other helpers are told about the kinds of control in the window.
#pragma once

#include "ui/controls/controls.h"

#include <QAccessibleWidget>

namespace tarvix {

// A control that is named by its own words alone. The toolkit also gives it the labels beside it
// and the caption of its frame as labels, which readers would say instead.
class ControlInterface : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;

    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override;

  protected:
    // Gives the control the focus and acts on it, later: a handler may ask the user something while
    // the helper waits for an answer.
    template <typename Action>
    void DoLater(Action action) {
        QMetaObject::invokeMethod(
            widget(),
            [control = widget(), action] {
                control->setFocus(Qt::OtherFocusReason);
                action();
            },
            Qt::QueuedConnection);
    }
};

// An option that is clicked. The toolkit's own selects it without the click that sets all off.
class OptionInterface : public ControlInterface {
  public:
    explicit OptionInterface(OptionButton* option);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

  private:
    OptionButton& option_;
};

// A list that says what it is for beside its selected entry, and lets helpers go through its
// entries without opening it. A covered list is out of reach.
class ListInterface : public ControlInterface {
  public:
    explicit ListInterface(DropDownList* list);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

  private:
    void Pick(int index);

    DropDownList& list_;
};

// A frame under its caption.
class FrameInterface : public QAccessibleWidget {
  public:
    explicit FrameInterface(QWidget* frame);

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

  private:
    // Without what is hidden from helpers or covered.
    QList<QAccessibleInterface*> Children() const;
};

}  // namespace tarvix
