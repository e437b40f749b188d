#include "app/window/frm_tarvix.h"

#include "app/window/mode_options.h"
#include "app/window/system_locale.h"
#include "app/window/window_frame.h"
#include "app/window/window_place.h"
#include "ui/controls/readable_palette.h"
#include "ui/form/accessible_names.h"
#include "ui/form/input_reader.h"
#include "ui/handlers/bore_and_beta_fields.h"
#include "ui/handlers/flow_unit_boxes.h"
#include "ui/handlers/fluid_options.h"
#include "ui/handlers/numeric_fields.h"
#include "ui/handlers/pipe_boxes.h"
#include "ui/handlers/unit_boxes.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QEvent>
#include <QLocale>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

namespace tarvix {

namespace {

// Links the controls of the form with their handlers. What a screen reader is told of a control
// follows what its handler has done, so the names are linked after them.
MainForm& LinkedForm(const FormContext& context) {
    ConnectNumericFields(context);
    ConnectBoreAndBeta(context);
    ConnectUnitBoxes(context);
    ConnectFlowUnitBoxes(context);
    ConnectPipeBoxes(context);
    ConnectFluidOptions(context);
    ConnectModeOptions(context);
    NameControls(context.form);
    return context.form;
}

}  // namespace

frmTarvix::frmTarvix(Module1& module, WindowHost& host)
    : module_(module),
      host_(host),
      form_(view_.canvas(), view_.footer(), *menuBar()),
      context_{form_, state_, module_},
      spokenResult_(LinkedForm(context_), form_.announcements),
      resultLine_(form_, view_) {
    setWindowTitle(QStringLiteral("Brindle Tarvix"));
    // Never larger than the form, so there is nothing to maximize.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    setCentralWidget(&view_);
    ApplyReadableColors();
    ConnectHandlers();

    // As designed, before any handler has run.
    form_.optPgauge->setChecked(true);
    form_.optDegF->setChecked(true);
    form_.optSgUser->setChecked(true);
    form_.optSaturated->setChecked(true);
    form_.optSteamUser->setChecked(true);
    UpdateNames(form_);
    form_.txtMaskNomSize->hide();
    form_.fraZfCompWarning->hide();
    form_.fraPlateThicknessWarning->hide();
}

frmTarvix::~frmTarvix() {
    // The view is a member, not a child on the heap.
    takeCentralWidget();
}

void frmTarvix::ConnectHandlers() {
    QObject::connect(form_.cmdPrint, &QAbstractButton::clicked, this, &frmTarvix::cmdPrint_Click);
    QObject::connect(form_.cmdExit, &QAbstractButton::clicked, this, &frmTarvix::cmdExit_Click);
    QObject::connect(form_.mnuPrint, &QAction::triggered, this, &frmTarvix::mnuPrint_Click);
    QObject::connect(form_.mnuExit, &QAction::triggered, this, &frmTarvix::mnuExit_Click);
    QObject::connect(form_.mnuAbout, &QAction::triggered, this, &frmTarvix::mnuAbout_Click);

    const auto onKeys = [this](const QKeySequence& keys, auto action) {
        QObject::connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    onKeys(Qt::Key_F10, [this] { menuBar()->setActiveAction(form_.mnuFile->menuAction()); });
    // The Tab key passes the solved value by, so without a mouse it can't be selected.
    for (const QKeySequence& copy : QKeySequence::keyBindings(QKeySequence::Copy)) {
        onKeys(copy, [this] { CopySolvedValue(); });
    }
}

void frmTarvix::CopySolvedValue() const {
    const NumericField* solved = form_.SolvedField();
    if (solved != nullptr && !solved->text().isEmpty()) {
        QGuiApplication::clipboard()->setText(solved->text());
    }
}

void frmTarvix::cmdPrint_Click() {
    PrintOrificeReport();
}

void frmTarvix::cmdExit_Click() {
    module_.ExitProgram();
}

void frmTarvix::mnuPrint_Click() {
    PrintOrificeReport();
}

void frmTarvix::mnuExit_Click() {
    module_.ExitProgram();
}

void frmTarvix::mnuAbout_Click() {
    host_.ShowAboutBox(*this);
}

void frmTarvix::Form_Load() {
    frame_ = FrameOf(*this);
    FitToScreen();
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QSize whole = size().grownBy(frame_);
    const ScreenPoint place =
        StartPlace(screen.width(), screen.height(), whole.width(), whole.height());
    const QPoint inFrame(frame_.left(), frame_.top());
    setGeometry(QRect(screen.topLeft() + QPoint(place.x, place.y) + inFrame, size()));
    state_.SuspendCalc = true;
    module_.FluidType = "G";
    LoadcboPipeIDUnit(context_);
    LoadcboPressUnit(context_);
    LoadcboDeltaPUnit(context_);
    LoadcboDensityUnit(context_);
    LoadcboNomSize(context_);
    LoadcboPipeID(context_);
    logo_.emplace(module_.AppPath + std::string(kBrindleLogo), module_.platform());
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
    switch (event->type()) {
        case QEvent::FontChange:
        case QEvent::StyleChange:
            form_.PlaceControls();
            ShowLogo();
            FitToScreen();
            break;
        case QEvent::PaletteChange:
            ApplyReadableColors();
            break;
        case QEvent::WindowStateChange:
            // A window manager may maximize what has no button for it.
            if (isMaximized()) {
                showNormal();
            }
            break;
        default:
            break;
    }
}

void frmTarvix::ApplyReadableColors() {
    const QPalette colors = ReadablePalette(QGuiApplication::palette());
    setPalette(colors);
    form_.mnuFile->setPalette(colors);
}

void frmTarvix::FitToScreen() {
    const int menu = menuBar()->sizeHint().height();
    const QSize whole = form_.WholeSize() + QSize(0, menu);
    const QSize room = QGuiApplication::primaryScreen()->availableSize().shrunkBy(frame_);
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    // The scroll bar for one direction must not take room away in the other.
    const QSize scrolling(whole.height() > room.height() ? scrollBar : 0,
                          whole.width() > room.width() ? scrollBar : 0);
    const QSize least = form_.LeastSize() + QSize(scrollBar, scrollBar + menu);
    setMinimumSize(least.boundedTo(room));
    setMaximumSize(whole + scrolling);
    resize((whole + scrolling).boundedTo(room));
}

void frmTarvix::ShowLogo() {
    constexpr int kMargin = 6;
    if (logo_) {
        const QSize card = form_.imgBrindleLogo->size() - QSize(2 * kMargin, 2 * kMargin);
        form_.imgBrindleLogo->setPixmap(logo_->Pixmap(card, devicePixelRatioF()));
    }
}

void frmTarvix::PrintOrificeReport() {
    host_.ShowCustomerWindow(*this, module_);
    if (module_.MsgResult == kDoNotPrint) {
        return;
    }
    setCursor(Qt::BusyCursor);
    ReportSheet sheet = ReadReportSheet(context_);
    sheet.date = PrintableDate(QDate::currentDate(), QLocale::system());
    host_.PrintPage(*this, ComposeReport(sheet, module_), logo_->Picture());
    unsetCursor();
}

}  // namespace tarvix
