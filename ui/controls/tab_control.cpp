#include "ui/controls/tab_control.h"

#include "ui/controls/accessible_roles.h"

#include <QEvent>
#include <QTabBar>

namespace tarvix {

class OneTabBar : public QTabBar {
  public:
    explicit OneTabBar(TabControl* owner) : QTabBar(owner), owner_(owner) {
        setFocusPolicy(Qt::NoFocus);
        // The toolkit's own has a tab in it that says that it has the focus, always.
        SetAccessibleRole(*this, QAccessible::PageTab);
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Shortcut) {
            owner_->FocusFirstControl();
            return true;
        }
        return QTabBar::event(event);
    }

  private:
    TabControl* owner_;
};

TabControl::TabControl(QWidget* parent) : QTabWidget(parent) {
    setTabBar(new OneTabBar(this));
    setFocusPolicy(Qt::NoFocus);
}

void TabControl::FocusFirstControl() {
    for (QWidget* control = nextInFocusChain(); control != this;
         control = control->nextInFocusChain()) {
        if (isAncestorOf(control) && control->isVisible() && control->isEnabled() &&
            (control->focusPolicy() & Qt::TabFocus) != 0) {
            control->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

}  // namespace tarvix
