// The main window's form: its controls, each under the product's name, and their places.
//
// Places are kept in twips, the unit in which the calculator moves and sizes two of its frames, and
// scaled to pixels as the font and the style ask for, so that every text fits its control. The
// controls are created frame by frame in the order in which the Tab key visits them.
#pragma once

#include "ui/controls/accessible_roles.h"
#include "ui/controls/announcements.h"
#include "ui/controls/controls.h"
#include "ui/controls/message_line.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>

#include <vector>

namespace tarvix {

enum class ControlKind { TextBox, ComboBox, Option, Frame, Label, Button, MenuItem, Picture, Tab };

// Left, top, width and height in twips, relative to the frame (or tab control) around the control.
struct TwipsRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// One control by its name. Menu items have an action, all others a widget.
struct NamedControl {
    QString name;
    ControlKind kind = ControlKind::Label;
    QWidget* widget = nullptr;
    QAction* action = nullptr;
    TwipsRect place;
};

class MainForm {
  public:
    // Builds the controls on `canvas`, the message line in `footer`, which stands below it, and the
    // menus in `menuBar`.
    MainForm(QWidget& canvas, QWidget& footer, QMenuBar& menuBar);

    // Calculation mode and fluid.
    QWidget* fraCalcOptions = nullptr;
    QLineEdit* txtOptionsFrame = nullptr;
    OptionButton* optCalcBeta = nullptr;
    OptionButton* optCalcDP = nullptr;
    OptionButton* optCalcFR = nullptr;
    QWidget* fraFlowType = nullptr;
    QLineEdit* txtFlowTypeFrame = nullptr;
    OptionButton* optLiquid = nullptr;
    OptionButton* optGas = nullptr;
    OptionButton* optSteam = nullptr;
    QLabel* imgBrindleLogo = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdExit = nullptr;

    // Fluid properties, on the tab.
    QTabWidget* tabOrifice = nullptr;
    QWidget* fraSG = nullptr;
    OptionButton* optSgCalc = nullptr;
    OptionButton* optSgUser = nullptr;
    QLabel* lblSGb1 = nullptr;
    QLabel* lblSGb2 = nullptr;
    NumericField* txtSGb = nullptr;
    QLabel* lblSGf1 = nullptr;
    QLabel* lblSGf2 = nullptr;
    NumericField* txtSGf = nullptr;
    QWidget* fraDensity = nullptr;
    QWidget* fraSteam1 = nullptr;
    OptionButton* optSuperheated = nullptr;
    OptionButton* optSaturated = nullptr;
    QWidget* fraSteam2 = nullptr;
    OptionButton* optSteamTbl = nullptr;
    QLabel* lblSteamTbl = nullptr;
    OptionButton* optSteamUser = nullptr;
    QLabel* lblDensity = nullptr;
    NumericField* txtDensity = nullptr;
    DropDownList* cboDensityUnit = nullptr;
    QWidget* fraTemp = nullptr;
    QLabel* lblTf = nullptr;
    NumericField* txtTf = nullptr;
    OptionButton* optDegF = nullptr;
    OptionButton* optDegC = nullptr;
    QWidget* fraPress = nullptr;
    QLabel* lblPf = nullptr;
    NumericField* txtPf = nullptr;
    DropDownList* cboPressUnit = nullptr;
    OptionButton* optPgauge = nullptr;
    OptionButton* optPabsolute = nullptr;
    QWidget* fraGasSG = nullptr;
    QLabel* lblGasSGb = nullptr;
    NumericField* txtGasSGb = nullptr;
    QWidget* fraCompCorrection = nullptr;
    OptionButton* optCompCorrNone = nullptr;
    OptionButton* optCompDensity = nullptr;
    OptionButton* optCompZf = nullptr;
    QLabel* lblCompCorr = nullptr;
    NumericField* txtZf = nullptr;
    DropDownList* cboZfDensityUnit = nullptr;
    QWidget* fraZfCompWarning = nullptr;
    QLabel* lbl1ZfCompWarning = nullptr;
    QLabel* lbl2ZfCompWarning = nullptr;

