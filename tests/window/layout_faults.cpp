#include "tests/window/layout_faults.h"

#include "ui/controls/frame_box.h"
#include "ui/controls/readable_palette.h"

#include <QHash>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabBar>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tarvix::testing {

namespace {

constexpr double kReadable = 4.5;

// Two left edges closer than this, but not the same, look like a mistake.
constexpr int kNearlyAligned = 4;

QString Named(const QString& name, const QString& what) {
    return name + ": " + what;
}

int TextWidth(const QWidget& widget, QString text) {
    text.remove('&');
    return QFontMetrics(widget.font()).horizontalAdvance(text);
}

// Where the style lets each kind of control show its text.
QRect TextArea(const QPushButton& button) {
    QStyleOptionButton style;
    style.initFrom(&button);
    return button.style()->subElementRect(QStyle::SE_PushButtonContents, &style, &button);
}

QRect TextArea(const QComboBox& list) {
    QStyleOptionComboBox style;
    style.initFrom(&list);
    // The label of a list keeps a pixel to the edges of its box.
    return list.style()
        ->subControlRect(QStyle::CC_ComboBox, &style, QStyle::SC_ComboBoxEditField, &list)
        .adjusted(1, 0, -1, 0);
}

QRect TextArea(const QLineEdit& field) {
    QStyleOptionFrame style;
    style.initFrom(&field);
    style.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &style, &field);
    // A text box keeps two pixels beside its text and one above and below it.
    return field.style()
        ->subElementRect(QStyle::SE_LineEditContents, &style, &field)
        .adjusted(2, 1, -2, -1);
}

void CheckText(const QString& name, const QWidget& widget, const QString& text, const QRect& area,
               QStringList& faults) {
    const QSize needed(TextWidth(widget, text), QFontMetrics(widget.font()).height());
    if (needed.width() > area.width() || needed.height() > area.height()) {
        faults += Named(name, QString("\"%1\" needs %2 x %3 of %4 x %5")
                                  .arg(text)
                                  .arg(needed.width())
                                  .arg(needed.height())
                                  .arg(area.width())
                                  .arg(area.height()));
    }
}

void CheckLabel(const QString& name, const QLabel& label, QStringList& faults) {
    QRect area = label.contentsRect();
    if (!label.wordWrap()) {
        area.adjust(std::max(label.indent(), 0), 0, 0, 0);
        CheckText(name, label, label.text(), area, faults);
        return;
    }
    const QRect needed = QFontMetrics(label.font())
                             .boundingRect(area, Qt::TextWordWrap | Qt::AlignLeft, label.text());
    if (needed.width() > area.width() || needed.height() > area.height()) {
        faults += Named(name, "\"" + label.text() + "\" does not fit on its lines");
    }
}

// Results stand in their fields whole; what a user types may be longer than any field.
void CheckField(const QString& name, const QLineEdit& field, QStringList& faults) {
    CheckText(name, field, field.isReadOnly() ? field.text() : "0", TextArea(field), faults);
}

void CheckOwnText(const NamedControl& control, QStringList& faults) {
    QWidget* widget = control.widget;
    switch (control.kind) {
        case ControlKind::Label:
            CheckLabel(control.name, *qobject_cast<QLabel*>(widget), faults);
            break;
        case ControlKind::Option: {
            const auto& option = *dynamic_cast<OptionButton*>(widget);
            CheckText(control.name, option, option.text(), option.TextArea(), faults);
            break;
        }
        case ControlKind::Button: {
            const auto& button = *qobject_cast<QPushButton*>(widget);
            CheckText(control.name, button, button.text(), TextArea(button), faults);
            break;
        }
        case ControlKind::ComboBox: {
            const auto& list = *qobject_cast<QComboBox*>(widget);
            CheckText(control.name, list, list.currentText(), TextArea(list), faults);
            break;
        }
        case ControlKind::TextBox:
            CheckField(control.name, *qobject_cast<QLineEdit*>(widget), faults);
            break;
        case ControlKind::Frame:
            if (const auto* frame = qobject_cast<QGroupBox*>(widget)) {
                CheckText(control.name, *frame, frame->title(), frame->rect(), faults);
            }
            break;
        case ControlKind::Tab: {
            const auto& tab = *qobject_cast<QTabWidget*>(widget);
            CheckText(control.name, tab, tab.tabText(0), tab.tabBar()->tabRect(0), faults);
            break;
        }
        case ControlKind::Picture: {
            const auto& picture = *qobject_cast<QLabel*>(widget);
            const QSizeF size = picture.pixmap().deviceIndependentSize();
            if (size.width() > picture.width() || size.height() > picture.height()) {
                faults += Named(control.name, "the picture is larger than its place");
            }
            break;
        }
        case ControlKind::MenuItem:
            break;
    }
}

// The part of the parent that is free for what lies in it.
QRect RoomIn(const QWidget& parent) {
    QRect room = parent.rect();
    if (const auto* frame = dynamic_cast<const FrameBox*>(&parent)) {
        room.adjust(2, FrameBox::CaptionHeight(frame->font()) + 2, -2, -2);
    } else if (const auto* tab = qobject_cast<const QTabWidget*>(&parent)) {
        room.adjust(2, tab->tabBar()->geometry().bottom() + 1, -2, -2);
    }
    return room;
}

// What lies over something else on purpose.
bool MayOverlap(const QString& one, const QString& other) {
    const auto isOneOf = [&](const QString& name) { return one == name || other == name; };
    return isOneOf("txtOptionsFrame") || isOneOf("txtFlowTypeFrame") ||
           (isOneOf("txtMaskNomSize") && isOneOf("cboNomSize"));
}

