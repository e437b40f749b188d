#include "ui/controls.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWheelEvent>

#include <utility>

namespace tarvix {

namespace {

constexpr const char* kBackColorProperty = "backColor";

const QColor kDarkText(0x00, 0x00, 0x00);
const QColor kDarkDisabledText(0x45, 0x45, 0x45);

QColor ColorOf(BackColor color) {
    const auto bgr = static_cast<unsigned>(color);
    return QColor(static_cast<int>(bgr & 0xFFU), static_cast<int>((bgr >> 8U) & 0xFFU),
                  static_cast<int>((bgr >> 16U) & 0xFFU));
}

QPalette PaletteOf(const QWidget& widget, BackColor color) {
    QPalette palette = widget.palette();
    // An option keeps its white dot and fills the rest of its box.
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
        palette.setColor(QPalette::Base, ColorOf(color));
    } else {
        palette.setColor(QPalette::Window, ColorOf(color));
        palette.setColor(QPalette::Button, ColorOf(color));
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, kDarkText);
        palette.setColor(QPalette::Inactive, role, kDarkText);
        palette.setColor(QPalette::Disabled, role, kDarkDisabledText);
    }
    return palette;
}

}  // namespace

void SetBackColor(QWidget& widget, BackColor color) {
    if (BackColorOf(widget) == color) {
        return;
    }
    widget.setProperty(kBackColorProperty, static_cast<int>(color));
    const bool systemColor = color == BackColor::WindowBackground || color == BackColor::Default;
    widget.setPalette(systemColor ? QPalette() : PaletteOf(widget, color));
    // Text boxes fill their own background.
    if (qobject_cast<QLineEdit*>(&widget) == nullptr) {
        widget.setAutoFillBackground(!systemColor);
    }
}

BackColor BackColorOf(const QWidget& widget) {
    const QVariant color = widget.property(kBackColorProperty);
    return color.isValid() ? static_cast<BackColor>(color.toInt()) : BackColor::Default;
}

NumericField::NumericField(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight);
    // The toolkit also reports an edit that puts the same text in place of the selected one.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (std::exchange(reportedText_, text) != text && onChange) {
            onChange();
        }
    });
}

FieldSelection NumericField::Selection() const {
    const QString whole = text();
    const auto start = hasSelectedText() ? selectionStart() : cursorPosition();
    const auto length = selectedText().size();
    return {whole.left(start).toStdString(), whole.mid(start, length).toStdString(),
            whole.mid(start + length).toStdString()};
}

void NumericField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    // Coming back from another window or from the field's own menu is no entry.
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) {
        return;
    }
    focusCameByThisPress_ = event->reason() == Qt::MouseFocusReason;
    if (onGotFocus) {
        onGotFocus();
    }
}

void NumericField::mousePressEvent(QMouseEvent* event) {
    // The press that brings the focus leaves the whole text selected; the next one sets the caret.
    if (std::exchange(focusCameByThisPress_, false)) {
        return;
    }
    QLineEdit::mousePressEvent(event);
}

void NumericField::keyPressEvent(QKeyEvent* event) {
    focusCameByThisPress_ = false;
    QString typed = event->text();
    if (typed.isEmpty() || !typed.at(0).isPrint()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (event->modifiers().testFlag(Qt::KeypadModifier) &&
        (event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma)) {
        typed = QString(QLatin1Char(decimalSeparator_));
    }
    if (!IsKept(typed.at(0))) {
        event->accept();
        return;
    }
    QKeyEvent kept(event->type(), event->key(), event->modifiers(), typed, event->isAutoRepeat(),
                   static_cast<quint16>(event->count()));
    QLineEdit::keyPressEvent(&kept);
    event->setAccepted(kept.isAccepted());
}

void NumericField::inputMethodEvent(QInputMethodEvent* event) {
    const QString typed = event->commitString();
    event->setCommitString(QString());
    QLineEdit::inputMethodEvent(event);
    for (const QChar character : typed) {
        if (!isReadOnly() && IsKept(character)) {
            insert(QString(character));
        }
    }
}

bool NumericField::IsKept(QChar character) const {
    return !onKeyPress || onKeyPress(character.unicode()) != 0;
}

void OptionButton::Select() {
    setChecked(true);
    emit clicked(true);
}

DropDownList::DropDownList(QWidget* parent) : QComboBox(parent) {
    // A hover or a scroll of the page must not change a unit.
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(20);
}

void DropDownList::SetListIndex(int index) {
    setCurrentIndex(index);
    emit activated(index);
}

void DropDownList::AddItem(std::string_view text) {
    addItem(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void DropDownList::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

}  // namespace tarvix
