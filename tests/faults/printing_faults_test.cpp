// A report that can't be printed loses nothing: the window, the customer lines and the way to print
// are as they were, and the next report prints.
#include "app/window/frm_tarvix.h"
#include "report/printer/report_printer.h"
#include "tests/window_script/script_desk.h"
#include "tests/window_script/window_state.h"
#include "ui/windows/frm_splash.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QPrinter>
#include <QTemporaryDir>

#include <array>
#include <csignal>
#include <future>
#include <gtest/gtest.h>
#include <string>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tarvix {

namespace {

// A desk whose pages go to one file, wherever that is, and that remembers how they fared.
class FilePrinterDesk : public ScriptDesk {
  public:
    FilePrinterDesk() : ScriptDesk([](int) { FAIL() << "the program ended"; }) {}

    void PrintPage(QWidget& /*owner*/, const ReportPage& page, const QImage& logo) override {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        outcome = PrintReportOn(printer, page, logo);
    }

    QString file;
    PrintOutcome outcome;
};

#ifdef Q_OS_UNIX

// While it lives, no file of this process grows beyond a few bytes.
class FullDisk {
  public:
    FullDisk() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &usual_);
        rlimit few = usual_;
        few.rlim_cur = 4096;
        setrlimit(RLIMIT_FSIZE, &few);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &usual_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit usual_{};
};

// A pipe with a name, which stands for every device that is no file. Whoever waits at it goes on
// after a while when nothing is written.
class Pipe {
  public:
    explicit Pipe(QString name) : name_(std::move(name)) {
        std::signal(SIGPIPE, SIG_IGN);
        const QByteArray path = QFile::encodeName(name_);
        EXPECT_EQ(mkfifo(path.constData(), 0600), 0);
        end_ = open(path.constData(), O_RDONLY | O_NONBLOCK);
        EXPECT_GE(end_, 0);
    }
    ~Pipe() {
        if (end_ >= 0) {
            close(end_);
        }
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    QString name() const { return name_; }

    bool IsThere() const {
        struct stat status {};
        return stat(QFile::encodeName(name_).constData(), &status) == 0 && S_ISFIFO(status.st_mode);
    }

#ifdef F_SETPIPE_SZ
    void HoldLessThanAPage() const {
        EXPECT_GT(fcntl(end_, F_SETPIPE_SZ, 4096), 0);
    }
#endif

    std::future<QByteArray> ReadAll() {
        return std::async(std::launch::async, [this] {
            QByteArray all;
            std::array<char, 4096> some{};
            while (SomethingComes()) {
                const auto count = read(end_, some.data(), some.size());
                if (count <= 0) {
                    break;
                }
                all.append(some.data(), static_cast<qsizetype>(count));
            }
            return all;
        });
    }

    std::future<QByteArray> CloseAtTheFirstByte() {
        return std::async(std::launch::async, [this] {
            SomethingComes();
            close(std::exchange(end_, -1));
            return QByteArray();
        });
    }

  private:
    bool SomethingComes() const {
        constexpr int kLongestWaitMs = 10'000;
        pollfd end{end_, POLLIN, 0};
        return poll(&end, 1, kLongestWaitMs) > 0;
    }

    QString name_;
    int end_ = -1;
};

// A folder in which nothing can be made, in which a file can be written to. For root everything can
// be, so that while this lives a test that root runs is nobody's.
class ClosedFolder {
  public:
    ClosedFolder(const QString& folder, const QString& file) : folder_(QFile::encodeName(folder)) {
        EXPECT_EQ(chmod(QFile::encodeName(file).constData(), 0666), 0);
        EXPECT_EQ(chmod(folder_.constData(), 0555), 0);
        constexpr uid_t kNobody = 65534;
        EXPECT_EQ(seteuid(user_ == 0 ? kNobody : user_), 0);
        EXPECT_FALSE(QFile(folder + "/other.pdf").open(QIODevice::WriteOnly));
    }
    ~ClosedFolder() {
        EXPECT_EQ(seteuid(user_), 0);
        EXPECT_EQ(chmod(folder_.constData(), 0700), 0);
    }
    ClosedFolder(const ClosedFolder&) = delete;
    ClosedFolder& operator=(const ClosedFolder&) = delete;

