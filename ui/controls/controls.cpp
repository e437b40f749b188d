#include "ui/controls/controls.h"

#include "ui/controls/accessible_roles.h"
#include "ui/controls/readable_palette.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>

namespace tarvix {

namespace {

// Pixels between an entry of a list and the inner edges of its box.
constexpr int kEntryMargin = 4;

// The keys by which the toolkit picks another entry of a list that is not open.
bool PicksFromClosedList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown || key == Qt::Key_Home || key == Qt::Key_End;
}

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

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
    int widest = 0;
    for (const QString& entry : roomFor_) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(entry));
    }
    const QSize entry(widest + kEntryMargin, fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, entry, this);
}

void DropDownList::AskRoomFor(std::string_view entry) {
    roomFor_.push_back(ToQString(entry));
}

void DropDownList::SetCovered(bool covered) {
    covered_ = covered;
    // The focus would not be seen on a list that is covered.
    setFocusPolicy(covered ? Qt::ClickFocus : Qt::StrongFocus);
}

void DropDownList::showPopup() {
    if (covered_) {
        return;
    }
    // Beside its entries the open list shows a mark at the selected one.
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + 2 * kEntryMargin);
    QComboBox::showPopup();
}

void DropDownList::SetListIndex(int index) {
    setCurrentIndex(index);
    emit activated(index);
}

void DropDownList::AddItem(std::string_view text) {
    addItem(ToQString(text));
}

void DropDownList::keyPressEvent(QKeyEvent* event) {
    // The Tab key and the window's shortcuts don't come here.
    if (covered_) {
        event->ignore();
        return;
    }
    const bool types =
        !event->text().isEmpty() && event->text().at(0).isPrint() && event->key() != Qt::Key_Space;
    if (opensToPick_ && (types || PicksFromClosedList(event->key()))) {
        showPopup();
        if (types) {
            QCoreApplication::sendEvent(view(), event);
        }
        event->accept();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void DropDownList::wheelEvent(QWheelEvent* event) {
    if (!hasFocus() || covered_) {
        event->ignore();
    } else if (opensToPick_) {
        showPopup();
        event->accept();
    } else {
        QComboBox::wheelEvent(event);
    }
}

CoverField::CoverField(QWidget* parent) : QLineEdit(parent) {
    SetAccessibleRole(*this, QAccessible::StaticText);
    setReadOnly(true);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCursor(Qt::ArrowCursor);
}

void CoverField::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), parentWidget()->palette().window());
}

bool CoverField::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            event->accept();
            return true;
        default:
            return QLineEdit::event(event);
    }
}

}  // namespace tarvix
