#include "tests/window_script/script_player.h"

#include "app/window/system_locale.h"
#include "report/page/page_writer.h"
#include "tests/window_script/window_state.h"
#include "ui/windows/frm_splash.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QKeyEvent>
#include <QLocale>

#include <utility>

namespace tarvix {

namespace {

struct NamedKey {
    QLatin1String name;
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    const char* text = "";
};

const NamedKey kNamedKeys[] = {
    {QLatin1String("{Backspace}"), Qt::Key_Backspace, Qt::NoModifier, "\b"},
    {QLatin1String("{Delete}"), Qt::Key_Delete, Qt::NoModifier, "\x7f"},
    {QLatin1String("{Left}"), Qt::Key_Left, Qt::NoModifier, ""},
    {QLatin1String("{Right}"), Qt::Key_Right, Qt::NoModifier, ""},
    {QLatin1String("{Home}"), Qt::Key_Home, Qt::NoModifier, ""},
    {QLatin1String("{End}"), Qt::Key_End, Qt::NoModifier, ""},
    {QLatin1String("{Tab}"), Qt::Key_Tab, Qt::NoModifier, "\t"},
    {QLatin1String("{Enter}"), Qt::Key_Return, Qt::NoModifier, "\r"},
    {QLatin1String("{Esc}"), Qt::Key_Escape, Qt::NoModifier, "\x1b"},
    {QLatin1String("{SelectAll}"), Qt::Key_A, Qt::ControlModifier, "\x01"},
};

// The key code of a character key; 0 for characters that no such key stands for.
int KeyOf(QChar character) {
    const ushort code = character.toUpper().unicode();
    return code >= 0x20 && code < 0x7F ? code : 0;
}

QJsonObject BoxState(const ShownBox& box) {
    return {{QStringLiteral("title"), QString::fromStdString(box.title)},
            {QStringLiteral("text"), QString::fromStdString(box.text)},
            {QStringLiteral("style"), QString::fromStdString(box.style)},
            {QStringLiteral("default"), QString::fromStdString(box.defaultAnswer)}};
}

QJsonArray PageLines(const ReportPage& page) {
    QJsonArray lines;
    for (const std::string& line : PrintedLines(page)) {
        lines.append(QString::fromStdString(line));
    }
    return lines;
}

QString WithoutBlanks(QString text) {
    while (text.startsWith(QLatin1Char(' '))) {
        text.remove(0, 1);
    }
    while (text.endsWith(QLatin1Char(' '))) {
        text.chop(1);
    }
    return text;
}

}  // namespace

ScriptPlayer::ScriptPlayer(std::function<void(const QJsonObject&)> write, std::function<void()> end)
    : write_(std::move(write)),
      locale_(NumberLocaleOf(QLocale(QStringLiteral("en_US")))),
      desk_([this, end = std::move(end)](int exitStatus) {
          write_({{QStringLiteral("ended"),
                   exitStatus == 0 ? QStringLiteral("exit") : QStringLiteral("fatal")}});
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

ScriptPlayer::Words ScriptPlayer::Split(const QString& line) {
    const auto blank = line.indexOf(QLatin1Char(' '));
    return blank < 0 ? Words{line, {}} : Words{line.left(blank), line.mid(blank + 1)};
}

QString ScriptPlayer::Play(const QString& line) {
    QString command = line;
    while (command.startsWith(QLatin1Char(' '))) {
        command.remove(0, 1);
    }
    if (command.isEmpty() || command.startsWith(QLatin1Char('#'))) {
        return {};
    }
    const Words words = Split(command);
    const QString argument = WithoutBlanks(words.rest);
    const Words named = Split(words.rest);
    const bool isFirst = !std::exchange(started_, true);
    CloseOpenList(words.command);

    QString why;
    if (words.command == QLatin1String("locale")) {
        if (!isFirst || !SetLocale(argument)) {
            return QStringLiteral("locale: only as the first command, with a locale's name");
        }
    } else if (words.command == QLatin1String("click")) {
        why = Click(argument);
    } else if (words.command == QLatin1String("focus")) {
        why = Focus(argument);
    } else if (words.command == QLatin1String("type")) {
        why = Type(named.command, named.rest);
    } else if (words.command == QLatin1String("keys")) {
        Keys(words.rest);
    } else if (words.command == QLatin1String("paste")) {
        why = Paste(named.command, named.rest);
    } else if (words.command == QLatin1String("choose")) {
        why = Choose(named.command, named.rest);
    } else if (words.command == QLatin1String("answer")) {
        if (!Answer(words.rest)) {
            return QStringLiteral("answer: ok, cancel or text");
        }
    } else if (words.command == QLatin1String("customer")) {
        desk_.TypeIntoCustomerWindow(words.rest.split(QLatin1Char('|')));
    } else if (words.command == QLatin1String("printer")) {
        desk_.SetPrinter(argument);
    } else if (words.command == QLatin1String("picture")) {
        QCoreApplication::processEvents();
        if (!Window().grab().save(argument, "PNG")) {
            why = QStringLiteral("the file can't be written");
        }
    } else if (command.trimmed() == QLatin1String("state")) {
        State();
    } else {
        return QStringLiteral("no such command");
    }
    if (!why.isEmpty()) {
        write_({{QStringLiteral("refused"), line}, {QStringLiteral("why"), why}});
    }
    return {};
}

// A list that keys have opened is closed by whatever the user does next but look and press keys.
void ScriptPlayer::CloseOpenList(const QString& command) {
    QWidget* open = QApplication::activePopupWidget();
    if (open != nullptr && command != QLatin1String("keys") && command != QLatin1String("state") &&
        command != QLatin1String("picture")) {
        open->close();
    }
}

bool ScriptPlayer::SetLocale(const QString& name) {
    const QLocale locale(name);
    if (locale.name() != name && name != QLatin1String("C")) {
        return false;
    }
    locale_ = NumberLocaleOf(locale);
    return true;
}

QString ScriptPlayer::Unusable(const NamedControl* control) const {
    if (control == nullptr) {
        return QStringLiteral("there is no such control");
    }
    if (control->action != nullptr) {
        return control->action->isEnabled() ? QString() : QStringLiteral("it is disabled");
    }
    const MainForm& form = window_->form();
    if (!form.IsVisible(*control->widget)) {
        return QStringLiteral("it is hidden");
    }
    return form.IsEnabled(*control->widget) ? QString() : QStringLiteral("it is disabled");
}

void ScriptPlayer::GiveFocus(QWidget& widget) {
    widget.setFocus(Qt::TabFocusReason);
    // Typing begins with the whole text selected, also in the field that has the focus already.
    if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
        field->selectAll();
    }
}

QString ScriptPlayer::Click(const QString& name) {
    const NamedControl* control = Form().Find(name);
    QString why = Unusable(control);
    if (!why.isEmpty()) {
        return why;
    }
    if (control->action != nullptr) {
        if (control->action->menu() == nullptr) {
            control->action->trigger();
        }
        return {};
    }
    auto* button = qobject_cast<QAbstractButton*>(control->widget);
    if (button == nullptr) {
        return QStringLiteral("it can't be clicked");
    }
    button->setFocus(Qt::MouseFocusReason);
    button->click();
    return {};
}

QString ScriptPlayer::Focus(const QString& name) {
    const NamedControl* control = Form().Find(name);
    QString why = Unusable(control);
    if (why.isEmpty() &&
        (control->widget == nullptr || control->widget->focusPolicy() == Qt::NoFocus)) {
        why = QStringLiteral("it takes no focus");
    }
    if (why.isEmpty()) {
        GiveFocus(*control->widget);
    }
    return why;
}

NumericField* ScriptPlayer::EditableField(const QString& name, QString& why) {
    const NamedControl* control = Form().Find(name);
    why = Unusable(control);
    if (!why.isEmpty()) {
        return nullptr;
    }
    // Only the numeric fields can be typed into; the backdrops are text boxes, too.
    auto* field = dynamic_cast<NumericField*>(control->widget);
    if (field == nullptr || field->Locked()) {
        why = QStringLiteral("it can't be typed into");
        return nullptr;
    }
    return field;
}

QString ScriptPlayer::Type(const QString& name, const QString& text) {
    QString why;
    if (NumericField* field = EditableField(name, why)) {
        GiveFocus(*field);
        for (const QChar character : text) {
            PressKey(KeyOf(character), Qt::NoModifier, QString(character));
        }
    }
    return why;
}

QString ScriptPlayer::Paste(const QString& name, const QString& text) {
    QString why;
    if (NumericField* field = EditableField(name, why)) {
        GiveFocus(*field);
        field->insert(text);
    }
    return why;
}

QString ScriptPlayer::Choose(const QString& name, const QString& entry) {
    const NamedControl* control = Form().Find(name);
    QString why = Unusable(control);
    if (!why.isEmpty()) {
        return why;
    }
    auto* list = dynamic_cast<DropDownList*>(control->widget);
    if (list == nullptr) {
        return QStringLiteral("it is no list");
    }
    int index = list->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0 && entry.startsWith(QLatin1Char('#'))) {
        bool isNumber = false;
        index = QStringView(entry).mid(1).toInt(&isNumber);
        index = isNumber && index < list->count() ? index : -1;
    }
    if (index < 0) {
        return QStringLiteral("there is no such entry");
    }
    list->setFocus(Qt::MouseFocusReason);
    list->SetListIndex(index);
    return {};
}

void ScriptPlayer::Keys(const QString& text) {
    Window();
    for (qsizetype at = 0; at < text.size();) {
        const NamedKey* named = nullptr;
        for (const NamedKey& key : kNamedKeys) {
            if (QStringView(text).mid(at).startsWith(key.name)) {
                named = &key;
            }
        }
        if (named != nullptr) {
            PressKey(named->key, named->modifiers, QString::fromLatin1(named->text));
            at += named->name.size();
        } else {
            PressKey(KeyOf(text.at(at)), Qt::NoModifier, QString(text.at(at)));
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

bool ScriptPlayer::Answer(const QString& answer) {
    const Words words = Split(answer);
    if (WithoutBlanks(answer) == QLatin1String("ok")) {
        desk_.QueueAnswer({true, std::nullopt});
    } else if (WithoutBlanks(answer) == QLatin1String("cancel")) {
        desk_.QueueAnswer({false, std::nullopt});
    } else if (words.command == QLatin1String("text")) {
        desk_.QueueAnswer({true, words.rest.toStdString()});
    } else {
        return false;
    }
    return true;
}

void ScriptPlayer::State() {
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
    const int runs = window.calculationRuns();
    QJsonObject state{{QStringLiteral("controls"), ControlStates(Form())},
                      {QStringLiteral("boxes"), boxes},
                      {QStringLiteral("calculations"), runs - std::exchange(reportedRuns_, runs)},
                      {QStringLiteral("pages"), pages.size()},
                      {QStringLiteral("focus"),
                       active != nullptr && Form().Find(active->objectName()) ? active->objectName()
                                                                              : QString()}};
    if (!pages.isEmpty()) {
        state.insert(QStringLiteral("page_lines"), pages);
    }
    write_(state);
}

}  // namespace tarvix
