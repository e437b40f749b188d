#include "ui/form/main_form.h"

#include "ui/controls/frame_box.h"
#include "ui/form/places.h"

#include <QFontMetricsF>
#include <QLayout>
#include <QTabBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvix {

namespace {

// The size of the form, and of the footer below it, in which the message line keeps these margins.
constexpr int kFormWidth = 9600;
constexpr int kFormHeight = 7185;
constexpr int kFooterHeight = 420;
constexpr int kFooterMargin = 120;
constexpr int kFooterTop = 45;
constexpr int kFooterBottom = 75;

// Window managers may make a window a little smaller than it asks to be: where a pixel of the form
// is a fraction of the screen's, whole pixels of the form are rounded. The canvas may lose that
// much of its margins before it scrolls.
constexpr int kRounding = 3;

// What the places leave to texts and to the style: the label of the compressibility field shows its
// short caption on one line and breaks the long one into two, a row holds a text box, a frame's
// rows begin below its caption, and the frames on the tab control below its tab.
constexpr std::pair<const char*, int> kCompCorrLines[] = {
    {"Operating Density", 1500},
    {"Flowing Conditions (Zf)", kCompCorrWidthZf},
};
constexpr int kRowHeight = 270;
constexpr int kCaptionHeight = 240;
constexpr int kTabHeight = 330;

// Pixels that a text box needs above and below its text.
constexpr int kTextBoxFrame = 8;

}  // namespace

MainForm::MainForm(QWidget& canvas, QWidget& footer, QMenuBar& menuBar)
    : announcements(canvas), canvas_(canvas), footer_(footer) {
    controls_.reserve(100);
    BuildModeAndFluid();
    BuildFluidProperties();
    BuildPipeAndFlow();
    BuildBore();
    BuildMessageAndButtons();
    BuildMenus(menuBar);
    PlaceControls();
}

const NamedControl* MainForm::Find(const QString& name) const {
    const auto control = std::ranges::find(controls_, name, &NamedControl::name);
    return control == controls_.end() ? nullptr : &*control;
}

const NamedControl& MainForm::Of(const QWidget& widget) const {
    return *std::ranges::find(controls_, &widget, &NamedControl::widget);
}

NamedControl& MainForm::Entry(const QWidget& widget) {
    return *std::ranges::find(controls_, &widget, &NamedControl::widget);
}

std::vector<NumericField*> MainForm::NumericFields() const {
    return {txtFlow,    txtDeltaP, txtBeta, txtOriBoreDia, txtPf, txtTf,
            txtDensity, txtSGb,    txtSGf,  txtGasSGb,     txtZf};
}

const NumericField* MainForm::SolvedField() const {
    for (const NumericField* field : {txtFlow, txtDeltaP, txtBeta}) {
        if (field->Locked()) {
            return field;
        }
    }
    return nullptr;
}

void MainForm::SetTop(const QWidget& widget, int top) {
    NamedControl& control = Entry(widget);
    control.place.top = top;
    Place(control);
}

void MainForm::SetWidth(const QWidget& widget, int width) {
    NamedControl& control = Entry(widget);
    control.place.width = width;
    Place(control);
}

void MainForm::PlaceControls() {
    pixelsPerTwipX_ = PixelsPerTwipX();
    pixelsPerTwipY_ = PixelsPerTwipY();
    canvas_.setMinimumSize(CanvasSize() - QSize(kRounding, kRounding));
    for (const NamedControl& control : controls_) {
        if (control.widget != nullptr && control.place.width > 0) {
            Place(control);
        }
    }
    PlaceByText();
    PlaceFooter();
}

QSize MainForm::CanvasSize() const {
    return {static_cast<int>(std::ceil(kFormWidth * pixelsPerTwipX_)),
            static_cast<int>(std::ceil(kFormHeight * pixelsPerTwipY_))};
}

int MainForm::FooterHeight() const {
    return static_cast<int>(std::ceil(kFooterHeight * pixelsPerTwipY_));
}

