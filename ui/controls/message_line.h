#pragma once

#include "ui/controls/controls.h"

#include <QLabel>

namespace tarvix {

// The message line. Tells screen readers its text when it has become another one, once for all
// that one key press or click has changed.
class MessageLine : public QLabel {
  public:
    explicit MessageLine(QWidget* parent);

    // An empty message is shown on pale grey, whatever `color` says.
    void Show(const std::string& message, BackColor color);

  protected:
    bool event(QEvent* event) override;

  private:
    QString announced_;
    bool willAnnounce_ = false;
};

}  // namespace tarvix
