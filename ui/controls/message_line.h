#pragma once

#include "ui/controls/announcements.h"
#include "ui/controls/back_color.h"

#include <QLabel>

#include <string>

namespace tarvix {

// The message line. Lets screen readers say its text when it has become another one, once for all
// that one key press or click has changed.
class MessageLine : public QLabel {
  public:
    MessageLine(QWidget* parent, Announcements& announcements);

    // An empty message is shown on pale grey, whatever `color` says.
    void Show(const std::string& message, BackColor color);

  protected:
    bool event(QEvent* event) override;

  private:
    Announcements& announcements_;
    QString announced_;
    bool willAnnounce_ = false;
};

}  // namespace tarvix