QSize MainForm::WholeSize() const {
    return CanvasSize() + QSize(0, FooterHeight());
}

QSize MainForm::LeastSize() const {
    const QSize frame = fraBeta->size().expandedTo(fraCalcOptions->size());
    const QPoint margin = fraCalcOptions->pos();
    const int line = QFontMetrics(canvas_.font()).lineSpacing();
    return {frame.width() + 2 * margin.x(),
            frame.height() + 2 * margin.y() + FooterHeight() + line};
}

void MainForm::PlaceFooter() {
    const auto x = static_cast<int>(std::lround(kFooterMargin * pixelsPerTwipX_));
    const auto top = static_cast<int>(std::lround(kFooterTop * pixelsPerTwipY_));
    const auto bottom = static_cast<int>(std::lround(kFooterBottom * pixelsPerTwipY_));
    footer_.layout()->setContentsMargins(x, top, x, bottom);
    lblMsg->setMinimumHeight(FooterHeight() - top - bottom);
}

void MainForm::PlaceByText() {
    const QFontMetrics metrics(canvas_.font());
    const QRect first = lbl1PlateThicknessWarning->geometry();
    const int end = metrics.horizontalAdvance(lbl1PlateThicknessWarning->text() + QLatin1Char(' '));
    lbl1PlateThicknessWarning->resize(end, first.height());
    lbl2PlateThicknessWarning->move(first.left() + end, first.top());
    lblCompCorr->setContentsMargins(0, 0, 0, (optCompDensity->height() - metrics.height()) / 2);
}

// The scale at which the tightest of all texts fits its control.
double MainForm::PixelsPerTwipX() const {
    const QFontMetricsF metrics(canvas_.font());
    double scale = 0;
    for (const auto& [line, width] : kCompCorrLines) {
        scale = std::max(scale, (metrics.horizontalAdvance(QLatin1String(line)) + 2) / width);
    }
    for (const NamedControl& control : controls_) {
        const bool showsText =
            control.kind == ControlKind::Label || control.kind == ControlKind::Option ||
            control.kind == ControlKind::Button || control.kind == ControlKind::ComboBox;
        if (showsText && control.place.width > 0 && control.widget != lblCompCorr) {
            // A label needs no more than its text, which is quicker to measure than to lay out.
            const auto* label = qobject_cast<const QLabel*>(control.widget);
            const double needed =
                1 + (label != nullptr ? std::ceil(metrics.horizontalAdvance(label->text()))
                                      : control.widget->sizeHint().width());
            scale = std::max(scale, needed / control.place.width);
        }
    }
    return scale;
}

double MainForm::PixelsPerTwipY() const {
    const QFontMetricsF metrics(canvas_.font());
    const double row = metrics.lineSpacing() + kTextBoxFrame;
    const double caption = FrameBox::CaptionHeight(canvas_.font()) + 1;  // and the border's line
    const double tab = tabOrifice->tabBar()->sizeHint().height();
    return std::max({row / kRowHeight, caption / kCaptionHeight, tab / kTabHeight});
}

void MainForm::Place(const NamedControl& control) const {
    const auto x = [this](int twips) {
        return static_cast<int>(std::lround(twips * pixelsPerTwipX_));
    };
    const auto y = [this](int twips) {
        return static_cast<int>(std::lround(twips * pixelsPerTwipY_));
    };
    // Both edges are rounded, not the size, so that controls that touch in twips touch in pixels.
    // What lies in a box is rounded with the box, so that its rows are those beside it.
    TwipsRect place = control.place;
    // A label is not cut off narrower than the field below it.
    if (control.widget == lblCompCorr) {
        place.width = std::max(place.width, Of(*txtZf).place.width);
    }
    QPoint origin;
    const QWidget* around = control.widget->parentWidget();
    if (around != &canvas_ && around != tabOrifice &&
        dynamic_cast<const FrameBox*>(around) == nullptr) {
        const TwipsRect& box = Of(*around).place;
        place.left += box.left;
        place.top += box.top;
        origin = QPoint(x(box.left), y(box.top));
    }
    const QPoint topLeft(x(place.left), y(place.top));
    const QPoint bottomRight(x(place.left + place.width), y(place.top + place.height));
    control.widget->setGeometry(QRect(
        topLeft - origin, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y())));
}

