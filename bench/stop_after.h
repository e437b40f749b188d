// Ends a start benchmark: after the first paint, or after some idle seconds.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace tarvix {

// Calls `painted` once, when the window has painted itself and the event queue is empty again.
class FirstPaint : public QObject {
  public:
    FirstPaint(QWidget& window, std::function<void()> painted)
        : QObject(&window), painted_(std::move(painted)) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::UpdateRequest && !seen_) {
            seen_ = true;
            QTimer::singleShot(0, this, [this] { painted_(); });
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    std::function<void()> painted_;
    bool seen_ = false;
};

// With the argument --idle SECONDS the program stays so long after the first paint, with the caret
// in a field; without it ends at once.
inline void StopAfterFirstPaint(QWidget& window, const QStringList& arguments) {
    new FirstPaint(window, [arguments] {
        const auto idle = arguments.indexOf(QStringLiteral("--idle"));
        const int seconds = idle < 0 ? 0 : arguments.value(idle + 1).toInt();
        QTimer::singleShot(seconds * 1000, qApp, &QCoreApplication::quit);
    });
}

}  // namespace tarvix
