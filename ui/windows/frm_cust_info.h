// The customer window: asks, before a report is printed, who it is for and for the tag.
#pragma once

#include "app/shared/module1.h"
#include "ui/controls/entry_line.h"

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace tarvix {

class frmCustInfo : public QDialog {
  public:
    // Shows what `module` holds of earlier reports. Its MsgResult is kPrint after Print, else
    // kDoNotPrint.
    explicit frmCustInfo(Module1& module, QWidget* parent = nullptr);

    void Form_Load();
    void cmdPrint_Click();
    void cmdClear_Click();
    void cmdCancel_Click();
    void txtCust1_GotFocus();
    void txtCust2_GotFocus();
    void txtTag_GotFocus();

    QFrame* const Frame1;
    QLabel* const Label1;
    EntryLine* const txtCust1;
    EntryLine* const txtCust2;
    QLabel* const Label2;
    EntryLine* const txtTag;
    QLabel* const lblFit;  // how the lines will fit on the paper, when there is something to say
    QPushButton* const cmdPrint;
    QPushButton* const cmdClear;
    QPushButton* const cmdCancel;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void NameControls();
    void LayOut();
    void ConnectHandlers();
    void ShowFit();

    Module1& module_;
};

}  // namespace tarvix
