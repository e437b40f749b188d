// Draws the main window in every state of its layout, for eyes to judge.
//
// window_pictures FOLDER [FONT [light|dark [SIZE]]] writes a PNG for each state into FOLDER.
#include "tests/window/desktop_colors.h"
#include "tests/window/window_states.h"

#include <QApplication>
#include <QDir>

#include <cstdio>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QDir folder(arguments.value(1));
    if (arguments.size() < 2 || !folder.mkpath(".")) {
        std::fputs("usage: window_pictures FOLDER [FONT [light|dark [SIZE]]]\n", stderr);
        return 2;
    }
    if (arguments.size() > 2) {
        QApplication::setFont(QFont(arguments.at(2), arguments.value(4, "10").toInt()));
    }
    if (arguments.value(3) == "dark") {
        QApplication::setPalette(tarvix::testing::DarkPalette());
    }
    tarvix::testing::StatePlayer player;
    int number = 0;
    for (const auto& state : tarvix::testing::AllWindowStates()) {
        const QString why = player.Play(state);
        if (!why.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(why));
            return 1;
        }
        QString name = state.name;
        name.replace("; ", "-").replace(": ", "-").replace(", ", "-").replace(' ', '_');
        const QString file = QString("%1-%2.png").arg(++number, 3, 10, QLatin1Char('0')).arg(name);
        if (!player.window().grab().save(folder.filePath(file))) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
