#include "ui/controls/announcements.h"

#include <utility>

namespace tarvix {

namespace {

// How many texts a reader may be behind.
constexpr qsizetype kNoticesKept = 16;

// A text that is said. It has a parent, but is no child of it: going through the window, a reader
// finds the controls that the texts come from.
class Notice : public QAccessibleInterface {
  public:
    Notice(QWidget& source, QString text) : source_(source), text_(std::move(text)) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return source_.window()->windowHandle(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&source_);
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? text_ : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

  private:
    QWidget& source_;
    QString text_;
};

}  // namespace

Announcements::~Announcements() {
    for (const QAccessible::Id notice : notices_) {
        QAccessible::deleteAccessibleInterface(notice);
    }
}

void Announcements::Say(const QString& text) {
    if (!AreHeard() || text.isEmpty()) {
        return;
    }
    if (onSay) {
        onSay(text);
        return;
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&source_, text);
#else
    notices_ += QAccessible::registerAccessibleInterface(new Notice(source_, text));
    if (notices_.size() > kNoticesKept) {
        QAccessible::deleteAccessibleInterface(notices_.takeFirst());
    }
    QAccessibleEvent event(QAccessible::accessibleInterface(notices_.last()),
                           QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&event);
}

}  // namespace tarvix
