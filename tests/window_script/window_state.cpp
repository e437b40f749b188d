#include "tests/window_script/window_state.h"

#include <QGroupBox>
#include <QJsonArray>
#include <QLabel>

namespace tarvix {

namespace {

QString ColorText(BackColor color) {
    switch (color) {
        case BackColor::Default:
            return QStringLiteral("default");
        case BackColor::WindowBackground:
            return QStringLiteral("window");
        default:
            return QStringLiteral("0x%1").arg(
                QString::number(static_cast<int>(color), 16).toUpper(), 6, QLatin1Char('0'));
    }
}

QString BackColorText(const QWidget& widget) {
    return ColorText(BackColorOf(widget));
}

void AddTextBox(QJsonObject& state, const QLineEdit& box) {
    state[QStringLiteral("text")] = box.text();
    state[QStringLiteral("locked")] = box.isReadOnly();
    state[QStringLiteral("tabstop")] = (box.focusPolicy() & Qt::TabFocus) != 0;
    state[QStringLiteral("backcolor")] = BackColorText(box);
    state[QStringLiteral("selstart")] =
        box.hasSelectedText() ? box.selectionStart() : box.cursorPosition();
    state[QStringLiteral("sellength")] = box.selectedText().size();
}

void AddComboBox(QJsonObject& state, const QComboBox& box) {
    QJsonArray items;
    for (int i = 0; i < box.count(); ++i) {
        items.append(box.itemText(i));
    }
    state[QStringLiteral("text")] = box.currentText();
    state[QStringLiteral("index")] = box.currentIndex();
    state[QStringLiteral("items")] = items;
}

void AddFrame(QJsonObject& state, const NamedControl& control) {
    const auto* group = qobject_cast<const QGroupBox*>(control.widget);
    state[QStringLiteral("caption")] = group != nullptr ? group->title() : QString();
    state[QStringLiteral("backcolor")] = BackColorText(*control.widget);
    state[QStringLiteral("left")] = control.place.left;
    state[QStringLiteral("top")] = control.place.top;
    state[QStringLiteral("width")] = control.place.width;
    state[QStringLiteral("height")] = control.place.height;
}

QJsonObject ControlState(const MainForm& form, const NamedControl& control) {
    QJsonObject state;
    if (control.action != nullptr) {
        state[QStringLiteral("visible")] = control.action->isVisible();
        state[QStringLiteral("enabled")] = control.action->isEnabled();
        state[QStringLiteral("caption")] = control.action->text();
        return state;
    }
    const QWidget* widget = control.widget;
    state[QStringLiteral("visible")] = form.IsVisible(*widget);
    state[QStringLiteral("enabled")] = form.IsEnabled(*widget);
    switch (control.kind) {
        case ControlKind::TextBox:
            AddTextBox(state, *qobject_cast<const QLineEdit*>(widget));
            break;
        case ControlKind::ComboBox:
            AddComboBox(state, *qobject_cast<const QComboBox*>(widget));
            break;
        case ControlKind::Option: {
            const auto* option = qobject_cast<const QRadioButton*>(widget);
            state[QStringLiteral("value")] = option->isChecked();
            state[QStringLiteral("caption")] = option->text();
            state[QStringLiteral("backcolor")] = BackColorText(*option);
            break;
        }
        case ControlKind::Frame:
            AddFrame(state, control);
            break;
        case ControlKind::Label:
            state[QStringLiteral("caption")] = qobject_cast<const QLabel*>(widget)->text();
            state[QStringLiteral("backcolor")] = BackColorText(*widget);
            break;
        case ControlKind::Button:
            state[QStringLiteral("caption")] = qobject_cast<const QPushButton*>(widget)->text();
            break;
        case ControlKind::Tab:
            state[QStringLiteral("caption")] = qobject_cast<const QTabWidget*>(widget)->tabText(0);
            break;
        case ControlKind::Picture:
        case ControlKind::MenuItem:
            break;
    }
    return state;
}

}  // namespace

QJsonObject ControlStates(const MainForm& form) {
    QJsonObject states;
    for (const NamedControl& control : form.Controls()) {
        states[control.name] = ControlState(form, control);
    }
    return states;
}

}  // namespace tarvix
