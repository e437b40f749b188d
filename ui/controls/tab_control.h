#pragma once

#include <QTabWidget>

namespace tarvix {

// A tab control with a single tab. There is nothing to choose, so the Tab key passes it by; its
// mnemonic leads to the first usable control below it.
class TabControl : public QTabWidget {
  public:
    explicit TabControl(QWidget* parent);

  private:
    void FocusFirstControl();
    friend class OneTabBar;
};

}  // namespace tarvix
