#include "tests/window_script/script_player.h"

#include "app/window/system_locale.h"
#include "report/page/page_writer.h"
#include "tests/window_script/window_state.h"
#include "ui/windows/frm_splash.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QHash>
#include <QJsonArray>
#include <QKeyEvent>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarvix {

namespace {

// A user could not do that.
struct Refused {
    QString why;
};

// Nothing that a script can say.
struct NoCommand {
    QString why;
};

struct NamedKey {
    QLatin1String name;
    int key = 0;
    const char* text = "";
    Qt::KeyboardModifiers modifiers = {};
};

const NamedKey kNamedKeys[] = {
    {QLatin1String("{Backspace}"), Qt::Key_Backspace, "\b"},
    {QLatin1String("{Delete}"), Qt::Key_Delete, "\x7f"},
    {QLatin1String("{Left}"), Qt::Key_Left},
    {QLatin1String("{Right}"), Qt::Key_Right},
    {QLatin1String("{Home}"), Qt::Key_Home},
    {QLatin1String("{End}"), Qt::Key_End},
    {QLatin1String("{Tab}"), Qt::Key_Tab, "\t"},
    {QLatin1String("{Enter}"), Qt::Key_Return, "\r"},
    {QLatin1String("{Esc}"), Qt::Key_Escape, "\x1b"},
    {QLatin1String("{SelectAll}"), Qt::Key_A, "\x01", Qt::ControlModifier},
};

// The key code of a character key; 0 for characters that no such key stands for.
int KeyOf(QChar character) {
    const ushort code = character.toUpper().unicode();
    return code >= 0x20 && code < 0x7F ? code : 0;
}

// What stands before the first blank, and what after it.
std::pair<QString, QString> Split(const QString& text) {
    return {text.section(' ', 0, 0), text.section(' ', 1)};
}

QJsonObject BoxState(const ShownBox& box) {
    return {{"title", QString::fromStdString(box.title)},
            {"text", QString::fromStdString(box.text)},
            {"style", QString::fromStdString(box.style)},
            {"default", QString::fromStdString(box.defaultAnswer)}};
}

QJsonArray PageLines(const ReportPage& page) {
    QJsonArray lines;
    for (const std::string& line : PrintedLines(page)) {
        lines.append(QString::fromStdString(line));
    }
    return lines;
}

}  // namespace

ScriptPlayer::ScriptPlayer(std::function<void(const QJsonObject&)> write, std::function<void()> end)
    : write_(std::move(write)),
      locale_(NumberLocaleOf(QLocale("en_US"))),
      desk_([this, end = std::move(end)](int exitStatus) {
          write_({{"ended", exitStatus == 0 ? "exit" : "fatal"}});
          end();
      }) {}

frmTarvix& ScriptPlayer::Window() {
    if (!window_) {
        module_ = std::make_unique<Module1>(desk_, locale_);
        module_->AppPath = AppPathOf(QCoreApplication::applicationDirPath());
        window_ = std::make_unique<frmTarvix>(*module_, desk_);
        window_->Form_Load();
        window_->show();
        window_->activateWindow();
        // Where no window manager activates windows, the window's own focus is all there is.
        QElapsedTimer waiting;
        waiting.start();
        while (!window_->isActiveWindow() && !waiting.hasExpired(2000)) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
    }
    return *window_;
}

QString ScriptPlayer::Play(const QString& line) {
    static const QHash<QString, void (ScriptPlayer::*)(const QString& rest)> kCommands{
        {"locale", &ScriptPlayer::SetLocale},  {"click", &ScriptPlayer::Click},
        {"focus", &ScriptPlayer::Focus},       {"type", &ScriptPlayer::Type},
        {"keys", &ScriptPlayer::Keys},         {"paste", &ScriptPlayer::Paste},
        {"choose", &ScriptPlayer::Choose},     {"answer", &ScriptPlayer::Answer},
        {"customer", &ScriptPlayer::Customer}, {"printer", &ScriptPlayer::Printer},
        {"picture", &ScriptPlayer::Picture},   {"state", &ScriptPlayer::State},
    };
    static const QRegularExpression kBlanks("^ +");
    const QString command = QString(line).remove(kBlanks);
    if (command.isEmpty() || command.startsWith('#')) {
        return {};
    }
    const auto [word, rest] = Split(command);
    const auto play = kCommands.find(word.trimmed());
    if (play == kCommands.end()) {
        return "no such command";
    }
    CloseOpenList(word);
    try {
        (this->**play)(rest);
    } catch (const Refused& refusal) {
        write_({{"refused", line}, {"why", refusal.why}});
    } catch (const NoCommand& fault) {
        return fault.why;
    }
    started_ = true;
    return {};
}

// A list that keys have opened is closed by whatever the user does next but look and press keys.
void ScriptPlayer::CloseOpenList(const QString& command) {
    QWidget* open = QApplication::activePopupWidget();
    if (open != nullptr && !QStringList{"keys", "state", "picture"}.contains(command)) {
        open->close();
    }
}

void ScriptPlayer::SetLocale(const QString& rest) {
    const QString name = rest.trimmed();
    const QLocale locale(name);
    if (started_ || (locale.name() != name && name != "C")) {
        throw NoCommand{"locale: only as the first command, with a locale's name"};
    }
    locale_ = NumberLocaleOf(locale);
}

