#include "ui/main_form.h"

#include "ui/frame_box.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tarvix {

namespace {

// The size of the form.
constexpr int kFormWidth = 9600;
constexpr int kFormHeight = 8540;

// The narrowest label, "Operating Density" on two lines, sets the horizontal scale; the height of a
// text box the vertical one.
constexpr int kOperatingWidth = 735;
constexpr int kTextBoxHeight = 315;
constexpr int kTextBoxFrame = 8;  // pixels around the text

}  // namespace

MainForm::MainForm(QWidget& canvas, QMenuBar& menuBar) : canvas_(canvas) {
    controls_.reserve(100);
    BuildModeAndFluid();
    BuildFluidProperties();
    BuildPipeAndFlow();
    BuildBore();
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

void MainForm::SetTop(QWidget& widget, int top) {
    NamedControl& control = Entry(widget);
    control.place.top = top;
    Place(control);
}

void MainForm::SetWidth(QWidget& widget, int width) {
    NamedControl& control = Entry(widget);
    control.place.width = width;
    Place(control);
}

void MainForm::PlaceControls() {
    const QFontMetricsF metrics(canvas_.font());
    pixelsPerTwipX_ =
        (metrics.horizontalAdvance(QStringLiteral("Operating")) + 2) / kOperatingWidth;
    pixelsPerTwipY_ = (metrics.lineSpacing() + kTextBoxFrame) / kTextBoxHeight;
    canvas_.setFixedSize(static_cast<int>(std::ceil(kFormWidth * pixelsPerTwipX_)),
                         static_cast<int>(std::ceil(kFormHeight * pixelsPerTwipY_)));
    for (const NamedControl& control : controls_) {
        if (control.widget != nullptr && control.place.width > 0) {
            Place(control);
        }
    }
}

void MainForm::Place(const NamedControl& control) const {
    // Both edges are rounded, not the size, so that controls that touch in twips touch in pixels.
    const auto x = [this](int twips) {
        return static_cast<int>(std::lround(twips * pixelsPerTwipX_));
    };
    const auto y = [this](int twips) {
        return static_cast<int>(std::lround(twips * pixelsPerTwipY_));
    };
    const TwipsRect& place = control.place;
    const QPoint topLeft(x(place.left), y(place.top));
    const QPoint bottomRight(x(place.left + place.width), y(place.top + place.height));
    control.widget->setGeometry(
        QRect(topLeft, QSize(bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y())));
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
    auto* frame = new FrameBox(QString::fromUtf8(caption), parent);
    Register(frame, name, ControlKind::Frame, place);
    return frame;
}

QWidget* MainForm::AddBox(QWidget* parent, const char* name, TwipsRect place) {
    auto* box = new QFrame(parent);
    Register(box, name, ControlKind::Frame, place);
    return box;
}

OptionButton* MainForm::AddOption(QWidget* parent, const char* name, const char* caption,
                                  TwipsRect place) {
    auto* option = new OptionButton(QString::fromUtf8(caption), parent);
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
    Register(field, name, ControlKind::TextBox, place);
    return field;
}

QLineEdit* MainForm::AddBackdrop(QWidget* parent, const char* name, TwipsRect place) {
    auto* backdrop = new QLineEdit(parent);
    backdrop->setReadOnly(true);
    backdrop->setFocusPolicy(Qt::NoFocus);
    backdrop->setAttribute(Qt::WA_TransparentForMouseEvents);
    Register(backdrop, name, ControlKind::TextBox, place);
    return backdrop;
}

DropDownList* MainForm::AddList(QWidget* parent, const char* name, TwipsRect place) {
    auto* list = new DropDownList(parent);
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
