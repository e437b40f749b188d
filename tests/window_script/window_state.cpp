#include "tests/window_script/window_state.h"

#include <QGroupBox>
#include <QJsonArray>
#include <QLabel>

namespace tarvix {

namespace {

QString BackColorText(const QWidget& widget) {
    const BackColor color = BackColorOf(widget);
    if (color == BackColor::Default || color == BackColor::WindowBackground) {
        return color == BackColor::Default ? "default" : "window";
    }
    return QString::asprintf("0x%06X", static_cast<unsigned>(color));
}

void AddTextBox(QJsonObject& state, const QLineEdit& box) {
    state["text"] = box.text();
    state["locked"] = box.isReadOnly();
    state["tabstop"] = (box.focusPolicy() & Qt::TabFocus) != 0;
    state["backcolor"] = BackColorText(box);
    state["selstart"] = box.hasSelectedText() ? box.selectionStart() : box.cursorPosition();
    state["sellength"] = box.selectedText().size();
}

void AddComboBox(QJsonObject& state, const QComboBox& box) {
    QJsonArray items;
    for (int i = 0; i < box.count(); ++i) {
        items.append(box.itemText(i));
    }
    state["text"] = box.currentText();
    state["index"] = box.currentIndex();
    state["items"] = items;
}

void AddFrame(QJsonObject& state, const NamedControl& control) {
    const auto* group = qobject_cast<const QGroupBox*>(control.widget);
    state["caption"] = group != nullptr ? group->title() : QString();
    state["backcolor"] = BackColorText(*control.widget);
    state["left"] = control.place.left;
    state["top"] = control.place.top;
    state["width"] = control.place.width;
    state["height"] = control.place.height;
}

QJsonObject ControlState(const MainForm& form, const NamedControl& control) {
    if (control.action != nullptr) {
        return {{"visible", control.action->isVisible()},
                {"enabled", control.action->isEnabled()},
                {"caption", control.action->text()}};
    }
    const QWidget* widget = control.widget;
    QJsonObject state{{"visible", form.IsVisible(*widget)}, {"enabled", form.IsEnabled(*widget)}};
    switch (control.kind) {
        case ControlKind::TextBox:
            AddTextBox(state, *qobject_cast<const QLineEdit*>(widget));
            break;
        case ControlKind::ComboBox:
            AddComboBox(state, *qobject_cast<const QComboBox*>(widget));
            break;
        case ControlKind::Frame:
            AddFrame(state, control);
            break;
        case ControlKind::Option:
            state["value"] = qobject_cast<const QRadioButton*>(widget)->isChecked();
            state["backcolor"] = BackColorText(*widget);
            [[fallthrough]];
        case ControlKind::Button:
            state["caption"] = qobject_cast<const QAbstractButton*>(widget)->text();
            break;
        case ControlKind::Label:
            state["caption"] = qobject_cast<const QLabel*>(widget)->text();
            state["backcolor"] = BackColorText(*widget);
            break;
        case ControlKind::Tab:
            state["caption"] = qobject_cast<const QTabWidget*>(widget)->tabText(0);
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
