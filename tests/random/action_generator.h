// Makes the next action of a user who may do anything.
#pragma once

#include "tests/random/value_texts.h"
#include "tests/random/window_view.h"

#include <QString>

#include <deque>

namespace tarvix {

class ActionGenerator {
  public:
    ActionGenerator(RandomSource& random, const World& world)
        : random_(random), world_(world), texts_(random, world.numbers) {}

    // A file that pages may be printed to.
    void SetPrinterFile(const QString& file) { printerFile_ = file; }

    // The next line of the player's language for a window that looks like this.
    QString Next(const WindowView& view);

    // Forgets what was planned for a window that is gone.
    void Forget() {
        planned_.clear();
        calmActions_ = 0;
    }

  private:
    QString Free(const WindowView& view);
    QString Calm(const WindowView& view);
    void PlanRun(const WindowView& view);
    QString FittingFlow(const WindowView& view);
    QString Enter(const WindowView& view);
    QString Choose(const WindowView& view, QString list);
    QString ChoosePipe();
    QString Click(const WindowView& view);
    QString Leave();

    // A control of one of these kinds, mostly one that can be used.
    QString Control(const WindowView& view, std::initializer_list<ControlKind> kinds);

    RandomSource& random_;
    const World& world_;
    ValueTexts texts_;
    QString printerFile_;
    std::deque<QString> planned_;
    int calmActions_ = 0;  // still to come of a user who varies a complete run
};

}  // namespace tarvix
