// The real main window, without the splash before it, for journeys that look at many screens.
//
// Reads a line at a time from standard input and answers each with a line of JSON:
//   measure          what of the form is seen, in pixels of the form
//   tour             gives the focus to every control that the Tab key visits; what was not seen
//   then anything else    a line of the script player
#include "tests/window_script/script_player.h"
#include "ui/controls/frame_box.h"
#include "ui/form/form_view.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenuBar>
#include <QScrollBar>
#include <QWindow>

#include <iostream>
#include <string>

namespace {

using tarvix::FormView;
using tarvix::frmTarvix;
using tarvix::MainForm;

constexpr int kPatienceMs = 30'000;

FormView& ViewOf(const frmTarvix& window) {
    return *dynamic_cast<FormView*>(window.centralWidget());
}

void WaitForWindow(const frmTarvix& window) {
    const QDeadlineTimer deadline(kPatienceMs);
    while (!window.windowHandle()->isExposed() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
    QCoreApplication::processEvents();
}

bool IsSeenWhole(const frmTarvix& window, const QWidget& widget) {
    return window.rect().contains(QRect(widget.mapTo(&window, QPoint()), widget.size()));
}

QJsonArray Pair(const QSize& size) {
    return {size.width(), size.height()};
}

QJsonObject Measure(frmTarvix& window) {
    FormView& view = ViewOf(window);
    const MainForm& form = window.form();
    const QScrollArea& area = view.scrollArea();
    return {
        {"whole", Pair(form.WholeSize() + QSize(0, window.menuBar()->height()))},
        {"window", Pair(window.size())},
        {"least", Pair(window.minimumSize())},
        {"scale", window.devicePixelRatioF()},
        {"across", area.horizontalScrollBar()->isVisible()},
        {"down", area.verticalScrollBar()->isVisible()},
        {"message", IsSeenWhole(window, *form.lblMsg)},
        {"last", view.Shows(*form.cboPipeIDUnit) && view.Shows(*form.fraBeta)},
        {"font", QFontInfo(window.font()).family()},
    };
}

const QWidget* FrameAround(const QWidget& control) {
    const QWidget* around = control.parentWidget();
    while (around != nullptr && dynamic_cast<const tarvix::FrameBox*>(around) == nullptr) {
        around = around->parentWidget();
    }
    return around;
}

// The caption of the frame around a control is seen, where frame and control find room together.
bool IsCaptionSeen(FormView& view, const QWidget& control) {
    const QWidget* frame = FrameAround(control);
    if (frame == nullptr) {
        return true;
    }
    const QWidget& viewport = *view.scrollArea().viewport();
    const QPoint top = frame->mapTo(&viewport, QPoint());
    const int bottom = control.mapTo(&viewport, QPoint(0, control.height())).y();
    const int right = control.mapTo(&viewport, QPoint(control.width(), 0)).x();
    const bool fits = bottom - top.y() <= viewport.height() && right - top.x() <= viewport.width();
    return !fits || viewport.rect().contains(top);
}

// The control is seen whole, or as much from its beginning as finds room.
bool IsSeen(FormView& view, const QWidget& control) {
    const QWidget& viewport = *view.scrollArea().viewport();
    const QRect expected(control.mapTo(&viewport, QPoint()),
                         control.size().boundedTo(viewport.size()));
    return viewport.rect().contains(expected);
}

QJsonObject Tour(frmTarvix& window) {
    FormView& view = ViewOf(window);
    const MainForm& form = window.form();
    QJsonArray unseen;
    int visited = 0;
    for (const auto& control : form.Controls()) {
        QWidget* widget = control.widget;
        if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0 ||
            !widget->isVisible() || !widget->isEnabled()) {
            continue;
        }
        widget->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        ++visited;
        if (!IsSeen(view, *widget) || !IsCaptionSeen(view, *widget) ||
            !IsSeenWhole(window, *form.lblMsg)) {
            unseen.append(control.name);
        }
    }
    return {{"visited", visited}, {"unseen", unseen}};
}

void Write(const QJsonObject& line) {
    std::cout << QJsonDocument(line).toJson(QJsonDocument::Compact).toStdString() << std::endl;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    tarvix::ScriptPlayer player(Write, [] { QCoreApplication::quit(); });
    frmTarvix& window = player.Window();
    WaitForWindow(window);
    std::string line;
    while (std::getline(std::cin, line)) {
        QCoreApplication::processEvents();
        if (line == "measure") {
            Write(Measure(window));
        } else if (line == "tour") {
            Write(Tour(window));
        } else {
            const QString why = player.Play(QString::fromStdString(line));
            QCoreApplication::processEvents();
            Write({{"played", why.isEmpty()}, {"why", why}});
        }
    }
    return 0;
}
