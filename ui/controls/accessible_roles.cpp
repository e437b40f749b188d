#include "ui/controls/accessible_roles.h"

#include "ui/controls/accessible_control.h"
#include "ui/controls/accessible_field.h"
#include "ui/controls/frame_box.h"

#include <QLabel>
#include <QVariant>

namespace tarvix {

namespace {

constexpr const char* kRoleProperty = "accessibleRole";
constexpr const char* kHiddenProperty = "hiddenFromHelpers";

class AlertInterface : public QAccessibleWidget {
  public:
    explicit AlertInterface(QWidget* alert) : QAccessibleWidget(alert, QAccessible::AlertMessage) {}

    QString text(QAccessible::Text kind) const override {
        const QString says = kind == QAccessible::Name ? AlertText(*widget()) : QString();
        return says.isEmpty() ? QAccessibleWidget::text(kind) : says;
    }
};

QAccessibleInterface* CreateInterface(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget != nullptr ? widget->property(kRoleProperty) : QVariant();
    if (!role.isValid()) {
        return nullptr;
    }
    if (auto* field = dynamic_cast<NumericField*>(widget)) {
        return new FieldInterface(field);
    }
    if (auto* list = dynamic_cast<DropDownList*>(widget)) {
        return new ListInterface(list);
    }
    if (auto* option = dynamic_cast<OptionButton*>(widget)) {
        return new OptionInterface(option);
    }
    if (dynamic_cast<FrameBox*>(widget) != nullptr) {
        return new FrameInterface(widget);
    }
    if (role.toInt() == QAccessible::AlertMessage) {
        return new AlertInterface(widget);
    }
    return new ControlInterface(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(CreateInterface);
    widget.setProperty(kRoleProperty, static_cast<int>(role));
}

void HideFromHelpers(QWidget& widget) {
    widget.setProperty(kHiddenProperty, true);
}

bool IsHiddenFromHelpers(const QObject& widget) {
    return widget.property(kHiddenProperty).toBool();
}

QString AlertText(const QWidget& alert) {
    if (const auto* label = qobject_cast<const QLabel*>(&alert)) {
        return label->text();
    }
    QStringList texts;
    for (const QLabel* label : alert.findChildren<QLabel*>()) {
        texts += label->text();
    }
    return texts.join(QLatin1Char(' '));
}

void AnnounceName(QWidget& widget) {
    if (QAccessible::isActive()) {
        QAccessibleEvent event(&widget, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace tarvix