std::vector<const NamedControl*> VisibleControls(const MainForm& form) {
    std::vector<const NamedControl*> visible;
    for (const NamedControl& control : form.Controls()) {
        if (control.widget != nullptr && form.IsVisible(*control.widget)) {
            visible.push_back(&control);
        }
    }
    return visible;
}

void CheckPair(const NamedControl& one, const NamedControl& other, QStringList& faults) {
    const QRect first = one.widget->geometry();
    const QRect second = other.widget->geometry();
    const QString names = one.name + " and " + other.name;
    if (first.intersects(second)) {
        if (!MayOverlap(one.name, other.name)) {
            faults += Named(names, "overlap");
        }
        return;
    }
    const int apart = std::abs(first.left() - second.left());
    if (apart > 0 && apart < kNearlyAligned) {
        faults += Named(names, "are nearly aligned");
    }
    // Side by side, they share a middle line.
    const bool sameRow = std::abs(first.top() - second.top()) < first.height() / 2 &&
                         first.height() == second.height();
    if (sameRow && first.top() != second.top()) {
        faults += Named(names, "stand nearly in one row");
    }
}

using ColorCounts = QHash<QRgb, int>;

ColorCounts CountColors(const QImage& picture, const QRect& area) {
    ColorCounts counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    return counts;
}

QColor MostFrequentColor(const ColorCounts& counts) {
    return QColor(std::max_element(counts.cbegin(), counts.cend()).key());
}

// The contrast of the strongest stroke.
double PaintedContrast(const ColorCounts& counts, const QColor& background) {
    double strongest = 1;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color) {
        strongest = std::max(strongest, ContrastOf(QColor(color.key()), background));
    }
    return strongest;
}

// Where a control shows text, in its own coordinates; empty for a control that shows none.
QRect ReadArea(const NamedControl& control) {
    switch (control.kind) {
        case ControlKind::Label:
            return qobject_cast<QLabel*>(control.widget)->text().isEmpty() ? QRect()
                                                                           : control.widget->rect();
        case ControlKind::Option:
            return dynamic_cast<OptionButton*>(control.widget)->TextArea();
        case ControlKind::Button:
            return TextArea(*qobject_cast<QPushButton*>(control.widget));
        case ControlKind::ComboBox:
            return TextArea(*qobject_cast<QComboBox*>(control.widget));
        case ControlKind::TextBox: {
            const auto& field = *qobject_cast<QLineEdit*>(control.widget);
            return field.text().isEmpty() ? QRect() : TextArea(field);
        }
        case ControlKind::Frame: {
            const auto* frame = dynamic_cast<FrameBox*>(control.widget);
            return frame == nullptr
                       ? QRect()
                       : QRect(0, 0, frame->width(), FrameBox::CaptionHeight(frame->font()));
        }
        case ControlKind::Tab:
            return qobject_cast<QTabWidget*>(control.widget)->tabBar()->tabRect(0);
        case ControlKind::Picture:
        case ControlKind::MenuItem:
            break;
    }
    return {};
}

QColor TextColor(const NamedControl& control) {
    const QPalette& palette = control.widget->palette();
    const auto group = control.widget->isEnabled() ? QPalette::Active : QPalette::Disabled;
    switch (control.kind) {
        case ControlKind::TextBox:
            return palette.color(group, QPalette::Text);
        case ControlKind::Button:
        case ControlKind::ComboBox:
            return palette.color(group, QPalette::ButtonText);
        default:
            return palette.color(group, QPalette::WindowText);
    }
}

}  // namespace

QStringList LayoutFaults(MainForm& form) {
    QStringList faults;
    const auto visible = VisibleControls(form);
    for (size_t i = 0; i < visible.size(); ++i) {
        const NamedControl& control = *visible[i];
        CheckOwnText(control, faults);
        const QWidget* parent = control.widget->parentWidget();
        if (!RoomIn(*parent).contains(control.widget->geometry())) {
            faults += Named(control.name, "sticks out of what is around it");
        }
        for (size_t j = i + 1; j < visible.size(); ++j) {
            if (visible[j]->widget->parentWidget() == parent) {
                CheckPair(control, *visible[j], faults);
            }
        }
    }
    return faults;
}

QStringList ListEntryFaults(MainForm& form) {
    QStringList faults;
    for (const NamedControl* control : VisibleControls(form)) {
        if (const auto* list = qobject_cast<QComboBox*>(control->widget)) {
            for (int i = 0; i < list->count(); ++i) {
                CheckText(control->name, *list, list->itemText(i), TextArea(*list), faults);
            }
        }
    }
    return faults;
}

QStringList ContrastFaults(frmTarvix& window, bool strokesAreSolid) {
    QStringList faults;
    MainForm& form = window.form();
    const QWidget& whole = *window.centralWidget();
    const QImage picture = window.centralWidget()->grab().toImage();
    for (const NamedControl* control : VisibleControls(form)) {
        const QRect area = ReadArea(*control);
        const bool isCovered =
            control->widget == form.cboNomSize && form.IsVisible(*form.txtMaskNomSize);
        if (area.isEmpty() || isCovered) {
            continue;
        }
        const QRect onCanvas(control->widget->mapTo(&whole, area.topLeft()), area.size());
        const ColorCounts colors = CountColors(picture, onCanvas);
        const QColor background = MostFrequentColor(colors);
        // The selected text of the focused field has the desktop's own colors.
        const bool isSelected = control->widget->hasFocus();
        double contrast = ContrastOf(TextColor(*control), background);
        if (strokesAreSolid) {
            contrast = std::min(contrast, PaintedContrast(colors, background));
        }
        if (!isSelected && contrast < kReadable) {
            faults +=
                Named(control->name,
                      QString("contrast %1 on %2").arg(contrast, 0, 'f', 2).arg(background.name()));
        }
    }
    return faults;
}

}  // namespace tarvix::testing
