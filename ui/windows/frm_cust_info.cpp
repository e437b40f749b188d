#include "ui/windows/frm_cust_info.h"

#include "report/printer/customer_lines.h"
#include "report/printer/printed_text.h"
#include "ui/controls/frame_box.h"
#include "ui/controls/readable_palette.h"

#include <QEvent>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QStringList>
#include <QVBoxLayout>

#include <array>
#include <cmath>
#include <cstddef>

namespace tarvix {

namespace {

// What there is to say about the lines, in one or two sentences; nothing when all is well.
QString FitText(const CustomerFit& fit) {
    constexpr std::array kNames = {"first customer line", "second customer line", "tag"};
    static_assert(kNames.size() == decltype(fit.cut){}.size());
    QStringList cut;
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        if (fit.cut.at(i)) {
            cut << kNames.at(i);
        }
    }
    QStringList sentences;
    if (!cut.isEmpty()) {
        sentences << "Too long for the paper, the end will be cut off: " + cut.join(", ") + ".";
    } else if (fit.narrowed < 1) {
        sentences << QString("To fit on the paper, these lines will be printed narrower (%1 %).")
                         .arg(std::lround(100 * fit.narrowed));
    }
    if (fit.missingCharacters) {
        sentences << "Characters that no font here has will be printed as question marks.";
    }
    return sentences.join(' ');
}

QString Shown(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace

frmCustInfo::frmCustInfo(Module1& module, QWidget* parent)
    : QDialog(parent),
      Frame1(new PlainFrame(this)),
      Label1(new QLabel("Customer", Frame1)),
      txtCust1(new EntryLine(Frame1)),
      txtCust2(new EntryLine(Frame1)),
      Label2(new QLabel("Tag", Frame1)),
      txtTag(new EntryLine(Frame1)),
      lblFit(new QLabel(Frame1)),
      cmdPrint(new QPushButton("Print", this)),
      cmdClear(new QPushButton("Clear", this)),
      cmdCancel(new QPushButton("Cancel", this)),
      module_(module) {
    setWindowTitle("Brindle Tarvix");
    setModal(true);
    NameControls();
    LayOut();
    setPalette(ReadablePalette(QGuiApplication::palette()));
    ConnectHandlers();
    Form_Load();
}

void frmCustInfo::NameControls() {
    setObjectName("frmCustInfo");
    Frame1->setObjectName("Frame1");
    Label1->setObjectName("Label1");
    txtCust1->setObjectName("txtCust1");
    txtCust2->setObjectName("txtCust2");
    Label2->setObjectName("Label2");
    txtTag->setObjectName("txtTag");
    lblFit->setObjectName("lblFit");
    cmdPrint->setObjectName("cmdPrint");
    cmdClear->setObjectName("cmdClear");
    cmdCancel->setObjectName("cmdCancel");

    txtCust1->setAccessibleName("Customer");
    txtCust2->setAccessibleName("Customer, second line");
    txtTag->setAccessibleName("Tag");
    cmdPrint->setAccessibleDescription("Prints the report with these lines");
    cmdClear->setAccessibleDescription("Empties the three lines");
    cmdCancel->setAccessibleDescription("Closes the window without printing");
}

void frmCustInfo::LayOut() {
    auto* entries = new QGridLayout(Frame1);
    entries->addWidget(Label1, 0, 0);
    entries->addWidget(txtCust1, 0, 1);
    entries->addWidget(txtCust2, 1, 1);
    entries->addWidget(Label2, 2, 0);
    entries->addWidget(txtTag, 2, 1);
    entries->addWidget(lblFit, 3, 1);
    entries->setColumnStretch(1, 1);
    const int blank = fontMetrics().horizontalAdvance('x');
    entries->setHorizontalSpacing(2 * blank);
    entries->setContentsMargins(2 * blank, 2 * blank, 2 * blank, 2 * blank);
    // The fields hold what the paper holds at full width, in its font.
    QFont printed = ReportFontFamily();
    printed.setPointSizeF(QFontInfo(font()).pointSizeF());
    printed.setHintingPreference(QFont::PreferDefaultHinting);
    const double paper = kCustomerColumns * QFontMetricsF(printed).horizontalAdvance('0');
    for (EntryLine* field : {txtCust1, txtCust2, txtTag}) {
        field->setFont(printed);
        field->setMinimumWidth(static_cast<int>(std::ceil(paper)) + 2 * blank);
    }
    // Room for two lines is kept, so that nothing moves while the user types.
    lblFit->setWordWrap(true);
    lblFit->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblFit->setMinimumHeight(2 * fontMetrics().lineSpacing());

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdPrint);
    buttons->addWidget(cmdClear);
    buttons->addWidget(cmdCancel);
    cmdPrint->setDefault(true);
    txtCust1->setFocus();

    auto* window = new QVBoxLayout(this);
    window->addWidget(Frame1);
    window->addSpacing(blank);
    window->addLayout(buttons);
    window->setSizeConstraint(QLayout::SetMinimumSize);
}

void frmCustInfo::ConnectHandlers() {
    txtCust1->onGotFocus = [this] { txtCust1_GotFocus(); };
    txtCust2->onGotFocus = [this] { txtCust2_GotFocus(); };
    txtTag->onGotFocus = [this] { txtTag_GotFocus(); };
    for (const EntryLine* field : {txtCust1, txtCust2, txtTag}) {
        connect(field, &QLineEdit::textChanged, this, [this] { ShowFit(); });
    }
    connect(cmdPrint, &QPushButton::clicked, this, [this] { cmdPrint_Click(); });
    connect(cmdClear, &QPushButton::clicked, this, [this] { cmdClear_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmCustInfo::Form_Load() {
    txtCust1->setText(Shown(module_.CustLine1));
    txtCust2->setText(Shown(module_.CustLine2));
    txtTag->setText(Shown(module_.TagText));
    // However the window is closed, nothing is printed unless Print was pressed.
    module_.MsgResult = kDoNotPrint;
}

void frmCustInfo::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setPalette(ReadablePalette(QGuiApplication::palette()));
    }
}

void frmCustInfo::ShowFit() {
    const QString text =
        FitText(FitCustomerLines({txtCust1->text().toStdString(), txtCust2->text().toStdString(),
                                  txtTag->text().toStdString()}));
    lblFit->setText(text);
    for (EntryLine* field : {txtCust1, txtCust2, txtTag}) {
        field->setAccessibleDescription(text);
    }
}

void frmCustInfo::cmdPrint_Click() {
    module_.CustLine1 = txtCust1->text().toStdString();
    module_.CustLine2 = txtCust2->text().toStdString();
    module_.TagText = txtTag->text().toStdString();
    module_.MsgResult = kPrint;
    accept();
}

void frmCustInfo::cmdClear_Click() {
    txtCust1->setText("");
    txtCust2->setText("");
    txtTag->setText("");
    // New lines are typed next, and Enter prints from there.
    txtCust1->setFocus();
}

void frmCustInfo::cmdCancel_Click() {
    module_.MsgResult = kDoNotPrint;
    reject();
}

void frmCustInfo::txtCust1_GotFocus() {
    txtCust1->selectAll();
}

void frmCustInfo::txtCust2_GotFocus() {
    txtCust2->selectAll();
}

void frmCustInfo::txtTag_GotFocus() {
    txtTag->selectAll();
}

}  // namespace tarvix
