// Remembers which of the program's windows have been shown.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QStringList>
#include <QWidget>

namespace tarvix::testing {

class ShownWindows : public QObject {
  public:
    ShownWindows() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow()) {
            names += widget->objectName();
        }
        return false;
    }

    QStringList names;
};

}  // namespace tarvix::testing