  private:
    QByteArray folder_;
    uid_t user_ = geteuid();
};

#endif

class PrintingFault : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        module_.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
        window_.Form_Load();
        window_.show();
        MainForm& form = window_.form();
        form.optLiquid->Select();
        form.optCalcFR->Select();
        form.txtSGf->SetText("1");
        form.txtSGb->SetText("1");
        form.txtDeltaP->SetText("100");
        form.txtBeta->SetText("0.5");
        ASSERT_TRUE(form.cmdPrint->isEnabled());
    }

    // A file that is there already.
    QString OldFile() const {
        QFile old(folder_.filePath("old.pdf"));
        EXPECT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("what was printed before");
        return old.fileName();
    }

    QByteArray State() { return QJsonDocument(ControlStates(window_.form())).toJson(); }

    void Print(const QString& file) {
        before_ = State();
        desk_.file = file;
        desk_.TypeIntoCustomerWindow({"Somebody", "Somewhere", "FT-101"});
        window_.form().cmdPrint->click();
    }

    // After a Print that could not be; the next one is.
    void ExpectFailedAndNothingLost() {
        EXPECT_EQ(desk_.outcome.status, PrintOutcome::Status::Failed);
        EXPECT_EQ(State(), before_);
        EXPECT_EQ(module_.CustLine1, "Somebody");
        EXPECT_EQ(module_.CustLine2, "Somewhere");
        EXPECT_EQ(module_.TagText, "FT-101");

        const QTemporaryDir good;
        desk_.file = good.filePath("good.pdf");
        window_.form().cmdPrint->click();
        EXPECT_EQ(desk_.outcome.status, PrintOutcome::Status::Printed);
        EXPECT_GT(QFileInfo(desk_.file).size(), 1000);
        EXPECT_EQ(State(), before_);
    }

    QTemporaryDir folder_;
    QByteArray before_;
    FilePrinterDesk desk_;
    Module1 module_{desk_, NumberLocale{}};
    frmTarvix window_{module_, desk_};
};

}  // namespace

#ifdef Q_OS_UNIX

TEST_F(PrintingFault, FullDiskLeavesTheOldFile) {
    QFile old(OldFile());
    {
        const FullDisk full;
        Print(old.fileName());
    }
    EXPECT_FALSE(desk_.outcome.reason.isEmpty());
    ExpectFailedAndNothingLost();
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "what was printed before");
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{"old.pdf"});
}

TEST_F(PrintingFault, FileInAClosedFolderIsWrittenTo) {
    QFile page(OldFile());
    {
        const ClosedFolder closed(folder_.path(), page.fileName());
        Print(page.fileName());
    }
    EXPECT_EQ(desk_.outcome.status, PrintOutcome::Status::Printed)
        << desk_.outcome.reason.toStdString();
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().trimmed().endsWith("%%EOF"));
}

TEST_F(PrintingFault, PipeIsWrittenToNotReplaced) {
    Pipe pipe(folder_.filePath("pipe"));
    std::future<QByteArray> read = pipe.ReadAll();
    Print(pipe.name());
    EXPECT_EQ(desk_.outcome.status, PrintOutcome::Status::Printed);
    const QByteArray pdf = read.get();
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(pipe.IsThere());
}

#ifdef F_SETPIPE_SZ

TEST_F(PrintingFault, PipeThatIsClosedInTheMiddle) {
    Pipe pipe(folder_.filePath("pipe"));
    pipe.HoldLessThanAPage();
    std::future<QByteArray> read = pipe.CloseAtTheFirstByte();
    Print(pipe.name());
    ExpectFailedAndNothingLost();
    read.get();
    EXPECT_TRUE(pipe.IsThere());
}

#endif
#endif

TEST_F(PrintingFault, FolderThatIsGoneOrInPlaceOfTheFile) {
    for (const QString& name : {folder_.filePath("gone/page.pdf"), folder_.path()}) {
        Print(name);
        ExpectFailedAndNothingLost();
    }
}

}  // namespace tarvix
