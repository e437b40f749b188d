#include "ui/windows/window_host_qt.h"

#include "report/printer/report_printer.h"
#include "ui/windows/about_box.h"
#include "ui/windows/frm_cust_info.h"

namespace tarvix {

void WindowHostQt::ShowAboutBox(QWidget& owner) {
    AboutBox(&owner).exec();
}

void WindowHostQt::ShowCustomerWindow(QWidget& owner, Module1& module) {
    frmCustInfo(module, &owner).exec();
}

void WindowHostQt::PrintPage(QWidget& owner, const ReportPage& page, const QImage& logo) {
    PrintReport(owner, platform_, page, logo);
}

}  // namespace tarvix
