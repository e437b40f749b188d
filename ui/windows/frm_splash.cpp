#include "ui/windows/frm_splash.h"

#include "ui/windows/logo_picture.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QPalette>
#include <QScreen>
#include <QShowEvent>
#include <QThread>
#include <QVBoxLayout>
#include <QWindow>

#include <cstdlib>
#include <utility>

namespace tarvix {

namespace {

constexpr int kWaitSeconds = 3;  // by the seconds field of the clock

// A window system that shows a new window later than that gets the wait without it.
constexpr int kExposedWithinMs = 1000;

#ifdef Q_OS_WIN
constexpr const char* kFixedAppPath = "C:\\Tarvix\\";
#else
constexpr const char* kFixedAppPath = "/opt/Tarvix/";
#endif

constexpr QSize kLogoBox(240, 60);
constexpr int kMargin = 32;

QFont SplashFont(const QString& family, double scale, bool bold, const QFont& base,
                 const QStringList& families) {
    QFont font = base;
    // Asking for a family that is not there costs a search through all fonts.
    if (families.contains(family)) {
        font.setFamily(family);
    }
    font.setPointSizeF(scale * QFontInfo(base).pointSizeF());
    font.setBold(bold);
    return font;
}

}  // namespace

std::string AppPathOf(const QString& folder) {
    if (folder.isEmpty()) {
        return kFixedAppPath;
    }
    QString path = QDir::toNativeSeparators(folder);
    if (!path.endsWith(QDir::separator())) {
        path += QDir::separator();
    }
    return path.toStdString();
}

frmSplash::frmSplash(Module1& module, HandOver handOver)
    : QFrame(nullptr, Qt::FramelessWindowHint),
      Label1(new QLabel("Tarvix", this)),
      Label2(new QLabel("Version: 3.0", this)),
      imgBrindleLogo(new QLabel(this)),
      imgVeltraneLogo(new QLabel(this)),
      module_(module),
      handOver_(std::move(handOver)) {
    setObjectName("frmSplash");
    setWindowTitle("Brindle Tarvix");
    // Not the window type Qt::SplashScreen: showing one before the event loop runs handles events.
    // The toolkit passes the attribute on only to a native window that is there.
    winId();
    setAttribute(Qt::WA_X11NetWmWindowTypeSplash);
    // The program doesn't end between the splash and the main window.
    setAttribute(Qt::WA_QuitOnClose, false);
    Label1->setObjectName("Label1");
    Label2->setObjectName("Label2");
    imgBrindleLogo->setObjectName("imgBrindleLogo");
    imgVeltraneLogo->setObjectName("imgVeltraneLogo");
    imgBrindleLogo->setAccessibleName("Brindle");
    imgVeltraneLogo->setAccessibleName("Veltrane");
    LayOut();
}

void frmSplash::LayOut() {
    // The logos stand on white, so the card around them is white in dark desktop themes too.
    QPalette card = palette();
    card.setColor(QPalette::Window, Qt::white);
    card.setColor(QPalette::WindowText, QColor(0x1F, 0x2A, 0x37));
    setPalette(card);
    setAutoFillBackground(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);

    const QFont base = font();
    const QStringList families = QFontDatabase::families();
    Label1->setFont(SplashFont("Microsoft Sans Serif", 3.2, true, base, families));
    Label2->setFont(SplashFont("MS Sans Serif", 1.1, false, base, families));
    imgBrindleLogo->setFixedSize(kLogoBox);
    imgVeltraneLogo->setFixedSize(kLogoBox);
    imgVeltraneLogo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto* logos = new QHBoxLayout;
    logos->addWidget(imgBrindleLogo);
    logos->addSpacing(kMargin);
    logos->addWidget(imgVeltraneLogo);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addLayout(logos);
    layout->addSpacing(kMargin);
    layout->addWidget(Label1, 0, Qt::AlignHCenter);
    layout->addWidget(Label2, 0, Qt::AlignHCenter);
    layout->addSpacing(kMargin);
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
}

void frmSplash::Form_Load() {
    module_.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
}

void frmSplash::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    // Some window systems never report that a window became active, so being shown counts.
    if (!std::exchange(activated_, true)) {
        QMetaObject::invokeMethod(
            this, [this] { Form_Activate(); }, Qt::QueuedConnection);
    }
}

void frmSplash::closeEvent(QCloseEvent* event) {
    // Only the hand-over ends the splash.
    event->ignore();
}

void frmSplash::Form_Activate() {
    ShowLogo(*imgBrindleLogo, kBrindleLogo);
    ShowLogo(*imgVeltraneLogo, kVeltraneLogo);
    RepaintAtOnce();
    Wait();
    handOver_.loadMainWindow();
    hide();
    handOver_.showMainWindow();
}

void frmSplash::ShowLogo(QLabel& label, std::string_view fileName) {
    const Logo logo(module_.AppPath + std::string(fileName), module_.platform());
    label.setPixmap(logo.Pixmap(kLogoBox, devicePixelRatioF()));
}

void frmSplash::RepaintAtOnce() {
    // What is painted before the window system has the window on the screen is lost.
    const QDeadlineTimer deadline(kExposedWithinMs);
    while (windowHandle() != nullptr && !windowHandle()->isExposed() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(1);
    }
    repaint();
    // Sends the picture on its way; the wait that follows handles no events.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmSplash::Wait() const {
    // Compares only the seconds field: when the minute rolls over, the wait ends early.
    Platform& platform = module_.platform();
    const int start = platform.CurrentSecond();
    handOver_.whileWaiting();
    while (std::abs(platform.CurrentSecond() - start) < kWaitSeconds) {
        platform.SleepUntilNextSecond();
    }
}

}  // namespace tarvix
