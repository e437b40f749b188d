// The floor of a start: a bare window with one text field echoed into a second.
#include "bench/stop_after.h"

#include <QLineEdit>
#include <QVBoxLayout>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit field;
    QLineEdit echo;
    layout.addWidget(&field);
    layout.addWidget(&echo);
    QObject::connect(&field, &QLineEdit::textChanged, &echo, &QLineEdit::setText);
    tarvix::StopAfterFirstPaint(window, QApplication::arguments());
    window.show();
    field.setFocus();
    return QApplication::exec();
}
