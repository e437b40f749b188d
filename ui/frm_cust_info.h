// The customer window: asks, before a report is printed, who it is for and for the tag.
#pragma once

#include "app/module1.h"

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace tarvix {

// A line to type into that says when the focus comes to it from another control. The mouse press
// that brings the focus leaves the selection alone; the next one sets the caret.
class EntryLine : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

    std::function<void()> onGotFocus;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool focusCameByThisPress_ = false;
};

class frmCustInfo : public QDialog {
  public:
    // Shows what `module` holds of earlier reports. Its MsgResult is 1 after Print, else 2.
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
    QPushButton* const cmdPrint;
    QPushButton* const cmdClear;
    QPushButton* const cmdCancel;

  private:
    void NameControls();
    void LayOut();
    void ConnectHandlers();

    Module1& module_;
};

}  // namespace tarvix
