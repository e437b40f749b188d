// The controls of the main window: captions and places. Twips, relative to the frame around them.
#include "ui/main_form.h"

namespace tarvix {

namespace {

// A row of text boxes is 315 high, one of options or labels 270; frames start their rows below the
// caption and keep 120 to their edges.
constexpr int kLeft = 120;
constexpr int kRow1 = 270;
constexpr int kRow2 = 630;
constexpr int kText = 315;
constexpr int kOption = 300;

}  // namespace

void MainForm::BuildModeAndFluid() {
    fraCalcOptions = AddFrame(&canvas_, "fraCalcOptions", "Options", {kLeft, 60, 3900, 1395});
    txtOptionsFrame = AddBackdrop(fraCalcOptions, "txtOptionsFrame", {90, 255, 3720, 1065});
    optCalcBeta = AddOption(fraCalcOptions, "optCalcBeta", "Calculate  Beta Ratio",
                            {150, 315, 3600, kOption});
    optCalcDP = AddOption(fraCalcOptions, "optCalcDP", "Calculate Differential Pressure",
                          {150, 635, 3600, kOption});
    optCalcFR =
        AddOption(fraCalcOptions, "optCalcFR", "Calculate  Flow Rate", {150, 955, 3600, kOption});

    fraFlowType = AddFrame(&canvas_, "fraFlowType", "Flow Type", {4140, 60, 2100, 1395});
    txtFlowTypeFrame = AddBackdrop(fraFlowType, "txtFlowTypeFrame", {90, 255, 1920, 1065});
    optLiquid = AddOption(fraFlowType, "optLiquid", "Liquid", {150, 315, 1800, kOption});
    optGas = AddOption(fraFlowType, "optGas", "Air - Gas", {150, 635, 1800, kOption});
    optSteam = AddOption(fraFlowType, "optSteam", "Steam", {150, 955, 1800, kOption});

    imgBrindleLogo = new QLabel(&canvas_);
    imgBrindleLogo->setAlignment(Qt::AlignCenter);
    Register(imgBrindleLogo, "imgBrindleLogo", ControlKind::Picture, {6420, 120, 3060, 840});
    cmdPrint = AddButton(&canvas_, "cmdPrint", "Print", {6420, 1065, 1470, 390});
    cmdExit = AddButton(&canvas_, "cmdExit", "Exit", {8010, 1065, 1470, 390});
}

void MainForm::BuildFluidProperties() {
    tabOrifice = new QTabWidget(&canvas_);
    tabOrifice->addTab(new QWidget, QStringLiteral("&Measurement Orifice"));
    Register(tabOrifice, "tabOrifice", ControlKind::Tab, {kLeft, 1530, 9360, 4020});
    // The frames lie on the tab control itself, below its tab: their places count from its corner.
    BuildSpecificGravity(tabOrifice);
    BuildDensity(tabOrifice);
    BuildTemperatureAndPressure(tabOrifice);
    BuildCompressibility(tabOrifice);
}

void MainForm::BuildSpecificGravity(QWidget* tab) {
    fraSG = AddFrame(tab, "fraSG", "Specific Gravity", {165, 360, 9015, 945});
    optSgCalc =
        AddOption(fraSG, "optSgCalc", "Calculated (from density)", {kLeft, 255, 3000, kOption});
    optSgUser = AddOption(fraSG, "optSgUser", "User Entered", {kLeft, 585, 3000, kOption});
    lblSGb1 = AddLabel(fraSG, "lblSGb1", "Base", {3720, 255, 900, kText});
    txtSGb = AddField(fraSG, "txtSGb", {4650, 255, 1500, kText});
    lblSGb2 = AddLabel(fraSG, "lblSGb2", "(water = 1)", {6240, 255, 1500, kText});
    lblSGf1 = AddLabel(fraSG, "lblSGf1", "Flowing", {3720, 585, 900, kText});
    txtSGf = AddField(fraSG, "txtSGf", {4650, 585, 1500, kText});
    lblSGf2 = AddLabel(fraSG, "lblSGf2", "(water = 1)", {6240, 585, 1500, kText});
}

void MainForm::BuildDensity(QWidget* tab) {
    fraDensity = AddFrame(tab, "fraDensity", "Density", {165, 1320, 9015, 1080});
    fraSteam1 = AddBox(fraDensity, "fraSteam1", {kLeft, 255, 1800, 735});
    optSuperheated = AddOption(fraSteam1, "optSuperheated", "Superheated", {30, 30, 1740, kOption});
    optSaturated = AddOption(fraSteam1, "optSaturated", "Saturated", {30, 390, 1740, kOption});
    fraSteam2 = AddBox(fraDensity, "fraSteam2", {1950, 255, 3930, 735});
    optSteamTbl = AddOption(fraSteam2, "optSteamTbl", "From ASME Table", {30, 30, 2130, kOption});
    lblSteamTbl =
        AddLabel(fraSteam2, "lblSteamTbl", "(Op.Press. based)", {2190, 30, 1710, kOption});
    optSteamUser = AddOption(fraSteam2, "optSteamUser", "User Entered", {30, 390, 2130, kOption});
    lblDensity = AddLabel(fraDensity, "lblDensity", "Operating Density", {5940, 255, 2400, kText});
    txtDensity = AddField(fraDensity, "txtDensity", {5940, kRow2, 1260, kText});
    cboDensityUnit = AddList(fraDensity, "cboDensityUnit", {7260, kRow2, 1635, kText});
}

void MainForm::BuildTemperatureAndPressure(QWidget* tab) {
    fraTemp = AddFrame(tab, "fraTemp", "Temperature", {165, 360, 9015, 1080});
    lblTf = AddLabel(fraTemp, "lblTf", "Operating Temperature", {kLeft, kRow1, 2400, kText});
    txtTf = AddField(fraTemp, "txtTf", {kLeft, kRow2, 1500, kText});
    optDegF = AddOption(fraTemp, "optDegF", "Deg F", {1740, kRow2, 960, kOption});
    optDegC = AddOption(fraTemp, "optDegC", "Deg C", {2760, kRow2, 960, kOption});

    fraPress = AddFrame(tab, "fraPress", "Pressure", {165, 1500, 9015, 1080});
    lblPf = AddLabel(fraPress, "lblPf", "Operating Pressure", {kLeft, kRow1, 2400, kText});
    txtPf = AddField(fraPress, "txtPf", {kLeft, kRow2, 1500, kText});
    cboPressUnit = AddList(fraPress, "cboPressUnit", {1680, kRow2, 1770, kText});
    optPgauge = AddOption(fraPress, "optPgauge", "Gauge", {3660, kRow2, 1050, kOption});
    optPabsolute = AddOption(fraPress, "optPabsolute", "Absolute", {4770, kRow2, 1200, kOption});

    fraGasSG = AddFrame(tab, "fraGasSG", "Specific Gravity", {6840, 1500, 2340, 1080});
    lblGasSGb = AddLabel(fraGasSG, "lblGasSGb", "Base", {kLeft, kRow1, 1500, kText});
    txtGasSGb = AddField(fraGasSG, "txtGasSGb", {kLeft, kRow2, 1500, kText});
}

void MainForm::BuildCompressibility(QWidget* tab) {
    fraCompCorrection =
        AddFrame(tab, "fraCompCorrection", "Compressibility Correction", {165, 2640, 9015, 1290});
    optCompCorrNone =
        AddOption(fraCompCorrection, "optCompCorrNone", "None", {kLeft, 255, 1200, kOption});
    optCompDensity =
        AddOption(fraCompCorrection, "optCompDensity", "Density", {kLeft, 585, 1200, kOption});
    optCompZf = AddOption(fraCompCorrection, "optCompZf", "Zf", {kLeft, 915, 1200, kOption});
    lblCompCorr =
        AddLabel(fraCompCorrection, "lblCompCorr", "Operating Density", {1680, 270, 735, 900});
    lblCompCorr->setWordWrap(true);
    txtZf = AddField(fraCompCorrection, "txtZf", {3480, 570, 1500, kText});
    cboZfDensityUnit = AddList(fraCompCorrection, "cboZfDensityUnit", {5040, 570, 1635, kText});
    fraZfCompWarning = AddBox(fraCompCorrection, "fraZfCompWarning", {1680, 330, 5100, 780});
    lbl1ZfCompWarning =
        AddLabel(fraZfCompWarning, "lbl1ZfCompWarning",
                 "At this pressure, no compressibility correction", {kLeft, 60, 4860, kText});
    lbl2ZfCompWarning =
        AddLabel(fraZfCompWarning, "lbl2ZfCompWarning", "may result in erroneous computations.",
                 {kLeft, 390, 4860, kText});
}

void MainForm::BuildPipeAndFlow() {
    fraPipe = AddFrame(&canvas_, "fraPipe", "Pipe", {kLeft, 5610, 9360, 690});
    lblNomSize = AddLabel(fraPipe, "lblNomSize", "Nominal Size", {kLeft, kRow1, 1170, kText});
    cboNomSize = AddList(fraPipe, "cboNomSize", {1320, kRow1, 1080, kText});
    // Lies over the nominal size while the pipe is the user's own.
    txtMaskNomSize = AddBackdrop(fraPipe, "txtMaskNomSize", {1320, kRow1, 1080, kText});
    lblPipeID = AddLabel(fraPipe, "lblPipeID", "Pipe ID", {2610, kRow1, 720, kText});
    cboPipeID = AddList(fraPipe, "cboPipeID", {3360, kRow1, 4380, kText});
    cboPipeIDUnit = AddList(fraPipe, "cboPipeIDUnit", {7830, kRow1, 1410, kText});

    fraFlowrate = AddFrame(&canvas_, "fraFlowrate", "Flow Rate", {kLeft, 6360, 4650, 1050});
    txtFlow = AddField(fraFlowrate, "txtFlow", {kLeft, kRow1, 1860, kText});
    cboFlowUnit = AddList(fraFlowrate, "cboFlowUnit", {2070, kRow1, 2460, kText});
    lblPer = AddLabel(fraFlowrate, "lblPer", "Per", {2070, kRow2, 600, kText});
    cboTimeUnit = AddList(fraFlowrate, "cboTimeUnit", {2700, kRow2, 1830, kText});

    fraDeltaP = AddFrame(&canvas_, "fraDeltaP", "Differential Pressure", {4830, 6360, 4650, 1050});
    txtDeltaP = AddField(fraDeltaP, "txtDeltaP", {kLeft, kRow1, 1860, kText});
    cboDeltaPunit = AddList(fraDeltaP, "cboDeltaPunit", {2070, kRow1, 2460, kText});
    fraPlateThicknessWarning =
        AddBox(fraDeltaP, "fraPlateThicknessWarning", {kLeft, kRow2, 4410, 345});
    lbl1PlateThicknessWarning = AddLabel(fraPlateThicknessWarning, "lbl1PlateThicknessWarning",
                                         "Orifice plate deflection", {90, 15, 2340, kText});
    lbl2PlateThicknessWarning = AddLabel(fraPlateThicknessWarning, "lbl2PlateThicknessWarning",
                                         "should be checked.", {2460, 15, 1890, kText});
}

void MainForm::BuildBore() {
    fraOriBoreDiameter =
        AddFrame(&canvas_, "fraOriBoreDiameter", "Orifice Bore Diameter", {kLeft, 7470, 4650, 690});
    txtOriBoreDia = AddField(fraOriBoreDiameter, "txtOriBoreDia", {kLeft, kRow1, 1860, kText});
    cboOriBoreUnit = AddList(fraOriBoreDiameter, "cboOriBoreUnit", {2070, kRow1, 1410, kText});

    fraBeta = AddFrame(&canvas_, "fraBeta", "Beta Ratio", {4830, 7470, 4650, 690});
    txtBeta = AddField(fraBeta, "txtBeta", {kLeft, kRow1, 930, kText});
    lblBeta = AddLabel(fraBeta, "lblBeta", "Beta = (Orifice Diameter) / (Pipe Diamter)",
                       {1110, kRow1, 3480, kText});

    lblMsg = AddLabel(&canvas_, "lblMsg", "", {kLeft, 8205, 9360, 285});
}

void MainForm::BuildMenus(QMenuBar& menuBar) {
    mnuFile = menuBar.addMenu(QStringLiteral("&File"));
    mnuFile->menuAction()->setObjectName(QStringLiteral("mnuFile"));
    controls_.push_back(
        {QStringLiteral("mnuFile"), ControlKind::MenuItem, nullptr, mnuFile->menuAction(), {}});
    mnuPrint = AddMenuItem(mnuFile, "mnuPrint", "&Print");
    mnuPrint->setShortcut(QKeySequence::Print);
    mnuExit = AddMenuItem(mnuFile, "mnuExit", "E&xit");
    mnuAbout = AddMenuItem(&menuBar, "mnuAbout", "&About");
    mnuAbout->setShortcut(QKeySequence::HelpContents);
}

}  // namespace tarvix
