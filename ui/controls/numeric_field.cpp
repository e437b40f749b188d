#include "ui/controls/numeric_field.h"

#include "ui/controls/accessible_roles.h"
#include "ui/controls/back_color.h"

#include <QFontMetrics>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFrame>

#include <utility>

namespace tarvix {

namespace {

// Pixels that a text box keeps free at each end of its text, beside the caret's.
constexpr int kTextMargin = 2;

// In percent, how far the font of a long result is made smaller, and by which steps.
constexpr int kSmallestFont = 50;
constexpr int kFontStep = 2;

// True for a key that may put characters into a field: not for the keys of commands, but for the
// invisible marks of some keyboards, which the toolkit takes as text.
bool IsTyping(const QKeyEvent& event) {
    if (event.text().isEmpty()) {
        return false;
    }
    const QChar::Category category = event.text().at(0).category();
    if (category == QChar::Other_Format) {
        return true;
    }
    const bool command = event.modifiers() == Qt::ControlModifier ||
                         event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    return category != QChar::Other_Control && !command;
}

void Scale(QFont& font, const QFont& whole, int percent) {
    if (whole.pointSizeF() > 0) {
        font.setPointSizeF(whole.pointSizeF() * percent / 100);
    } else {
        font.setPixelSize(whole.pixelSize() * percent / 100);
    }
}

}  // namespace

NumericField::NumericField(QWidget* parent) : EntryLine(parent) {
    setAlignment(Qt::AlignRight);
    // What a keyboard on the screen offers.
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    // The toolkit also reports an edit that puts the same text in place of the selected one.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (std::exchange(reportedText_, text) != text) {
            ChooseFont();
            if (onChange) {
                onChange();
            }
        }
    });
}

void NumericField::SetLocked(bool locked) {
    setReadOnly(locked);
    ChooseFont();
    AnnounceName(*this);
}

void NumericField::SetCurrent(bool current) {
    if (std::exchange(current_, current) != current) {
        SetDimmed(*this, !current);
        ChooseFont();
        AnnounceName(*this);
    }
}

QRect NumericField::TextArea() const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .adjusted(kTextMargin, 0, -kTextMargin - 1, 0);
}

void NumericField::ChooseFont() {
    // What this font does not say is as in the rest of the window.
    QFont chosen;
    chosen.setBold(Locked() && current_);
    if (Locked()) {
        const QFont whole = parentWidget()->font();
        QFont fitting = chosen.resolve(whole);
        int percent = 100;
        while (percent > kSmallestFont &&
               QFontMetrics(fitting, this).horizontalAdvance(text()) > TextArea().width()) {
            percent -= kFontStep;
            Scale(chosen, whole, percent);
            fitting = chosen.resolve(whole);
        }
    }
    if (chosen != font() || chosen.resolveMask() != font().resolveMask()) {
        setFont(chosen);
    }
}

const EnteredNumber& NumericField::Number() const {
    if (std::string now = Text(); now != number_.text()) {
        number_ = EnteredNumber(std::move(now), locale_);
    }
    return number_;
}

void NumericField::SetLocale(const NumberLocale& locale) {
    locale_ = locale;
    number_ = EnteredNumber(Text(), locale);
}

FieldSelection NumericField::Selection() const {
    const QString whole = text();
    const auto start = hasSelectedText() ? selectionStart() : cursorPosition();
    const auto length = selectedText().size();
    return {whole.left(start).toStdString(), whole.mid(start, length).toStdString(),
            whole.mid(start + length).toStdString()};
}

bool NumericField::event(QEvent* event) {
    // With nothing selected, copying is the window's: it copies the solved value.
    const auto* key = dynamic_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::ShortcutOverride && !hasSelectedText() && key != nullptr &&
        key->matches(QKeySequence::Copy)) {
        event->ignore();
        return true;
    }
    return EntryLine::event(event);
}

void NumericField::keyPressEvent(QKeyEvent* event) {
    if (!IsTyping(*event)) {
        EntryLine::keyPressEvent(event);
        return;
    }
    QString typed = event->text();
    if (event->modifiers().testFlag(Qt::KeypadModifier) &&
        (event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma)) {
        typed = QString(QLatin1Char(locale_.decimalSeparator));
    }
    event->accept();
    for (const QChar character : typed) {
        if (IsKept(character)) {
            QKeyEvent kept(event->type(), event->key(), event->modifiers(), QString(character),
                           event->isAutoRepeat());
            EntryLine::keyPressEvent(&kept);
            event->setAccepted(kept.isAccepted());
        }
    }
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

// The toolkit would select a word, and takes a separator for the end of one.
void NumericField::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        EntryLine::mouseDoubleClickEvent(event);
        return;
    }
    selectAll();
    KeepSelectionUntilDragged(event->pos());
}

void NumericField::resizeEvent(QResizeEvent* event) {
    EntryLine::resizeEvent(event);
    ChooseFont();
}

void NumericField::changeEvent(QEvent* event) {
    EntryLine::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        ChooseFont();
    }
}

bool NumericField::IsKept(QChar character) const {
    return !onKeyPress || onKeyPress(character.unicode()) != 0;
}

}  // namespace tarvix
