#include "ui/form/form_view.h"

#include "ui/controls/frame_box.h"

#include <QApplication>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tarvix {

namespace {

// Pixels between a control that is scrolled into view and the edge of the view.
constexpr int kMargin = 6;

const FrameBox* FrameAround(const QWidget& control) {
    for (const QWidget* around = control.parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        if (const auto* frame = dynamic_cast<const FrameBox*>(around)) {
            return frame;
        }
    }
    return nullptr;
}

// Scrolls, and when its room changes keeps the control that has the focus in sight, unless the user
// has scrolled away from it.
class FormScrollArea : public QScrollArea {
  public:
    explicit FormScrollArea(FormView* view) : QScrollArea(view), view_(view) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        const QWidget* focused = window()->focusWidget();
        const bool isOnCanvas = focused != nullptr && view_->canvas().isAncestorOf(focused);
        const bool wasSeen =
            isOnCanvas &&
            (!event->oldSize().isValid() ||
             QRect(QPoint(), event->oldSize())
                 .contains(QRect(focused->mapTo(viewport(), QPoint()), focused->size())));
        QScrollArea::resizeEvent(event);
        if (wasSeen) {
            view_->BringIntoView(*focused);
        }
    }

  private:
    FormView* view_;
};

}  // namespace

FormView::FormView(QWidget* parent)
    : QWidget(parent),
      scrollArea_(new FormScrollArea(this)),
      canvas_(new QWidget),
      footer_(new QWidget(this)) {
    scrollArea_->setWidget(canvas_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(scrollArea_, 1);
    layout->addWidget(footer_);
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && canvas_->isAncestorOf(now)) {
            BringIntoView(*now);
        }
    });
}

void FormView::BringIntoView(const QWidget& control) {
    const QRect needed(control.mapTo(canvas_, QPoint()), control.size());
    QRect wanted = needed.adjusted(-kMargin, -kMargin, kMargin, kMargin);
    if (const FrameBox* frame = FrameAround(control)) {
        wanted |= QRect(frame->mapTo(canvas_, QPoint()), QSize(1, 1));
    }
    const QSize view = scrollArea_->viewport()->size();
    QScrollBar& across = *scrollArea_->horizontalScrollBar();
    QScrollBar& down = *scrollArea_->verticalScrollBar();
    for (const QRect& shown : {wanted, needed}) {
        across.setValue(ScrolledTo(across.value(), view.width(), shown.left(), shown.right() + 1));
        down.setValue(ScrolledTo(down.value(), view.height(), shown.top(), shown.bottom() + 1));
    }
}

bool FormView::Shows(const QWidget& control, int below) const {
    const QWidget* viewport = scrollArea_->viewport();
    const QRect seen = viewport->rect().adjusted(0, 0, 0, below);
    return seen.contains(QRect(control.mapTo(viewport, QPoint()), control.size()));
}

}  // namespace tarvix
