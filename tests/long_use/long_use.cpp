// Weeks on an engineer's desk in minutes: recalculations, changes of fluid and reports without end
// in one process, whose memory and open files must stay as they were.
//
//   long_use [--recalculations N] [--switches N] [--reports N]
//
// Prints the figures as it goes. Exit status 1 when memory grows or a file stays open.
#include "tests/window_script/script_player.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tarvix {

namespace {

// The first slices fill the caches of fonts, styles and allocators; what comes after counts.
constexpr int kSlices = 12;
constexpr int kWarmUpSlices = 2;

// A leak of a hundred bytes an action would grow by ten megabytes. What grows by design is the
// fields' memory of what was typed, for Ctrl+Z: about 5 bytes a recalculation.
constexpr long kMostGrowthKb = 2048;

// The address sanitizer keeps what is given back for a while, and looks for leaks itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kJudgesMemory = false;
#else
constexpr bool kJudgesMemory = true;
#endif

struct Usage {
    long residentKb = 0;
    int files = 0;
};

Usage CurrentUsage() {
#ifdef __GLIBC__
    malloc_trim(0);  // free memory that the allocator only holds back is no leak
#endif
    Usage usage;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) {
            usage.residentKb = std::strtol(line.c_str() + 6, nullptr, 10);
        }
    }
    usage.files =
        static_cast<int>(QDir("/proc/self/fd")
                             .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
                             .size());
    return usage;
}

class LongUse {
  public:
    explicit LongUse(const QString& folder) : page_(folder + "/page.pdf") {
        Play("printer " + page_);
    }

    // Types flows, differential pressures and betas until there have been so many calculations, and
    // goes through the modes and units while it does.
    void Recalculate(int count) {
        const int target = player_.Window().calculationRuns() + count;
        for (int i = 0; player_.Window().calculationRuns() < target; ++i) {
            Complete(i);
            for (const char* mode : {"optCalcDP", "optCalcBeta", "optCalcFR"}) {
                Play(QString("click %1").arg(mode));
                Type("txtFlow", QString::number(100 + i % 900));
                Type("txtDeltaP", QString("%1.%2").arg(10 + i % 90).arg(i % 10));
                Type("txtBeta", QString("0.5%1").arg(i % 10));
            }
            Play(QString("choose cboTimeUnit #%1").arg(i % 4));
            Play(QString("choose cboDeltaPunit #%1").arg(i % 8));
            Play(QString("choose cboPipeIDUnit #%1").arg(i % 3));
            QCoreApplication::processEvents();
        }
    }

    void SwitchFluids(int count) {
        for (int i = 0; i < count; ++i) {
            Play(QString("click %1").arg(kFluids[i % 3]));
            QCoreApplication::processEvents();
        }
    }

    void PrintReports(int count) {
        for (int i = 0; i < count; ++i) {
            Complete(i);
            Play(QString("customer Customer %1|Second line|FT-%1").arg(i));
            Play("click cmdPrint");
            Play("click mnuAbout");
            QCoreApplication::processEvents();
            if (QFileInfo(page_).size() < 1000) {
                Fail("a report was not printed");
            }
            QFile::remove(page_);
        }
    }

  private:
    static constexpr const char* kFluids[] = {"optLiquid", "optSteam", "optGas"};

    [[noreturn]] static void Fail(const char* what) {
        std::printf("FAILED: %s\n", what);
        std::exit(1);
    }

    // A complete run of one of the fluids, in the flow rate mode.
    void Complete(int i) {
        Play(QString("click %1").arg(kFluids[i % 3]));
        Play("click optCalcFR");
        Play("choose cboDeltaPunit Inches Water");
        for (const char* entry :
             {"txtSGf 0.9", "txtSGb 0.95", "txtPf 120", "txtTf 75", "txtGasSGb 0.65",
              "txtDensity 0.3", "txtDeltaP 50", "txtBeta 0.6"}) {
            const QStringList words = QString(entry).split(' ');
            Type(words.first(), words.last());
        }
        if (!player_.Window().form().cmdPrint->isEnabled()) {
            Fail("a complete run gave no result");
        }
    }

    // Types into a field, where there is something to type into at the time.
    void Type(const QString& field, const QString& text) {
        const MainForm& form = player_.Window().form();
        const auto& widget = dynamic_cast<const NumericField&>(*form.Find(field)->widget);
        if (form.IsVisible(widget) && form.IsEnabled(widget) && !widget.Locked()) {
            Play("type " + field + ' ' + text);
        }
    }

    void Play(const QString& line) {
        if (!player_.Play(line).isEmpty()) {
            Fail(qPrintable(line));
        }
        player_.Desk().TakeBoxes();
    }

    QString page_;
    ScriptPlayer player_{
        [](const QJsonObject& line) { Fail(qPrintable(line.value("refused").toString())); },
        [] { Fail("the program ended"); }};
};

int Run(int recalculations, int switches, int reports) {
    const QTemporaryDir folder;
    LongUse use(folder.path());
    Usage first;
    Usage last;
    QElapsedTimer timer;
    timer.start();
    std::printf(
        "%d recalculations, %d changes of fluid, %d reports, in %d slices\n"
        "slice   seconds   resident kB   open files\n",
        recalculations, switches, reports, kSlices);
    for (int slice = 1; slice <= kSlices; ++slice) {
        const auto part = [slice](int whole) {
            return whole * slice / kSlices - whole * (slice - 1) / kSlices;
        };
        use.Recalculate(part(recalculations));
        use.SwitchFluids(part(switches));
        use.PrintReports(part(reports));
        last = CurrentUsage();
        if (slice == kWarmUpSlices) {
            first = last;
        }
        std::printf("%5d %9.1f %13ld %12d%s\n", slice, static_cast<double>(timer.elapsed()) / 1000,
                    last.residentKb, last.files,
                    slice == kWarmUpSlices ? "   counted from here" : "");
        std::fflush(stdout);
    }
    const long growth = last.residentKb - first.residentKb;
    std::printf("grown by %ld kB (at most %ld), %d files more\n", growth, kMostGrowthKb,
                last.files - first.files);
    const bool grown = kJudgesMemory && growth > kMostGrowthKb;
    return grown || last.files > first.files ? 1 : 0;
}

}  // namespace

}  // namespace tarvix

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"recalculations", "How many.", "N", "100000"},
                       {"switches", "How many.", "N", "1000"},
                       {"reports", "How many.", "N", "200"}});
    parser.process(application);
    return tarvix::Run(parser.value("recalculations").toInt(), parser.value("switches").toInt(),
                       parser.value("reports").toInt());
}
