// Reads a script of user actions from standard input and writes JSON lines on standard output.
#include "tests/window_script/script_player.h"

#include <QApplication>
#include <QJsonDocument>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const auto write = [](const QJsonObject& line) {
        std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
    };
    // As the program would, in the middle of a handler; nothing of the window is taken down.
    const auto end = [] { std::_Exit(0); };
    tarvix::ScriptPlayer player(write, end);

    std::string line;
    for (int number = 1; std::getline(std::cin, line); ++number) {
        const QString error = player.Play(QString::fromStdString(line));
        if (!error.isEmpty()) {
            std::fprintf(stderr, "line %d: %s\n", number, qPrintable(error));
            return 2;
        }
    }
    return 0;
}
