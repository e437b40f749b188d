#include "ui/controls/controls.h"

#include "ui/controls/readable_palette.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tarvix {

namespace {

constexpr const char* kBackColorProperty = "backColor";

// Pixels between an entry of a list and the inner edges of its box.
constexpr int kEntryMargin = 4;

const QColor kDarkText(0x00, 0x00, 0x00);
const QColor kDarkDisabledText(0x45, 0x45, 0x45);

QColor ColorOf(BackColor color) {
    const auto bgr = static_cast<unsigned>(color);
    return QColor(static_cast<int>(bgr & 0xFFU), static_cast<int>((bgr >> 8U) & 0xFFU),
                  static_cast<int>((bgr >> 16U) & 0xFFU));
}

QPalette PaletteOf(const QWidget& widget, BackColor color) {
    QPalette palette;
    palette.setColor(QPalette::Window, ColorOf(color));
    palette.setColor(QPalette::Button, ColorOf(color));
    // A text box shows the color; the circle of an option stays white, whatever its dot is on.
    const bool isTextBox = qobject_cast<const QLineEdit*>(&widget) != nullptr;
    palette.setColor(QPalette::Base, isTextBox ? ColorOf(color) : QColor(Qt::white));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, kDarkText);
        palette.setColor(QPalette::Inactive, role, kDarkText);
        palette.setColor(QPalette::Disabled, role, kDarkDisabledText);
    }
    return palette;
}

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

NumericField::NumericField(QWidget* parent) : EntryLine(parent) {
    setAlignment(Qt::AlignRight);
    // What a keyboard on the screen offers.
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    // The toolkit also reports an edit that puts the same text in place of the selected one.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (std::exchange(reportedText_, text) != text && onChange) {
            onChange();
        }
    });
}

void NumericField::SetLocked(bool locked) {
    setReadOnly(locked);
    QFont weight = font();
    weight.setBold(locked);
    setFont(weight);
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

bool NumericField::IsKept(QChar character) const {
    return !onKeyPress || onKeyPress(character.unicode()) != 0;
}

OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent) {
    connect(this, &QAbstractButton::toggled, this, [this](bool selected) {
        if (selected) {
            TakeTabStop();
        }
    });
}

void OptionButton::TakeTabStop() {
    for (OptionButton* option : Options()) {
        option->setFocusPolicy(option == this ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void OptionButton::Select() {
    setChecked(true);
    emit clicked(true);
}

QSize OptionButton::sizeHint() const {
    const QSize size = QRadioButton::sizeHint();
    return {size.width() + DiscGrowth() + (isBar_ ? 2 * BarPadding() : 0),
            std::max(size.height(), DiscArea().height())};
}

int OptionButton::BarPadding() const {
    return style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this);
}

int OptionButton::DiscGrowth() const {
    const int disc = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this);
    return std::max(0, fontMetrics().ascent() - disc);
}

QStyleOptionButton OptionButton::StyleOption() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    if (isBar_) {
        option.rect.adjust(BarPadding(), 0, -BarPadding(), 0);
    }
    return option;
}

QStyleOptionButton OptionButton::BesideDisc(const QStyleOptionButton& option) const {
    QStyleOptionButton rest = option;
    rest.rect = QStyle::visualRect(option.direction, option.rect,
                                   option.rect.adjusted(DiscGrowth(), 0, 0, 0));
    return rest;
}

QRect OptionButton::DiscArea() const {
    const QStyleOptionButton option = StyleOption();
    const QRect disc = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
    const QSize size = disc.size() + QSize(DiscGrowth(), DiscGrowth());
    return QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter, size,
                               option.rect);
}

QRect OptionButton::TextArea() const {
    const QStyleOptionButton rest = BesideDisc(StyleOption());
    return style()->subElementRect(QStyle::SE_RadioButtonContents, &rest, this);
}

// The parts that the style makes an option of, in its order.
void OptionButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    const QStyleOptionButton option = StyleOption();
    QStyleOptionButton part = option;
    part.rect = DiscArea();
    part.palette = DiscPalette(option.palette, QGuiApplication::palette());
    painter.drawPrimitive(QStyle::PE_IndicatorRadioButton, part);
    part = option;
    part.rect = TextArea();
    painter.drawControl(QStyle::CE_RadioButtonLabel, part);
    if (hasFocus()) {
        const QStyleOptionButton rest = BesideDisc(option);
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = style()->subElementRect(QStyle::SE_RadioButtonFocusRect, &rest, this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

bool OptionButton::hitButton(const QPoint& position) const {
    if (isBar_) {
        return rect().contains(position);
    }
    const QStyleOptionButton rest = BesideDisc(StyleOption());
    const QRect text = style()->subElementRect(QStyle::SE_RadioButtonClickRect, &rest, this);
    return text.contains(position) || DiscArea().contains(position);
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    const bool following = event->key() == Qt::Key_Down || event->key() == Qt::Key_Right;
    const bool preceding = event->key() == Qt::Key_Up || event->key() == Qt::Key_Left;
    if (!following && !preceding) {
        QRadioButton::keyPressEvent(event);
        return;
    }
    // The focus first: the option's handler may send it on to the field that it opens.
    OptionButton* neighbor = Neighbor(following);
    neighbor->setFocus(following ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    neighbor->click();
}

std::vector<OptionButton*> OptionButton::Options() const {
    std::vector<OptionButton*> options;
    for (QObject* child : parent()->children()) {
        if (auto* option = dynamic_cast<OptionButton*>(child)) {
            options.push_back(option);
        }
    }
    return options;
}

OptionButton* OptionButton::Neighbor(bool following) const {
    std::vector<OptionButton*> usable = Options();
    std::erase_if(usable, [](const OptionButton* option) {
        return !option->isVisible() || !option->isEnabled();
    });
    const auto count = usable.size();
    const auto self = static_cast<size_t>(std::ranges::find(usable, this) - usable.begin());
    return usable[(self + (following ? 1 : count - 1)) % count];
}

DropDownList::DropDownList(QWidget* parent) : QComboBox(parent) {
    // A hover or a scroll of the page must not change a unit.
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(20);
}

QSize DropDownList::sizeHint() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize entry(fontMetrics().horizontalAdvance(widestEntry_) + kEntryMargin,
                      fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, entry, this);
}

void DropDownList::showPopup() {
    // Beside its entries the open list shows a mark at the selected one.
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + 2 * kEntryMargin);
    QComboBox::showPopup();
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
