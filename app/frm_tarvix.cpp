#include "app/frm_tarvix.h"

#include "app/window_place.h"
#include "ui/input_reader.h"
#include "ui/logo_picture.h"

#include <QApplication>
#include <QDate>
#include <QEvent>
#include <QLocale>
#include <QScreen>

namespace tarvix {

namespace {

// dd mmm yyyy, the month as the system names it.
std::string ReportDate(const QDate& date) {
    QLocale locale = QLocale::system();
    if (locale.language() == QLocale::C) {
        locale = QLocale(QLocale::English, QLocale::UnitedStates);
    }
    return QStringLiteral("%1 %2 %3")
        .arg(date.day(), 2, 10, QLatin1Char('0'))
        .arg(locale.monthName(date.month(), QLocale::ShortFormat))
        .arg(date.year(), 4, 10, QLatin1Char('0'))
        .toStdString();
}

}  // namespace

frmTarvix::frmTarvix(Module1& module, WindowHost& host)
    : module_(module),
      host_(host),
      scrollArea_(new QScrollArea(this)),
      form_(canvas_, *menuBar()),
      context_{form_, state_, module_},
      calculations_(context_),
      warnings_(context_),
      densities_(context_, calculations_),
      numericFields_(context_, calculations_, densities_, warnings_),
      boreAndBeta_(context_, calculations_),
      unitBoxes_(context_, calculations_, densities_, warnings_, numericFields_),
      flowUnitBoxes_(context_, calculations_),
      pipeBoxes_(context_, warnings_, boreAndBeta_),
      fluidOptions_(context_, calculations_, densities_, warnings_, numericFields_, flowUnitBoxes_),
      modes_(context_, calculations_) {
    setWindowTitle(QStringLiteral("Brindle Tarvix"));
    // On a screen smaller than the form, the form scrolls.
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setWidget(&canvas_);
    setCentralWidget(scrollArea_);
    ConnectMenusAndButtons();

    // As designed, before any handler has run.
    form_.optPgauge->setChecked(true);
    form_.optDegF->setChecked(true);
    form_.optSgUser->setChecked(true);
    form_.optSaturated->setChecked(true);
    form_.optSteamUser->setChecked(true);
    form_.txtMaskNomSize->hide();
    form_.fraZfCompWarning->hide();
    form_.fraPlateThicknessWarning->hide();
}

frmTarvix::~frmTarvix() {
    // The canvas is a member, not a child on the heap.
    scrollArea_->takeWidget();
}

void frmTarvix::ConnectMenusAndButtons() {
    QObject::connect(form_.cmdPrint, &QAbstractButton::clicked, this,
                     [this] { PrintOrificeReport(); });
    QObject::connect(form_.mnuPrint, &QAction::triggered, this, [this] { PrintOrificeReport(); });
    QObject::connect(form_.cmdExit, &QAbstractButton::clicked, this,
                     [this] { module_.ExitProgram(); });
    QObject::connect(form_.mnuExit, &QAction::triggered, this, [this] { module_.ExitProgram(); });
    QObject::connect(form_.mnuAbout, &QAction::triggered, this,
                     [this] { host_.ShowAboutBox(*this); });
}

void frmTarvix::Form_Load() {
    FitToScreen();
    state_.SuspendCalc = true;
    module_.FluidType = "G";
    pipeBoxes_.LoadcboPipeIDUnit();
    unitBoxes_.LoadcboPressUnit();
    unitBoxes_.LoadcboDeltaPUnit();
    unitBoxes_.LoadcboDensityUnit();
    pipeBoxes_.LoadcboNomSize();
    pipeBoxes_.LoadcboPipeID();
    logo_ = LoadLogo(module_.AppPath + std::string(kBrindleLogo), module_.platform());
    ShowLogo();
    SetBackColor(*form_.fraPlateThicknessWarning, BackColor::Yellow);
    form_.optCompCorrNone->Select();
    form_.optCalcBeta->Select();
}

void frmTarvix::Form_Activate() {
    if (state_.SuspendCalc) {
        form_.optGas->Select();
    }
}

void frmTarvix::showEvent(QShowEvent* event) {
    Form_Activate();
    QMainWindow::showEvent(event);
}

void frmTarvix::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        form_.PlaceControls();
        ShowLogo();
        FitToScreen();
    }
}

void frmTarvix::FitToScreen() {
    const QSize whole = canvas_.size() + QSize(0, menuBar()->sizeHint().height());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    setMaximumSize(whole);
    resize(whole.boundedTo(screen.size()));
    const ScreenPoint place = StartPlace(screen.width(), screen.height(), width(), height());
    move(screen.topLeft() + QPoint(place.x, place.y));
}

void frmTarvix::ShowLogo() {
    if (!logo_.isNull()) {
        form_.imgBrindleLogo->setPixmap(
            LogoPixmap(logo_, form_.imgBrindleLogo->size(), devicePixelRatioF()));
    }
}

void frmTarvix::PrintOrificeReport() {
    host_.ShowCustomerWindow(*this, module_);
    constexpr int kDoNotPrint = 2;
    if (module_.MsgResult == kDoNotPrint) {
        return;
    }
    setCursor(Qt::BusyCursor);
    ReportSheet sheet = ReadReportSheet(context_);
    sheet.date = ReportDate(QDate::currentDate());
    host_.PrintPage(*this, ComposeReport(sheet, module_), logo_);
    unsetCursor();
}

}  // namespace tarvix
