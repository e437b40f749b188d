#include "ui/windows/about_box.h"

#include "report/page/maker.h"
#include "ui/controls/frame_box.h"

#include <QFont>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <string_view>

namespace tarvix {

namespace {

constexpr int kTitleLabel = 17;
constexpr int kWebSiteLabel = 16;

struct LabelText {
    int label;
    std::string_view text;
};

// In the order in which they are set: the first texts of Label5 to Label9 are replaced at once.
constexpr LabelText kTexts[] = {
    {1, "The Tarvix is made available from Brindle Measurement and Control, Inc."},
    {2,
     "to assist in the calculation of orifice diameters.  For a given set of input variables, "
     "the"},
    {3, "Tarvix will display the respective beta value (ratio of orifice diameter to"},
    {4, "pipe diameter), pressure differential or flow rate."},
    {5, "Depending upon flowing conditions, the beta ratio has an accuracy of ±1% for liquids"},
    {6, "and ±2% for gases.  For gases that do not follow the ideal gas laws (such as Ethylene,"},
    {7, "Carbon Dioxide, etc.), the inaccuracy of the calculations will be greater. Also, for gas"},
    {8, "applications with high operating pressures, greater inaccuracies will occur if no"},
    {9, "compressibility correction factor is entered."},
    {5, "Values for the beta ratio are approximate, typically within 2% - 5% for gases and steam,"},
    {6, "and 1% for liquids.  The ASME MFC-3M 1989 equation is used in this program along with"},
    {7, "several assumed factors, which are noted on the printout.  This program does not take"},
    {8, "into consideration two calculation variables - the Reynolds Number correction and the"},
    {9, "expansion factor.  For gas calculations with high operating pressures, greater"},
    {18, "inaccuracies will occur if no compressibility correction factor is entered"},
    {10, "The Tarvix is provided for estimation purposes only.  If it is necessary to"},
    {11,
     "have a closely specified pressure differential, flow rate, or bore diameter, please "
     "consult"},
    {12, "your Brindle representative for assistance."},
    {13, "Final selection decisions may be influenced by information not evaluated by the Tarvix"},
    {14, "and final selection responsibility is that of the individual user."},
    {15, "For further information on Brindle products and services, visit our web site at"},
    {kWebSiteLabel, kMakerWebSite},
};

constexpr std::string_view kTitle = "Brindle Tarvix        Version 3.0";

QString Shown(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Asks for as much room as its content takes.
class TextArea : public QScrollArea {
  public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override { return widget()->sizeHint(); }
};

}  // namespace

AboutBox::AboutBox(QWidget* parent)
    : QDialog(parent),
      Frame1(new PlainFrame),
      Frame2(new PlainFrame),
      cmdExit(new QPushButton("Close", this)),
      texts_(new TextArea(this)) {
    setObjectName("AboutBox");
    setWindowTitle("About Brindle Tarvix");
    setModal(true);
    Frame1->setObjectName("Frame1");
    Frame2->setObjectName("Frame2");
    cmdExit->setObjectName("cmdExit");
    for (int number = 1; number <= kLabels; ++number) {
        auto* label = new QLabel;
        label->setObjectName(QString("Label%1").arg(number));
        label->setTextFormat(Qt::PlainText);
        labels_.at(static_cast<std::size_t>(number - 1)) = label;
    }
    connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
    Form_Load();
    LayOut();
    FitToScreen();
}

void AboutBox::LayOut() {
    QFont titleFont = font();
    titleFont.setPointSizeF(1.4 * QFontInfo(titleFont).pointSizeF());
    titleFont.setBold(true);
    Label(kTitleLabel).setFont(titleFont);
    // The address can be copied; the program itself opens no web site.
    Label(kWebSiteLabel)
        .setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    Fill(*Frame1, {{1, 2, 3, 4}, {5, 6, 7, 8, 9, 18}});
    Fill(*Frame2, {{10, 11, 12}, {13, 14}, {15, 16}});

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdExit);
    cmdExit->setDefault(true);

    auto* content = new QWidget;
    auto* lines = new QVBoxLayout(content);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(&Label(kTitleLabel));
    lines->addWidget(Frame1);
    lines->addWidget(Frame2);
    texts_->setObjectName("texts");
    texts_->setAccessibleName(windowTitle());
    texts_->setFrameShape(QFrame::NoFrame);
    texts_->setWidgetResizable(true);
    texts_->setWidget(content);

    auto* window = new QVBoxLayout(this);
    window->addWidget(texts_, 1);
    window->addLayout(buttons);
}

void AboutBox::Fill(QFrame& frame, const std::vector<std::vector<int>>& paragraphs) {
    const int line = fontMetrics().lineSpacing();
    auto* layout = new QVBoxLayout(&frame);
    layout->setContentsMargins(line, line / 2, line, line / 2);
    // The lines of one paragraph stand close together.
    layout->setSpacing(0);
    for (const std::vector<int>& paragraph : paragraphs) {
        if (layout->count() > 0) {
            layout->addSpacing(line / 2);
        }
        for (const int number : paragraph) {
            layout->addWidget(&Label(number));
        }
    }
}

void AboutBox::FitToScreen() {
    // The window manager's frame is the one around the main window.
    const QWidget& framed = parentWidget() != nullptr ? *parentWidget()->window() : *this;
    const QSize room = screen()->availableSize() - (framed.frameGeometry().size() - framed.size());
    const QSize whole = layout()->totalSizeHint();
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const bool scrollsDown = whole.height() > room.height();
    const bool scrollsAcross = whole.width() > room.width();
    const QSize scrollBars(scrollsDown ? scrollBar : 0, scrollsAcross ? scrollBar : 0);
    setFixedSize((whole + scrollBars).boundedTo(room));
    // Cursor and page keys scroll at once where there is something to scroll.
    const bool scrolls = scrollsDown || scrollsAcross;
    texts_->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus);
    (scrolls ? static_cast<QWidget*>(texts_) : cmdExit)->setFocus();
}

void AboutBox::Form_Load() {
    Label(kTitleLabel).setText(Shown(kTitle));
    for (const LabelText& entry : kTexts) {
        Label(entry.label).setText(Shown(entry.text));
    }
}

void AboutBox::cmdExit_Click() {
    accept();
}

}  // namespace tarvix
