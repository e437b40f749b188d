// Answers a modal window from outside while the code under test waits for it.
#pragma once

#include <QApplication>
#include <QTimer>

#include <functional>
#include <utility>

namespace tarvix::testing {

// Looks for a modal window of type Window as soon as an event loop runs, and does `act` on it once.
template <typename Window>
class ModalDriver {
  public:
    explicit ModalDriver(std::function<void(Window&)> act) : act_(std::move(act)) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
        timer_.start(1);
    }

    bool done() const { return done_; }

  private:
    void Look() {
        auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget());
        if (window != nullptr && window->isVisible()) {
            timer_.stop();
            done_ = true;
            act_(*window);
        }
    }

    std::function<void(Window&)> act_;
    QTimer timer_;
    bool done_ = false;
};

}  // namespace tarvix::testing
