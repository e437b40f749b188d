#include "ui/controls/accessible_roles.h"

#include "ui/controls/controls.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QLabel>
#include <QVariant>

#include <algorithm>

namespace tarvix {

namespace {

constexpr const char* kRoleProperty = "accessibleRole";

// The text of the label that the widget is, or of the labels in it, as one sentence.
QString TextsOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    QStringList texts;
    for (const QLabel* label : widget.findChildren<QLabel*>()) {
        texts += label->text();
    }
    return texts.join(QLatin1Char(' '));
}

class AlertInterface : public QAccessibleWidget {
  public:
    explicit AlertInterface(QWidget* alert) : QAccessibleWidget(alert, QAccessible::AlertMessage) {}

    QString text(QAccessible::Text kind) const override {
        const QString says = kind == QAccessible::Name ? TextsOf(*widget()) : QString();
        return says.isEmpty() ? QAccessibleWidget::text(kind) : says;
    }
};

// Does later what a helper asks for, since a handler may ask the user something while the helper
// waits for an answer.
template <typename Action>
void DoLater(QWidget* widget, Action action) {
    QMetaObject::invokeMethod(
        widget,
        [widget, action] {
            widget->setFocus(Qt::OtherFocusReason);
            action();
        },
        Qt::QueuedConnection);
}

// The toolkit's own selects an option without the click that sets everything off.
class OptionInterface : public QAccessibleWidget {
  public:
    explicit OptionInterface(OptionButton* option)
        : QAccessibleWidget(option, QAccessible::RadioButton), option_(*option) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = option_.Value();
        return state;
    }

    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
        } else if (option_.isEnabled()) {
            DoLater(&option_, [option = &option_] { option->click(); });
        }
    }

  private:
    OptionButton& option_;
};

// The toolkit names a list by its selected entry alone. This one says what the list is for as well,
// and lets helpers go through its entries without opening it.
class ListInterface : public QAccessibleWidget {
  public:
    explicit ListInterface(DropDownList* list)
        : QAccessibleWidget(list, QAccessible::ComboBox), list_(*list) {}

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
            case QAccessible::Name:
                return QAccessibleWidget::text(kind) + QLatin1String(": ") +
                       list_.currentText().trimmed();
            case QAccessible::Value:
                return list_.currentText();
            default:
                return QAccessibleWidget::text(kind);
        }
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = list_.view()->isVisible();
        return state;
    }

    int childCount() const override { return 1; }

    QAccessibleInterface* child(int index) const override {
        if (index != 0) {
            return nullptr;
        }
        if (list_.view()->accessibleName().isEmpty()) {
            list_.view()->setAccessibleName(list_.accessibleName());
        }
        return QAccessible::queryAccessibleInterface(list_.view());
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == list_.view() ? 0 : -1;
    }

    QStringList actionNames() const override {
        return QStringList{showMenuAction(), increaseAction(), decreaseAction()} +
               QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (!list_.isEnabled()) {
            return;
        }
        if (name == increaseAction()) {
            Pick(list_.ListIndex() + 1);
        } else if (name == decreaseAction()) {
            Pick(list_.ListIndex() - 1);
        } else if (name == showMenuAction()) {
            list_.view()->isVisible() ? list_.hidePopup() : list_.showPopup();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    void Pick(int index) {
        if (index >= 0 && index < list_.count()) {
            DoLater(&list_, [list = &list_, index] { list->SetListIndex(index); });
        }
    }

    DropDownList& list_;
};

QAccessibleInterface* CreateInterface(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget != nullptr ? widget->property(kRoleProperty) : QVariant();
    if (!role.isValid()) {
        return nullptr;
    }
    if (auto* list = dynamic_cast<DropDownList*>(widget)) {
        return new ListInterface(list);
    }
    if (auto* option = dynamic_cast<OptionButton*>(widget)) {
        return new OptionInterface(option);
    }
    if (role.toInt() == QAccessible::AlertMessage) {
        return new AlertInterface(widget);
    }
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

void Send(QWidget& widget, QAccessible::Event kind) {
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&widget, kind);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(CreateInterface);
    widget.setProperty(kRoleProperty, static_cast<int>(role));
}

void AnnounceAlert(QWidget& alert) {
    Send(alert, QAccessible::NameChanged);
    Send(alert, QAccessible::Alert);
}

void AnnounceEntry(QWidget& list) {
    Send(list, QAccessible::NameChanged);
}

}  // namespace tarvix
