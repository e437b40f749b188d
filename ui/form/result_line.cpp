#include "ui/form/result_line.h"

#include "ui/form/spoken_result.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>

namespace tarvix {

namespace {

// Posted while a handler runs or the form scrolls, so it arrives when both have come to rest.
constexpr auto kUpdate = static_cast<QEvent::Type>(QEvent::User + 1);

}  // namespace

ResultLine::ResultLine(const MainForm& form, FormView& view)
    : QLabel(&view.footer()), form_(form), view_(view) {
    // A role without a name, which is nothing to speak.
    SetAccessibleRole(*this, QAccessible::StaticText);
    setObjectName(QStringLiteral("resultLine"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setIndent(fontMetrics().averageCharWidth());
    hide();
    dynamic_cast<QBoxLayout&>(*view.footer().layout()).insertWidget(0, this);

    for (const QScrollBar* bar :
         {view.scrollArea().horizontalScrollBar(), view.scrollArea().verticalScrollBar()}) {
        connect(bar, &QScrollBar::valueChanged, this, [this] { UpdateLater(); });
        connect(bar, &QScrollBar::rangeChanged, this, [this] { UpdateLater(); });
    }
    for (const NumericField* field :
         {form.txtFlow, form.txtDeltaP, form.txtBeta, form.txtOriBoreDia}) {
        connect(field, &QLineEdit::textChanged, this, [this] { UpdateLater(); });
    }
    for (const NamedControl& control : form.Controls()) {
        if (const auto* option = qobject_cast<QAbstractButton*>(control.widget)) {
            connect(option, &QAbstractButton::clicked, this, [this] { UpdateLater(); });
        } else if (const auto* list = qobject_cast<QComboBox*>(control.widget)) {
            connect(list, &QComboBox::activated, this, [this] { UpdateLater(); });
        }
    }
}

void ResultLine::UpdateLater() {
    if (!willUpdate_) {
        willUpdate_ = true;
        QCoreApplication::postEvent(this, new QEvent(kUpdate));
    }
}

bool ResultLine::event(QEvent* event) {
    if (event->type() == kUpdate) {
        willUpdate_ = false;
        Update();
        return true;
    }
    return QLabel::event(event);
}

void ResultLine::Update() {
    const NumericField* solved = form_.SolvedField();
    // The line itself, and the scroll bars that it brings, must not be what hides the field.
    const int own = isVisible() ? height() + parentWidget()->layout()->spacing() : 0;
    const QSize room = view_.size() - QSize(0, parentWidget()->height() - own);
    const QSize whole = form_.canvas().minimumSize();
    const bool scrolls = whole.width() > room.width() || whole.height() > room.height();
    const bool isMissed =
        scrolls && solved != nullptr && !solved->text().isEmpty() && !view_.Shows(*solved, own);
    if (isMissed) {
        setText(SolvedValueInWords(form_));
    }
    setVisible(isMissed);
}

}  // namespace tarvix
