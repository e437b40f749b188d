// The controls of the main window: captions and places. Twips, relative to the frame around them.
#include "ui/controls/tab_control.h"
#include "ui/form/main_form.h"
#include "ui/form/places.h"
#include "ui/form/unit_lists.h"
#include "units/flow_units.h"
#include "units/pipe_id_texts.h"
#include "units/unit_tables.h"

#include <QVBoxLayout>

namespace tarvix {

namespace {

// Frames keep a caption's height and a little more above their first row. A second row follows 315
// below the first; the frames on the tab follow each other by 960.
constexpr int kRow = 270;
constexpr int kRow1 = 255;
constexpr int kRow2 = 570;
constexpr int kOneRowFrame = 600;
constexpr int kTwoRowFrame = 915;

// Options that stand close together, one below the other.
constexpr int kOption1 = 255;
constexpr int kOption2 = 540;
constexpr int kOption3 = 825;

// The columns of all frames: fields and options begin at A, units and what belongs to an option at
// B, choices beside a unit at C, the fields of the liquid's and steam's properties at D, and what
// stands beside them at E.
constexpr int kColumnA = 120;
constexpr int kColumnB = 1710;
constexpr int kColumnC = 3540;
constexpr int kColumnD = 5130;
constexpr int kColumnE = 6720;
constexpr int kField = 1500;

// From the left edge of a warning's box to its text.
constexpr int kWarningInset = 180;

}  // namespace

void MainForm::BuildModeAndFluid() {
    constexpr int kTop = 45;
    constexpr int kFrameHeight = 1260;
    constexpr int kBackdropTop = 255;
    constexpr int kBackdropHeight = 930;
    constexpr int kOptionLeft = 135;

    fraCalcOptions =
        AddFrame(&canvas_, "fraCalcOptions", "Options", {120, kTop, 3600, kFrameHeight});
    txtOptionsFrame =
        AddBackdrop(fraCalcOptions, "txtOptionsFrame", {90, kBackdropTop, 3420, kBackdropHeight});
    optCalcBeta = AddOption(fraCalcOptions, "optCalcBeta", "Calculate  Beta Ratio",
                            {kOptionLeft, 300, 3330, kRow});
    optCalcDP = AddOption(fraCalcOptions, "optCalcDP", "Calculate Differential Pressure",
                          {kOptionLeft, 585, 3330, kRow});
    optCalcFR = AddOption(fraCalcOptions, "optCalcFR", "Calculate  Flow Rate",
                          {kOptionLeft, 870, 3330, kRow});

    fraFlowType = AddFrame(&canvas_, "fraFlowType", "Flow Type", {3840, kTop, 2400, kFrameHeight});
    txtFlowTypeFrame =
        AddBackdrop(fraFlowType, "txtFlowTypeFrame", {90, kBackdropTop, 2220, kBackdropHeight});
    optLiquid = AddOption(fraFlowType, "optLiquid", "Liquid", {kOptionLeft, 300, 2130, kRow});
    optGas = AddOption(fraFlowType, "optGas", "Air - Gas", {kOptionLeft, 585, 2130, kRow});
    optSteam = AddOption(fraFlowType, "optSteam", "Steam", {kOptionLeft, 870, 2130, kRow});
    for (OptionButton* option : {optCalcBeta, optCalcDP, optCalcFR, optLiquid, optGas, optSteam}) {
        option->ShowAsBar();
    }

    // The logo stands on white, so it gets a white card in dark desktop themes, too.
    imgBrindleLogo = new QLabel(&canvas_);
    imgBrindleLogo->setAlignment(Qt::AlignCenter);
    imgBrindleLogo->setFrameShape(QFrame::StyledPanel);
    QPalette card;
    card.setColor(QPalette::Window, Qt::white);
    imgBrindleLogo->setPalette(card);
    imgBrindleLogo->setAutoFillBackground(true);
    Register(imgBrindleLogo, "imgBrindleLogo", ControlKind::Picture, {6360, 105, 3120, 765});
}

void MainForm::BuildFluidProperties() {
    tabOrifice = new TabControl(&canvas_);
    tabOrifice->addTab(new QWidget, QStringLiteral("&Measurement Orifice"));
    Register(tabOrifice, "tabOrifice", ControlKind::Tab, {120, 1350, 9360, 3540});
    // The frames lie on the tab control itself, below its tab: their places count from its corner.
    BuildSpecificGravity(tabOrifice);
    BuildDensity(tabOrifice);
    BuildTemperatureAndPressure(tabOrifice);
    BuildCompressibility(tabOrifice);
}

void MainForm::BuildSpecificGravity(QWidget* tab) {
    constexpr int kLabelLeft = 4290;
    constexpr int kLabelWidth = 780;
    fraSG = AddFrame(tab, "fraSG", "Specific Gravity", {kTabLeft, kSlot1, kTabWidth, kTwoRowFrame});
    optSgCalc =
        AddOption(fraSG, "optSgCalc", "Calculated (from density)", {kColumnA, kRow1, 3300, kRow});
    optSgUser = AddOption(fraSG, "optSgUser", "User Entered", {kColumnA, kRow2, 3300, kRow});
    // Flowing first: there the focus goes when the fluid is chosen, and from there on to Base.
    lblSGf1 = AddLabel(fraSG, "lblSGf1", "Flowing", {kLabelLeft, kRow1, kLabelWidth, kRow});
    txtSGf = AddField(fraSG, "txtSGf", {kColumnD, kRow1, kField, kRow});
    lblSGf2 = AddLabel(fraSG, "lblSGf2", "(water = 1)", {kColumnE, kRow1, 1500, kRow});
    lblSGb1 = AddLabel(fraSG, "lblSGb1", "Base", {kLabelLeft, kRow2, kLabelWidth, kRow});
    txtSGb = AddField(fraSG, "txtSGb", {kColumnD, kRow2, kField, kRow});
    lblSGb2 = AddLabel(fraSG, "lblSGb2", "(water = 1)", {kColumnE, kRow2, 1500, kRow});
}

void MainForm::BuildDensity(QWidget* tab) {
    // The two boxes around the options have no border; their rows are those of the frame.
    constexpr int kBoxHeight = kRow2 - kRow1 + kRow;
    constexpr int kBoxRow2 = kRow2 - kRow1;
    fraDensity =
        AddFrame(tab, "fraDensity", "Density", {kTabLeft, kSlot2, kTabWidth, kTwoRowFrame});
    fraSteam1 =
        AddBox(fraDensity, "fraSteam1", QAccessible::Grouping, {kColumnA, kRow1, 1560, kBoxHeight});
    optSuperheated = AddOption(fraSteam1, "optSuperheated", "Superheated", {0, 0, 1560, kRow});
    optSaturated = AddOption(fraSteam1, "optSaturated", "Saturated", {0, kBoxRow2, 1560, kRow});
    fraSteam2 =
        AddBox(fraDensity, "fraSteam2", QAccessible::Grouping, {kColumnB, kRow1, 3330, kBoxHeight});
    optSteamTbl = AddOption(fraSteam2, "optSteamTbl", "From ASME Table", {0, 0, 1800, kRow});
    lblSteamTbl = AddLabel(fraSteam2, "lblSteamTbl", "(Op.Press. based)", {1860, 0, 1470, kRow});
    optSteamUser = AddOption(fraSteam2, "optSteamUser", "User Entered", {0, kBoxRow2, 1800, kRow});
    lblDensity =
        AddLabel(fraDensity, "lblDensity", "Operating Density", {kColumnD, kRow1, 2400, kRow});
    txtDensity = AddField(fraDensity, "txtDensity", {kColumnD, kRow2, kField, kRow});
    cboDensityUnit = AddList(fraDensity, "cboDensityUnit", {kColumnE, kRow2, 1740, kRow});
    AskRoomForUnits(*cboDensityUnit, kDensityUnits);
}

void MainForm::BuildTemperatureAndPressure(QWidget* tab) {
    fraTemp =
        AddFrame(tab, "fraTemp", "Temperature", {kTabLeft, kSlot1, kPressWidthGas, kTwoRowFrame});
    lblTf = AddLabel(fraTemp, "lblTf", "Operating Temperature", {kColumnA, kRow1, 2400, kRow});
    txtTf = AddField(fraTemp, "txtTf", {kColumnA, kRow2, kField, kRow});
    optDegF = AddOption(fraTemp, "optDegF", "Deg F", {kColumnB, kRow2, 840, kRow});
    optDegC = AddOption(fraTemp, "optDegC", "Deg C", {2610, kRow2, 840, kRow});

    fraPress = AddFrame(tab, "fraPress", "Pressure", {kTabLeft, kSlot2, kTabWidth, kTwoRowFrame});
    lblPf = AddLabel(fraPress, "lblPf", "Operating Pressure", {kColumnA, kRow1, 2400, kRow});
    txtPf = AddField(fraPress, "txtPf", {kColumnA, kRow2, kField, kRow});
    cboPressUnit = AddList(fraPress, "cboPressUnit", {kColumnB, kRow2, 1740, kRow});
    AskRoomForUnits(*cboPressUnit, kPressUnits);
    optPgauge = AddOption(fraPress, "optPgauge", "Gauge", {kColumnC + 90, kRow2, 900, kRow});
    optPabsolute = AddOption(fraPress, "optPabsolute", "Absolute", {4650, kRow2, 1080, kRow});

    // The right column, beside the two frames of the operating conditions.
    fraGasSG = AddFrame(tab, "fraGasSG", "Specific Gravity",
                        {6840, kSlot1, 2340, kSlot2 - kSlot1 + kTwoRowFrame});
    lblGasSGb = AddLabel(fraGasSG, "lblGasSGb", "Base", {kColumnA, kRow1, kField, kRow});
    txtGasSGb = AddField(fraGasSG, "txtGasSGb", {kColumnA, kRow2, kField, kRow});
}

void MainForm::BuildCompressibility(QWidget* tab) {
    fraCompCorrection = AddFrame(tab, "fraCompCorrection", "Compressibility Correction",
                                 {kTabLeft, kSlot3, kTabWidth, 1170});
    optCompCorrNone =
        AddOption(fraCompCorrection, "optCompCorrNone", "None", {kColumnA, kOption1, 1260, kRow});
    optCompDensity =
        AddOption(fraCompCorrection, "optCompDensity", "Density", {kColumnA, kOption2, 1260, kRow});
    optCompZf = AddOption(fraCompCorrection, "optCompZf", "Zf", {kColumnA, kOption3, 1260, kRow});
    // On one line or two, the last one in the row above the field.
    lblCompCorr = AddLabel(fraCompCorrection, "lblCompCorr", "Operating Density",
                           {kColumnB, kOption1, kCompCorrWidthDensity, kOption2 + kRow - kOption1});
    lblCompCorr->setWordWrap(true);
    lblCompCorr->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    txtZf = AddField(fraCompCorrection, "txtZf", {kColumnB, kOption3, kField, kRow});
    cboZfDensityUnit = AddList(fraCompCorrection, "cboZfDensityUnit", {3300, kOption3, 1740, kRow});
    AskRoomForUnits(*cboZfDensityUnit, kDensityUnits);
    fraZfCompWarning = AddBox(fraCompCorrection, "fraZfCompWarning", QAccessible::AlertMessage,
                              {kColumnB, kOption1, 7185, 840});
    lbl1ZfCompWarning = AddLabel(fraZfCompWarning, "lbl1ZfCompWarning",
                                 "At this pressure, no compressibility correction",
                                 {kWarningInset, 135, 4800, kRow});
    lbl2ZfCompWarning =
        AddLabel(fraZfCompWarning, "lbl2ZfCompWarning", "may result in erroneous computations.",
                 {kWarningInset, 435, 4800, kRow});
}

void MainForm::BuildPipeAndFlow() {
    constexpr TwipsRect kNominalSizePlace{1230, kRow1, 1110, kRow};
    fraPipe = AddFrame(&canvas_, "fraPipe", "Pipe", {120, 4935, 9360, kOneRowFrame});
    lblNomSize = AddLabel(fraPipe, "lblNomSize", "Nominal Size", {kColumnA, kRow1, 1050, kRow});
    cboNomSize = AddList(fraPipe, "cboNomSize", kNominalSizePlace);
    cboNomSize->AskRoomFor(LongestNominalSizeText());
    // Where a decimal comma makes a size end the program, passing over one must not pick it.
    cboNomSize->SetOpensToPick();
    // Lies over the nominal size while the pipe is the user's own.
    txtMaskNomSize = new CoverField(fraPipe);
    Register(txtMaskNomSize, "txtMaskNomSize", ControlKind::TextBox, kNominalSizePlace);
    lblPipeID = AddLabel(fraPipe, "lblPipeID", "Pipe ID", {2580, kRow1, 600, kRow});
    cboPipeID = AddList(fraPipe, "cboPipeID", {3240, kRow1, 4170, kRow});
    cboPipeID->AskRoomFor(LongestScheduleText());
    cboPipeIDUnit = AddList(fraPipe, "cboPipeIDUnit", {7500, kRow1, 1740, kRow});
    AskRoomForUnits(*cboPipeIDUnit, kLengthUnits);

    constexpr int kTop = 5580;
    fraFlowrate = AddFrame(&canvas_, "fraFlowrate", "Flow Rate", {120, kTop, 4230, kTwoRowFrame});
    txtFlow = AddField(fraFlowrate, "txtFlow", {kColumnA, kRow1, kField, kRow});
    cboFlowUnit = AddList(fraFlowrate, "cboFlowUnit", {kColumnB, kRow1, 2400, kRow});
    for (const Fluid fluid : kFluids) {
        AskRoomForUnits(*cboFlowUnit, FlowUnitsOf(fluid).units);
    }
    lblPer = AddLabel(fraFlowrate, "lblPer", "Per", {kColumnB, kRow2, 420, kRow});
    cboTimeUnit = AddList(fraFlowrate, "cboTimeUnit", {2190, kRow2, 1920, kRow});
    AskRoomForUnits(*cboTimeUnit, kTimeUnits);

    fraDeltaP =
        AddFrame(&canvas_, "fraDeltaP", "Differential Pressure", {4470, kTop, 5010, kTwoRowFrame});
    txtDeltaP = AddField(fraDeltaP, "txtDeltaP", {kColumnA, kRow1, kField, kRow});
    cboDeltaPunit = AddList(fraDeltaP, "cboDeltaPunit", {kColumnB, kRow1, 2400, kRow});
    AskRoomForUnits(*cboDeltaPunit, kDeltaPUnits);
    fraPlateThicknessWarning = AddBox(fraDeltaP, "fraPlateThicknessWarning",
                                      QAccessible::AlertMessage, {kColumnA, kRow2, 4770, kRow});
    lbl1PlateThicknessWarning =
        AddLabel(fraPlateThicknessWarning, "lbl1PlateThicknessWarning", "Orifice plate deflection",
                 {kWarningInset, 0, 1830, kRow});
    lbl2PlateThicknessWarning = AddLabel(fraPlateThicknessWarning, "lbl2PlateThicknessWarning",
                                         "should be checked.", {2070, 0, 2520, kRow});
}

void MainForm::BuildBore() {
    constexpr int kTop = 6540;
    fraOriBoreDiameter = AddFrame(&canvas_, "fraOriBoreDiameter", "Orifice Bore Diameter",
                                  {120, kTop, 4230, kOneRowFrame});
    txtOriBoreDia = AddField(fraOriBoreDiameter, "txtOriBoreDia", {kColumnA, kRow1, kField, kRow});
    cboOriBoreUnit = AddList(fraOriBoreDiameter, "cboOriBoreUnit", {kColumnB, kRow1, 2400, kRow});
    AskRoomForUnits(*cboOriBoreUnit, kLengthUnits);

    fraBeta = AddFrame(&canvas_, "fraBeta", "Beta Ratio", {4470, kTop, 5010, kOneRowFrame});
    txtBeta = AddField(fraBeta, "txtBeta", {kColumnA, kRow1, kField, kRow});
    lblBeta = AddLabel(fraBeta, "lblBeta", "Beta = (Orifice Diameter) / (Pipe Diamter)",
                       {kColumnB, kRow1, 3240, kRow});
}

void MainForm::BuildMessageAndButtons() {
    // At the end of the footer, as wide as the window.
    lblMsg = new MessageLine(&footer_, announcements);
    auto* footer = new QVBoxLayout(&footer_);
    footer->setSpacing(2);
    footer->addWidget(lblMsg, 1);
    Register(lblMsg, "lblMsg", ControlKind::Label, {});
    // Beside the modes, but last on the keyboard's way through the window.
    cmdPrint = AddButton(&canvas_, "cmdPrint", "Print", {6360, 960, 1500, 345});
    cmdExit = AddButton(&canvas_, "cmdExit", "Exit", {7980, 960, 1500, 345});
    // Enter presses the button that has the focus, as in a dialog.
    cmdPrint->setAutoDefault(true);
    cmdExit->setAutoDefault(true);
}

void MainForm::BuildMenus(QMenuBar& menuBar) {
    mnuFile = menuBar.addMenu(QStringLiteral("&File"));
    mnuFile->menuAction()->setObjectName(QStringLiteral("mnuFile"));
    controls_.push_back(
        {QStringLiteral("mnuFile"), ControlKind::MenuItem, nullptr, mnuFile->menuAction(), {}});
    mnuPrint = AddMenuItem(mnuFile, "mnuPrint", "&Print");
    mnuPrint->setShortcut(QKeySequence::Print);
    mnuExit = AddMenuItem(mnuFile, "mnuExit", "E&xit");
    mnuExit->setShortcut(Qt::CTRL | Qt::Key_Q);
    mnuAbout = AddMenuItem(&menuBar, "mnuAbout", "&About");
    mnuAbout->setShortcut(QKeySequence::HelpContents);
}

}  // namespace tarvix
