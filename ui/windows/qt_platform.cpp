#include "ui/windows/qt_platform.h"

#include "ui/controls/readable_palette.h"

#include <QApplication>
#include <QDateTime>
#include <QInputDialog>
#include <QMessageBox>
#include <QThread>
#include <QTime>

#include <cstdio>
#include <cstdlib>

namespace tarvix {

namespace {

QMessageBox::Icon IconOf(BoxStyle style) {
    switch (style) {
        case BoxStyle::Critical:
            return QMessageBox::Critical;
        case BoxStyle::Exclamation:
            return QMessageBox::Warning;
        case BoxStyle::Information:
            break;
    }
    return QMessageBox::Information;
}

// Carriage returns belong to the line breaks of the text and are not shown.
QString Displayed(const std::string& text) {
    return QString::fromStdString(text).remove(QLatin1Char('\r'));
}

// Lines with tabs become the rows of a table, so that what follows the tabs stands in a column
// whatever the font.
QString WithColumns(const QString& text) {
    QString page;
    bool isInTable = false;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const bool isRow = line.contains(QLatin1Char('\t'));
        if (isRow != isInTable) {
            page += isRow ? QStringLiteral("<table cellspacing='0'>") : QStringLiteral("</table>");
            isInTable = isRow;
        }
        QString shown = line.toHtmlEscaped();
        if (isRow) {
            shown.replace(QLatin1Char('\t'), QStringLiteral("&nbsp;&nbsp;</td><td>"));
            page += QStringLiteral("<tr><td>%1</td></tr>").arg(shown);
        } else {
            page += QStringLiteral("<p style='margin: 0'>%1</p>")
                        .arg(shown.isEmpty() ? QStringLiteral("&nbsp;") : shown);
        }
    }
    return isInTable ? page + QStringLiteral("</table>") : page;
}

}  // namespace

int QtPlatform::ShowMessageBox(const MessageBoxRequest& request) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(QString::fromStdString(request.title));
    const QString text = Displayed(request.text);
    const bool hasColumns = text.contains(QLatin1Char('\t'));
    box.setTextFormat(hasColumns ? Qt::RichText : Qt::PlainText);
    box.setText(hasColumns ? WithColumns(text) : text);
    box.setIcon(IconOf(request.style));
    const bool canCancel = request.buttons == BoxButtons::OkCancel;
    box.setStandardButtons(canCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    box.setDefaultButton(QMessageBox::Ok);
    // However it is closed, a box with nothing but OK answers OK.
    return box.exec() == QMessageBox::Ok ? kAnswerOk : kAnswerCancel;
}

std::optional<std::string> QtPlatform::ShowInputBox(const InputBoxRequest& request) {
    QInputDialog box(QApplication::activeWindow());
    box.setPalette(ReadablePalette(QApplication::palette()));
    box.setWindowTitle(QString::fromStdString(request.title));
    box.setLabelText(QString::fromStdString(request.prompt));
    box.setTextValue(QString::fromStdString(request.defaultAnswer));
    const bool confirmed = box.exec() == QDialog::Accepted;
    return confirmed ? std::optional(box.textValue().toStdString()) : std::nullopt;
}

int QtPlatform::CurrentSecond() {
    return QTime::currentTime().second();
}

void QtPlatform::SleepUntilNextSecond() {
    // Every time zone is a whole number of seconds away from UTC, which costs no look into one.
    const qint64 sinceSecond = QDateTime::currentMSecsSinceEpoch() % 1000;
    QThread::msleep(static_cast<unsigned long>(1000 - sinceSecond));
}

void QtPlatform::EndProgram(int exitStatus) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
    }
    // No destructor of an object that a handler is still using runs.
    std::fflush(nullptr);
    std::_Exit(exitStatus);
}

}  // namespace tarvix
