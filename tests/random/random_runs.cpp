// Random runs: does whatever a user may do on the real main window, and checks after every action
// what must always hold.
//
//   random_runs [--actions N] [--seed S] [--locale L] [--list]
//
// A failure prints the seed, the invariant and the shortest script that still breaks it, in the
// language of window_script. Exit status 0 when everything held, 1 after a failure.
#include "tests/random/action_generator.h"
#include "tests/random/minimize.h"
#include "tests/random/session.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <map>
#include <random>

namespace tarvix {

namespace {

// A window lives for so many actions at most, so that a failing script stays short.
constexpr int kLongestSession = 1000;
constexpr int kActionsBetweenEvents = 50;

struct Figures {
    int windows = 0;
    int ended = 0;
    int refused = 0;
    int results = 0;
    int messages = 0;
    int boxes = 0;
    int pages = 0;
    long long calculations = 0;
    std::map<QString, int> commands;
};

void Note(Figures& figures, const Session& session, const QString& line) {
    const WindowView& view = session.view();
    const bool refused = session.lastWasRefused();
    figures.refused += refused ? 1 : 0;
    figures.results += view["cmdPrint"].enabled ? 1 : 0;
    figures.messages += view["lblMsg"].caption.isEmpty() ? 0 : 1;
    figures.boxes += static_cast<int>(view.boxes.size());
    figures.pages += view.pages;
    ++figures.commands[line.section(QLatin1Char(' '), 0, 0)];
}

void Print(const Figures& figures, int actions, double seconds) {
    std::printf("%d actions in %.1f s, %d windows (%d ended by an action), %lld calculations\n",
                actions, seconds, figures.windows, figures.ended, figures.calculations);
    std::printf(
        "a result stood after %d actions, a message after %d; %d refused; %d boxes, %d "
        "pages\n",
        figures.results, figures.messages, figures.refused, figures.boxes, figures.pages);
    for (const auto& [command, count] : figures.commands) {
        std::printf("  %-9s %d\n", qPrintable(command), count);
    }
}

void Report(const World& world, const std::vector<Invariant>& invariants, const QString& locale,
            const Session& session) {
    const Failure& failure = *session.failure();
    std::printf("\nBROKEN %s\n  %s\n  %s\n", qPrintable(failure.invariant),
                qPrintable(failure.sentence), qPrintable(failure.fault));
    std::printf("  %lld actions in this window; shortening ...\n",
                static_cast<long long>(session.script().size() - 1));
    std::fflush(stdout);
    const QStringList script =
        Minimized(world, invariants, locale, session.script().mid(1), failure.invariant);
    std::printf("\nlocale %s\n", qPrintable(locale));
    for (const QString& line : script) {
        std::printf("%s\n", qPrintable(line));
    }
}

int Run(int actions, quint64 seed, const QString& locale) {
    const World world{ProductTables(QStringLiteral(TARVIX_TEST_DATA)), Numbers(QLocale(locale))};
    const std::vector<Invariant> invariants = AllInvariants();
    RandomSource random(seed);
    ActionGenerator generator(random, world);
    const QTemporaryDir folder;
    generator.SetPrinterFile(folder.filePath(QStringLiteral("page.pdf")));
    std::printf("random runs: --actions %d --seed %llu --locale %s (%zu invariants)\n", actions,
                static_cast<unsigned long long>(seed), qPrintable(locale), invariants.size());
    std::fflush(stdout);

    Figures figures;
    QElapsedTimer timer;
    timer.start();
    for (int done = 0; done < actions;) {
        Session session(world, invariants, locale);
        generator.Forget();
        ++figures.windows;
        auto outcome = session.failure() ? Session::Outcome::Failed : Session::Outcome::GoesOn;
        const int length = 1 + random.Below(kLongestSession);
        for (int i = 0; i < length && done < actions && outcome == Session::Outcome::GoesOn; ++i) {
            const QString line = generator.Next(session.view());
            outcome = session.Play(line);
            Note(figures, session, line);
            ++done;
            if (i % kActionsBetweenEvents == 0) {
                QCoreApplication::processEvents();
            }
        }
        figures.calculations += session.view().calculations;
        figures.ended += outcome == Session::Outcome::Ended ? 1 : 0;
        if (outcome == Session::Outcome::Failed) {
            std::printf("after %d actions of --seed %llu --locale %s\n", done,
                        static_cast<unsigned long long>(seed), qPrintable(locale));
            Report(world, invariants, locale, session);
            return 1;
        }
    }
    Print(figures, actions, static_cast<double>(timer.elapsed()) / 1000);
    return 0;
}

void PrintInvariants() {
    for (const Invariant& invariant : AllInvariants()) {
        std::printf("%-26.*s %.*s\n", static_cast<int>(invariant.name.size()),
                    invariant.name.data(), static_cast<int>(invariant.sentence.size()),
                    invariant.sentence.data());
    }
}

}  // namespace

}  // namespace tarvix

int main(int argc, char* argv[]) {
    // No screen is needed; QT_QPA_PLATFORM=xcb shows what goes on.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption actions(QStringLiteral("actions"), QStringLiteral("How many."),
                                     QStringLiteral("N"), QStringLiteral("10000"));
    const QCommandLineOption seed(QStringLiteral("seed"),
                                  QStringLiteral("The seed; a fresh one without."),
                                  QStringLiteral("S"));
    const QCommandLineOption locale(QStringLiteral("locale"), QStringLiteral("The number locale."),
                                    QStringLiteral("L"), QStringLiteral("en_US"));
    const QCommandLineOption list(QStringLiteral("list"), QStringLiteral("List the invariants."));
    parser.addHelpOption();
    parser.addOptions({actions, seed, locale, list});
    parser.process(application);
    if (parser.isSet(list)) {
        tarvix::PrintInvariants();
        return 0;
    }
    const quint64 seedValue = parser.isSet(seed) ? parser.value(seed).toULongLong()
                                                 : static_cast<quint64>(std::random_device{}());
    return tarvix::Run(parser.value(actions).toInt(), seedValue, parser.value(locale));
}
