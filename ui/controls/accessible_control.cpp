#include "ui/controls/accessible_control.h"

#include "ui/controls/accessible_roles.h"

#include <QAbstractItemView>
#include <QGroupBox>

namespace tarvix {

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> ControlInterface::relations(
    QAccessible::Relation match) const {
    auto relations = QAccessibleWidget::relations(match);
    relations.removeIf(
        [](const auto& relation) { return relation.second.testFlag(QAccessible::Label); });
    return relations;
}

OptionInterface::OptionInterface(OptionButton* option)
    : ControlInterface(option, QAccessible::RadioButton), option_(*option) {}

QAccessible::State OptionInterface::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = option_.Value();
    return state;
}

QStringList OptionInterface::actionNames() const {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
}

void OptionInterface::doAction(const QString& name) {
    if (name != pressAction()) {
        QAccessibleWidget::doAction(name);
    } else if (option_.isEnabled()) {
        DoLater([option = &option_] { option->click(); });
    }
}

ListInterface::ListInterface(DropDownList* list)
    : ControlInterface(list, QAccessible::ComboBox), list_(*list) {}

QString ListInterface::text(QAccessible::Text kind) const {
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

QAccessible::State ListInterface::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = list_.view()->isVisible();
    if (list_.Covered()) {
        state.invisible = true;
        state.disabled = true;
        state.focusable = false;
    }
    return state;
}

QAccessibleInterface* ListInterface::child(int index) const {
    if (index != 0) {
        return nullptr;
    }
    if (list_.view()->accessibleName().isEmpty()) {
        list_.view()->setAccessibleName(list_.accessibleName());
    }
    return QAccessible::queryAccessibleInterface(list_.view());
}

int ListInterface::indexOfChild(const QAccessibleInterface* child) const {
    return child != nullptr && child->object() == list_.view() ? 0 : -1;
}

QStringList ListInterface::actionNames() const {
    if (list_.Covered()) {
        return {};
    }
    return QStringList{showMenuAction(), increaseAction(), decreaseAction()} +
           QAccessibleWidget::actionNames();
}

void ListInterface::doAction(const QString& name) {
    if (!list_.isEnabled() || list_.Covered()) {
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

void ListInterface::Pick(int index) {
    if (index >= 0 && index < list_.count()) {
        DoLater([list = &list_, index] { list->SetListIndex(index); });
    }
}

FrameInterface::FrameInterface(QWidget* frame) : QAccessibleWidget(frame, QAccessible::Grouping) {}

QString FrameInterface::text(QAccessible::Text kind) const {
    const auto* frame = qobject_cast<const QGroupBox*>(widget());
    return kind == QAccessible::Name && frame != nullptr ? frame->title()
                                                         : QAccessibleWidget::text(kind);
}

int FrameInterface::childCount() const {
    return static_cast<int>(Children().size());
}

QAccessibleInterface* FrameInterface::child(int index) const {
    return Children().value(index);
}

int FrameInterface::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(Children().indexOf(child));
}

QList<QAccessibleInterface*> FrameInterface::Children() const {
    QList<QAccessibleInterface*> children;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
        QAccessibleInterface* one = QAccessibleWidget::child(i);
        const auto* list = dynamic_cast<const DropDownList*>(one->object());
        if (!IsHiddenFromHelpers(*one->object()) && (list == nullptr || !list->Covered())) {
            children += one;
        }
    }
    return children;
}

}  // namespace tarvix
