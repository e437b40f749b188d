#pragma once

#include "ui/controls/announcements.h"
#include "ui/form/main_form.h"

#include <QBasicTimer>
#include <QObject>

namespace tarvix {

// The quantity that the mode solves for with its value and unit, as they stand; beside beta the
// bore. Empty while there is no value.
QString SolvedValueInWords(const MainForm& form);

// Says the solved value when it has changed and the user pauses: "Flow Rate 142.3 Gallons per
// Minute". While there is no screen reader, it does nothing and waits for nothing.
class SpokenResult : public QObject {
  public:
    SpokenResult(const MainForm& form, Announcements& announcements);

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    const MainForm& form_;
    Announcements& announcements_;
    QBasicTimer pause_;
    QString said_;
};

}  // namespace tarvix
