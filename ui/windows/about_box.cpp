#include "ui/windows/about_box.h"

#include "report/page/maker.h"

#include <QFont>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>
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

}  // namespace

AboutBox::AboutBox(QWidget* parent)
    : QDialog(parent),
      Frame1(new QFrame(this)),
      Frame2(new QFrame(this)),
      cmdExit(new QPushButton("Close", this)) {
    setObjectName("AboutBox");
    setWindowTitle("About Brindle Tarvix");
    setModal(true);
    Frame1->setObjectName("Frame1");
    Frame2->setObjectName("Frame2");
    cmdExit->setObjectName("cmdExit");
    for (int number = 1; number <= kLabels; ++number) {
        auto* label = new QLabel(this);
        label->setObjectName(QString("Label%1").arg(number));
        label->setTextFormat(Qt::PlainText);
        labels_.at(static_cast<std::size_t>(number - 1)) = label;
    }
    LayOut();
    connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
    Form_Load();
}

void AboutBox::LayOut() {
    const int line = fontMetrics().lineSpacing();

    QFont titleFont = font();
    titleFont.setPointSizeF(1.4 * QFontInfo(titleFont).pointSizeF());
    titleFont.setBold(true);
    Label(kTitleLabel).setFont(titleFont);
    // The address can be copied; the program itself opens no web site.
    Label(kWebSiteLabel)
        .setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    // The lines of one paragraph stand close together.
    const auto addParagraph = [this, line](QVBoxLayout& frame, std::initializer_list<int> numbers) {
        if (frame.count() > 0) {
            frame.addSpacing(line / 2);
        }
        for (const int number : numbers) {
            frame.addWidget(&Label(number));
        }
    };
    const auto frameLayout = [line](QFrame& frame) {
        frame.setFrameShape(QFrame::StyledPanel);
        auto* layout = new QVBoxLayout(&frame);
        layout->setSpacing(0);
        layout->setContentsMargins(line, line / 2, line, line / 2);
        return layout;
    };
    QVBoxLayout* purpose = frameLayout(*Frame1);
    addParagraph(*purpose, {1, 2, 3, 4});
    addParagraph(*purpose, {5, 6, 7, 8, 9, 18});
    QVBoxLayout* limits = frameLayout(*Frame2);
    addParagraph(*limits, {10, 11, 12});
    addParagraph(*limits, {13, 14});
    addParagraph(*limits, {15, 16});

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdExit);
    cmdExit->setDefault(true);
    cmdExit->setFocus();

    auto* window = new QVBoxLayout(this);
    window->addWidget(&Label(kTitleLabel));
    window->addWidget(Frame1);
    window->addWidget(Frame2);
    window->addLayout(buttons);
    window->setSizeConstraint(QLayout::SetFixedSize);
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
