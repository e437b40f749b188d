// The floor of a start: a bare window with one text field echoed into a second. With the argument
// --windows WIDTHxHEIGHT WIDTHxHEIGHT it shows two windows as large as the program's splash and
// main window, one after the other, with nothing in them but that field.
#include "bench/stop_after.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

QSize SizeOf(const QString& text) {
    const QStringList sides = text.split(QLatin1Char('x'));
    return {sides.value(0).toInt(), sides.value(1).toInt()};
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const auto windows = arguments.indexOf(QStringLiteral("--windows"));
    QLabel first(QStringLiteral("0.5"), nullptr, Qt::FramelessWindowHint);
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit field;
    QLineEdit echo;
    layout.addWidget(&field);
    layout.addWidget(&echo);
    QObject::connect(&field, &QLineEdit::textChanged, &echo, &QLineEdit::setText);
    const auto showWindow = [&] {
        first.hide();
        tarvix::StopAfterFirstPaint(window, arguments);
        window.show();
        field.setFocus();
    };
    if (windows < 0) {
        showWindow();
    } else {
        first.setFixedSize(SizeOf(arguments.value(windows + 1)));
        window.resize(SizeOf(arguments.value(windows + 2)));
        new tarvix::FirstPaint(first, showWindow);
        first.show();
    }
    return QApplication::exec();
}