const NamedControl& ScriptPlayer::Usable(const QString& name) {
    const NamedControl* control = Form().Find(name);
    if (control == nullptr) {
        throw Refused{"there is no such control"};
    }
    if (control->action == nullptr && !Form().IsVisible(*control->widget)) {
        throw Refused{"it is hidden"};
    }
    if (control->action != nullptr ? !control->action->isEnabled()
                                   : !Form().IsEnabled(*control->widget)) {
        throw Refused{"it is disabled"};
    }
    return *control;
}

void ScriptPlayer::GiveFocus(QWidget& widget) {
    widget.setFocus(Qt::TabFocusReason);
    // Typing begins with the whole text selected, also in the field that has the focus already.
    if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
        field->selectAll();
    }
}

void ScriptPlayer::Click(const QString& rest) {
    const NamedControl& control = Usable(rest.trimmed());
    if (control.action != nullptr) {
        if (control.action->menu() == nullptr) {
            control.action->trigger();
        }
        return;
    }
    auto* button = qobject_cast<QAbstractButton*>(control.widget);
    if (button == nullptr) {
        throw Refused{"it can't be clicked"};
    }
    button->setFocus(Qt::MouseFocusReason);
    button->click();
}

void ScriptPlayer::Focus(const QString& rest) {
    const NamedControl& control = Usable(rest.trimmed());
    if (control.widget == nullptr || control.widget->focusPolicy() == Qt::NoFocus) {
        throw Refused{"it takes no focus"};
    }
    GiveFocus(*control.widget);
}

NumericField& ScriptPlayer::FocusedField(const QString& name) {
    // Only the numeric fields can be typed into; the backdrops are text boxes, too.
    auto* field = dynamic_cast<NumericField*>(Usable(name).widget);
    if (field == nullptr || field->Locked()) {
        throw Refused{"it can't be typed into"};
    }
    GiveFocus(*field);
    return *field;
}

void ScriptPlayer::Type(const QString& rest) {
    const auto [name, text] = Split(rest);
    FocusedField(name);
    for (const QChar character : text) {
        PressKey(KeyOf(character), Qt::NoModifier, character);
    }
}

void ScriptPlayer::Paste(const QString& rest) {
    const auto [name, text] = Split(rest);
    FocusedField(name).insert(text);
}

void ScriptPlayer::Choose(const QString& rest) {
    const auto [name, entry] = Split(rest);
    auto* list = dynamic_cast<DropDownList*>(Usable(name).widget);
    if (list == nullptr) {
        throw Refused{"it is no list"};
    }
    int index = list->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0 && entry.startsWith('#')) {
        bool isNumber = false;
        index = QStringView(entry).mid(1).toInt(&isNumber);
        index = isNumber && index < list->count() ? index : -1;
    }
    if (index < 0) {
        throw Refused{"there is no such entry"};
    }
    list->setFocus(Qt::MouseFocusReason);
    list->SetListIndex(index);
}

void ScriptPlayer::Keys(const QString& text) {
    Window();
    for (qsizetype at = 0; at < text.size();) {
        const auto* const named = std::ranges::find_if(kNamedKeys, [&](const NamedKey& key) {
            return QStringView(text).mid(at).startsWith(key.name);
        });
        if (named != std::end(kNamedKeys)) {
            PressKey(named->key, named->modifiers, named->text);
            at += named->name.size();
        } else {
            PressKey(KeyOf(text.at(at)), Qt::NoModifier, text.at(at));
            ++at;
        }
    }
}

void ScriptPlayer::PressKey(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    // An open list takes the keys.
    QWidget* target = Window().focusWidget();
    if (QWidget* open = QApplication::activePopupWidget()) {
        target = open->focusWidget() != nullptr ? open->focusWidget() : open;
    }
    if (target == nullptr) {
        target = &Window();
    }
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(target, &release);
}

void ScriptPlayer::Answer(const QString& answer) {
    const auto [word, text] = Split(answer);
    if (word == "text") {
        desk_.QueueAnswer({true, text.toStdString()});
    } else if (answer.trimmed() == "ok" || answer.trimmed() == "cancel") {
        desk_.QueueAnswer({answer.trimmed() == "ok", std::nullopt});
    } else {
        throw NoCommand{"answer: ok, cancel or text"};
    }
}

void ScriptPlayer::Customer(const QString& lines) {
    desk_.TypeIntoCustomerWindow(lines.split('|'));
}

void ScriptPlayer::Printer(const QString& file) {
    desk_.SetPrinter(file.trimmed());
}

void ScriptPlayer::Picture(const QString& file) {
    QCoreApplication::processEvents();
    if (!Window().grab().save(file.trimmed(), "PNG")) {
        throw Refused{"the file can't be written"};
    }
}

void ScriptPlayer::State(const QString& /*rest*/) {
    const frmTarvix& window = Window();
    QJsonArray boxes;
    for (const ShownBox& box : desk_.TakeBoxes()) {
        boxes.append(BoxState(box));
    }
    QJsonArray pages;
    for (const ReportPage& page : desk_.TakePages()) {
        pages.append(PageLines(page));
    }
    const QWidget* active = Form().ActiveControl();
    const bool isNamed = active != nullptr && Form().Find(active->objectName()) != nullptr;
    const int runs = window.calculationRuns();
    QJsonObject state{{"controls", ControlStates(Form())},
                      {"boxes", boxes},
                      {"calculations", runs - std::exchange(reportedRuns_, runs)},
                      {"pages", pages.size()},
                      {"focus", isNamed ? active->objectName() : QString()}};
    if (!pages.isEmpty()) {
        state.insert("page_lines", pages);
    }
    write_(state);
}

}  // namespace tarvix
