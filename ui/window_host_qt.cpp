#include "ui/window_host_qt.h"

#include "report/report_printer.h"
#include "ui/about_box.h"
#include "ui/frm_cust_info.h"

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
