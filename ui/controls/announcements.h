#pragma once

#include <QAccessible>
#include <QList>
#include <QString>
#include <QWidget>

#include <functional>

namespace tarvix {

// Says something by a screen reader, wherever the focus is. Nothing happens without one.
//
// From Qt 6.8 on the toolkit has an event for it. Before, what is said appears as a notification in
// the tree of accessible objects, which AT-SPI readers speak. Each text is an object of its own, so
// that a reader that is behind still says every text once. The toolkit's event for alerts is not
// used: on some systems it makes a sound each time.
class Announcements {
  public:
    // `source` is the widget that the texts come from.
    explicit Announcements(QWidget& source) : source_(source) {}

    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;
    ~Announcements();

    // Whether somebody listens.
    bool AreHeard() const { return onSay || QAccessible::isActive(); }
    void Say(const QString& text);

    // Hears what is said in place of the screen reader, when it is set.
    std::function<void(const QString& text)> onSay;

  private:
    QWidget& source_;
    // The last ones, the oldest first.
    QList<QAccessible::Id> notices_;
};

}  // namespace tarvix