bool MainForm::IsVisible(const QWidget& widget) const {
    return widget.isVisibleTo(canvas_.window());
}

bool MainForm::IsEnabled(const QWidget& widget) const {
    return widget.isEnabledTo(canvas_.window());
}

const QWidget* MainForm::ActiveControl() const {
    return canvas_.window()->focusWidget();
}

void MainForm::Register(QWidget* widget, const char* name, ControlKind kind, TwipsRect place) {
    widget->setObjectName(QLatin1String(name));
    controls_.push_back({QLatin1String(name), kind, widget, nullptr, place});
}

QWidget* MainForm::AddFrame(QWidget* parent, const char* name, const char* caption,
                            TwipsRect place) {
    auto* frame = new FrameBox(parent);
    SetAccessibleRole(*frame, QAccessible::Grouping);
    frame->setTitle(QString::fromUtf8(caption));
    Register(frame, name, ControlKind::Frame, place);
    return frame;
}

QWidget* MainForm::AddBox(QWidget* parent, const char* name, QAccessible::Role role,
                          TwipsRect place) {
    auto* box = new QFrame(parent);
    SetAccessibleRole(*box, role);
    Register(box, name, ControlKind::Frame, place);
    return box;
}

OptionButton* MainForm::AddOption(QWidget* parent, const char* name, const char* caption,
                                  TwipsRect place) {
    auto* option = new OptionButton(parent);
    SetAccessibleRole(*option, QAccessible::RadioButton);
    option->setText(QString::fromUtf8(caption));
    Register(option, name, ControlKind::Option, place);
    return option;
}

QLabel* MainForm::AddLabel(QWidget* parent, const char* name, const char* caption,
                           TwipsRect place) {
    auto* label = new QLabel(QString::fromUtf8(caption), parent);
    label->setTextFormat(Qt::PlainText);
    Register(label, name, ControlKind::Label, place);
    return label;
}

NumericField* MainForm::AddField(QWidget* parent, const char* name, TwipsRect place) {
    auto* field = new NumericField(parent);
    SetAccessibleRole(*field, QAccessible::EditableText);
    Register(field, name, ControlKind::TextBox, place);
    return field;
}

QLineEdit* MainForm::AddBackdrop(QWidget* parent, const char* name, TwipsRect place) {
    auto* backdrop = new QLineEdit(parent);
    HideFromHelpers(*backdrop);
    backdrop->setReadOnly(true);
    backdrop->setFocusPolicy(Qt::NoFocus);
    backdrop->setAttribute(Qt::WA_TransparentForMouseEvents);
    Register(backdrop, name, ControlKind::TextBox, place);
    return backdrop;
}

DropDownList* MainForm::AddList(QWidget* parent, const char* name, TwipsRect place) {
    auto* list = new DropDownList(parent);
    SetAccessibleRole(*list, QAccessible::ComboBox);
    Register(list, name, ControlKind::ComboBox, place);
    return list;
}

QPushButton* MainForm::AddButton(QWidget* parent, const char* name, const char* caption,
                                 TwipsRect place) {
    auto* button = new QPushButton(QString::fromUtf8(caption), parent);
    Register(button, name, ControlKind::Button, place);
    return button;
}

QAction* MainForm::AddMenuItem(QWidget* menu, const char* name, const char* caption) {
    auto* action = new QAction(QString::fromUtf8(caption), menu);
    action->setObjectName(QLatin1String(name));
    menu->addAction(action);
    controls_.push_back({QLatin1String(name), ControlKind::MenuItem, nullptr, action, {}});
    return action;
}

}  // namespace tarvix
