// Sees the events of one kind that reach an object.
#pragma once

#include <QEvent>
#include <QObject>

#include <functional>
#include <utility>

namespace tarvix::testing {

class EventWatcher : public QObject {
  public:
    EventWatcher(QObject& watched, QEvent::Type type, std::function<void(QObject&)> onEvent = {})
        : type_(type), onEvent_(std::move(onEvent)) {
        watched.installEventFilter(this);
    }
    int count() const { return count_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == type_) {
            ++count_;
            if (onEvent_) {
                onEvent_(*watched);
            }
        }
        return false;
    }

  private:
    QEvent::Type type_;
    std::function<void(QObject&)> onEvent_;
    int count_ = 0;
};

}  // namespace tarvix::testing
