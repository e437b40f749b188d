#include "ui/controls/message_line.h"

#include "ui/controls/accessible_roles.h"

#include <QCoreApplication>
#include <QEvent>

namespace tarvix {

namespace {

// Posted while a handler runs, so it arrives when all handlers of a key press or click are done.
constexpr auto kAnnounce = static_cast<QEvent::Type>(QEvent::User + 1);

}  // namespace

MessageLine::MessageLine(QWidget* parent, Announcements& announcements)
    : QLabel(parent), announcements_(announcements) {
    SetAccessibleRole(*this, QAccessible::AlertMessage);
    // With a name of its own the label leaves announcing its text to this class.
    setAccessibleName(QStringLiteral("No message"));
    setTextFormat(Qt::PlainText);
    // In a narrow window the line breaks.
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setIndent(fontMetrics().averageCharWidth());
}

void MessageLine::Show(const std::string& message, BackColor color) {
    setText(QString::fromStdString(message));
    SetBackColor(*this, message.empty() ? BackColor::PaleGrey : color);
    if (announcements_.AreHeard() && !willAnnounce_) {
        willAnnounce_ = true;
        QCoreApplication::postEvent(this, new QEvent(kAnnounce));
    }
}

bool MessageLine::event(QEvent* event) {
    if (event->type() == kAnnounce) {
        willAnnounce_ = false;
        if (announced_ != text()) {
            announced_ = text();
            AnnounceName(*this);
            announcements_.Say(announced_);
        }
        return true;
    }
    return QLabel::event(event);
}

}  // namespace tarvix
