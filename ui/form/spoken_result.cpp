#include "ui/form/spoken_result.h"

#include "ui/form/accessible_names.h"

#include <QTimerEvent>

#include <utility>

namespace tarvix {

namespace {

// Milliseconds without a new result that count as a pause in typing. Readers are silenced by every
// key; what is said earlier would be cut off by the next digit.
constexpr int kPauseMs = 1000;

QString Spoken(const MainForm& form, const NumericField& field) {
    const FieldWords words = WordsOf(form, field);
    const QString unit = words.unit.isEmpty() ? QString() : QLatin1Char(' ') + words.unit;
    return words.quantity + QLatin1Char(' ') + field.text() + unit;
}

}  // namespace

QString SolvedValueInWords(const MainForm& form) {
    const NumericField* solved = form.SolvedField();
    if (solved == nullptr || solved->text().isEmpty()) {
        return {};
    }
    const QString bore = solved == form.txtBeta && !form.txtOriBoreDia->text().isEmpty()
                             ? QStringLiteral(", ") + Spoken(form, *form.txtOriBoreDia)
                             : QString();
    return Spoken(form, *solved) + bore;
}

SpokenResult::SpokenResult(const MainForm& form, Announcements& announcements)
    : form_(form), announcements_(announcements) {
    for (NumericField* field : {form.txtFlow, form.txtDeltaP, form.txtBeta, form.txtOriBoreDia}) {
        connect(field, &QLineEdit::textChanged, this, [this] {
            if (announcements_.AreHeard()) {
                pause_.start(kPauseMs, this);
            }
        });
    }
}

void SpokenResult::timerEvent(QTimerEvent* event) {
    if (event->timerId() != pause_.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    pause_.stop();
    const QString words = SolvedValueInWords(form_);
    if (std::exchange(said_, words) != words) {
        announcements_.Say(words);
    }
}

}  // namespace tarvix