    // Pipe, flow, differential pressure, bore.
    QWidget* fraPipe = nullptr;
    QLabel* lblNomSize = nullptr;
    DropDownList* cboNomSize = nullptr;
    QLineEdit* txtMaskNomSize = nullptr;
    QLabel* lblPipeID = nullptr;
    DropDownList* cboPipeID = nullptr;
    DropDownList* cboPipeIDUnit = nullptr;
    QWidget* fraFlowrate = nullptr;
    NumericField* txtFlow = nullptr;
    DropDownList* cboFlowUnit = nullptr;
    QLabel* lblPer = nullptr;
    DropDownList* cboTimeUnit = nullptr;
    QWidget* fraDeltaP = nullptr;
    NumericField* txtDeltaP = nullptr;
    DropDownList* cboDeltaPunit = nullptr;
    QWidget* fraPlateThicknessWarning = nullptr;
    QLabel* lbl1PlateThicknessWarning = nullptr;
    QLabel* lbl2PlateThicknessWarning = nullptr;
    QWidget* fraOriBoreDiameter = nullptr;
    NumericField* txtOriBoreDia = nullptr;
    DropDownList* cboOriBoreUnit = nullptr;
    QWidget* fraBeta = nullptr;
    NumericField* txtBeta = nullptr;
    QLabel* lblBeta = nullptr;
    MessageLine* lblMsg = nullptr;

    QMenu* mnuFile = nullptr;
    QAction* mnuPrint = nullptr;
    QAction* mnuExit = nullptr;
    QAction* mnuAbout = nullptr;

    // What the window says by a screen reader beside what has the focus.
    Announcements announcements;

    // Every control, in the order of creation.
    const std::vector<NamedControl>& Controls() const { return controls_; }

    // The control with this name; null when there is none.
    const NamedControl* Find(const QString& name) const;
    const NamedControl& Of(const QWidget& widget) const;

    // The eleven fields for numbers.
    std::vector<NumericField*> NumericFields() const;

    // The field of the quantity that the mode solves for; null while no mode is selected.
    const NumericField* SolvedField() const;

    // Moves or sizes a control; twips.
    void SetTop(const QWidget& widget, int top);
    void SetWidth(const QWidget& widget, int width);

    // Places every control for the font of the canvas, and gives the canvas and the footer the
    // sizes that they need.
    void PlaceControls();

    // Pixels that the form takes when it is seen whole, the footer included.
    QSize WholeSize() const;

    // Pixels of the least part of it that can be worked in: one frame, and the footer
    // with the line of the solved value.
    QSize LeastSize() const;

    // As the user sees it: the control's own state and that of every frame around it. Before the
    // window is shown, it is taken as if it were.
    bool IsVisible(const QWidget& widget) const;
    bool IsEnabled(const QWidget& widget) const;

    // The control that has the focus, also while a message box or another window is in front.
    const QWidget* ActiveControl() const;

    QWidget& canvas() const { return canvas_; }

  private:
    void BuildModeAndFluid();
    void BuildFluidProperties();
    void BuildSpecificGravity(QWidget* tab);
    void BuildDensity(QWidget* tab);
    void BuildTemperatureAndPressure(QWidget* tab);
    void BuildCompressibility(QWidget* tab);
    void BuildPipeAndFlow();
    void BuildBore();
    void BuildMessageAndButtons();
    void BuildMenus(QMenuBar& menuBar);

    // Each adds a control of its kind below `parent` with its caption and place.
    QWidget* AddFrame(QWidget* parent, const char* name, const char* caption, TwipsRect place);
    QWidget* AddBox(QWidget* parent, const char* name, QAccessible::Role role, TwipsRect place);
    OptionButton* AddOption(QWidget* parent, const char* name, const char* caption,
                            TwipsRect place);
    QLabel* AddLabel(QWidget* parent, const char* name, const char* caption, TwipsRect place);
    NumericField* AddField(QWidget* parent, const char* name, TwipsRect place);
    QLineEdit* AddBackdrop(QWidget* parent, const char* name, TwipsRect place);
    DropDownList* AddList(QWidget* parent, const char* name, TwipsRect place);
    QPushButton* AddButton(QWidget* parent, const char* name, const char* caption, TwipsRect place);
    QAction* AddMenuItem(QWidget* menu, const char* name, const char* caption);
    void Register(QWidget* widget, const char* name, ControlKind kind, TwipsRect place);

    double PixelsPerTwipX() const;
    double PixelsPerTwipY() const;
    NamedControl& Entry(const QWidget& widget);
    void Place(const NamedControl& control) const;
    void PlaceFooter();
    QSize CanvasSize() const;
    int FooterHeight() const;
    // Lets the labels of the plate warning read as one line of text, and the last line of that of
    // the compressibility field stand in a row with the option beside it.
    void PlaceByText();

    QWidget& canvas_;
    QWidget& footer_;
    std::vector<NamedControl> controls_;
    double pixelsPerTwipX_ = 0;
    double pixelsPerTwipY_ = 0;
};

}  // namespace tarvix
