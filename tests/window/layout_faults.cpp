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

// What a control shows, and where in its own coordinates; nothing where it shows no text.
struct ShownText {
    QString text;
    QRect area;
};

ShownText TextOf(QWidget* widget) {
    if (const auto* label = qobject_cast<QLabel*>(widget)) {
        const int indent = std::max(label->indent(), 0);
        return {label->text(), label->contentsRect().adjusted(indent, 0, 0, 0)};
    }
    if (const auto* option = dynamic_cast<OptionButton*>(widget)) {
        return {option->text(), option->TextArea()};
    }
    if (const auto* button = qobject_cast<QPushButton*>(widget)) {
        return {button->text(), TextArea(*button)};
    }
    if (const auto* list = qobject_cast<QComboBox*>(widget)) {
        return {list->currentText(), TextArea(*list)};
    }
    if (const auto* field = qobject_cast<QLineEdit*>(widget)) {
        return {field->text(), TextArea(*field)};
    }
    if (const auto* frame = dynamic_cast<FrameBox*>(widget)) {
        return {frame->title(),
                QRect(0, 0, frame->width(), FrameBox::CaptionHeight(frame->font()))};
    }
    if (const auto* tab = qobject_cast<QTabWidget*>(widget)) {
        return {tab->tabText(0), tab->tabBar()->tabRect(0)};
    }
    return {};
}

void CheckText(const NamedControl& control, ShownText shown, QStringList& faults) {
    const auto* label = qobject_cast<const QLabel*>(control.widget);
    const QFontMetrics metrics(control.widget->font());
    const QString text = shown.text.remove('&');
    const QSize needed =
        label != nullptr && label->wordWrap()
            ? metrics.boundingRect(shown.area, Qt::TextWordWrap | Qt::AlignLeft, text).size()
            : QSize(metrics.horizontalAdvance(text), metrics.height());
    const QSize room = shown.area.size();
    if (needed.width() > room.width() || needed.height() > room.height()) {
        faults += Named(control.name, QString("\"%1\" needs %2 x %3 of %4 x %5")
                                          .arg(text)
                                          .arg(needed.width())
                                          .arg(needed.height())
                                          .arg(room.width())
                                          .arg(room.height()));
    }
}

void CheckContent(const NamedControl& control, QStringList& faults) {
    if (control.kind == ControlKind::Picture) {
        const auto& picture = *qobject_cast<QLabel*>(control.widget);
        const QSizeF size = picture.pixmap().deviceIndependentSize();
        if (size.width() > picture.width() || size.height() > picture.height()) {
            faults += Named(control.name, "the picture is larger than its place");
        }
        return;
    }
    ShownText shown = TextOf(control.widget);
    // Results stand in their fields whole; what a user types may be longer than any field.
    const auto* field = qobject_cast<QLineEdit*>(control.widget);
    if (field != nullptr && !field->isReadOnly()) {
        shown.text = "0";
    }
    if (!shown.text.isEmpty()) {
        CheckText(control, shown, faults);
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

QHash<QRgb, int> CountColors(const QImage& picture, const QRect& area) {
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    return counts;
}

QColor TextColor(const NamedControl& control) {
    const auto group = control.widget->isEnabled() ? QPalette::Active : QPalette::Disabled;
    auto role = QPalette::WindowText;
    if (control.kind == ControlKind::TextBox) {
        role = QPalette::Text;
    } else if (control.kind == ControlKind::Button || control.kind == ControlKind::ComboBox) {
        role = QPalette::ButtonText;
    }
    return control.widget->palette().color(group, role);
}

}  // namespace

QStringList LayoutFaults(MainForm& form) {
    QStringList faults;
    const auto visible = VisibleControls(form);
    for (size_t i = 0; i < visible.size(); ++i) {
        const NamedControl& control = *visible[i];
        CheckContent(control, faults);
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
                CheckText(*control, {list->itemText(i), TextArea(*list)}, faults);
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
        const auto [text, area] = TextOf(control->widget);
        const bool isCovered =
            control->widget == form.cboNomSize && form.IsVisible(*form.txtMaskNomSize);
        // The selected text of the focused field has the desktop's own colors.
        if (text.isEmpty() || isCovered || control->widget->hasFocus()) {
            continue;
        }
        const QRect onCanvas(control->widget->mapTo(&whole, area.topLeft()), area.size());
        const QHash<QRgb, int> colors = CountColors(picture, onCanvas);
        const QColor background(std::max_element(colors.cbegin(), colors.cend()).key());
        double contrast = ContrastOf(TextColor(*control), background);
        if (strokesAreSolid) {
            // That of the strongest stroke.
            double painted = 1;
            for (auto color = colors.cbegin(); color != colors.cend(); ++color) {
                painted = std::max(painted, ContrastOf(QColor(color.key()), background));
            }
            contrast = std::min(contrast, painted);
        }
        if (contrast < kReadable) {
            faults +=
                Named(control->name,
                      QString("contrast %1 on %2").arg(contrast, 0, 'f', 2).arg(background.name()));
        }
    }
    return faults;
}

}  // namespace tarvix::testing
