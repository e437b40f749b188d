// The windows that the main window opens, as the program's own host opens them.
#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/window/modal_driver.h"
#include "ui/windows/about_box.h"
#include "ui/windows/frm_cust_info.h"
#include "ui/windows/window_host_qt.h"

#include <QPrintDialog>
#include <QPrinterInfo>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

class WindowHostTest : public ::testing::Test {
  protected:
    QWidget owner_;
    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
    WindowHostQt host_{platform_};
};

TEST_F(WindowHostTest, ShowsTheAboutBox) {
    const ModalDriver<AboutBox> user([this](AboutBox& box) {
        EXPECT_EQ(box.parentWidget(), &owner_);
        box.close();
    });
    host_.ShowAboutBox(owner_);
    EXPECT_TRUE(user.done());
}

TEST_F(WindowHostTest, ShowsTheCustomerWindowWithWhatIsStored) {
    module_.TagText = "FE-4102";
    const ModalDriver<frmCustInfo> user([this](frmCustInfo& window) {
        EXPECT_EQ(window.parentWidget(), &owner_);
        EXPECT_EQ(window.txtTag->text(), "FE-4102");
        window.txtTag->setText("FE-4103");
        window.cmdPrint->click();
    });
    host_.ShowCustomerWindow(owner_, module_);
    EXPECT_TRUE(user.done());
    EXPECT_EQ(module_.TagText, "FE-4103");
    EXPECT_EQ(module_.MsgResult, 1);
}

// On a system without a printer the page waits for a choice.
TEST_F(WindowHostTest, PrintsAPage) {
    ASSERT_TRUE(QPrinterInfo::defaultPrinter().isNull());
    const ModalDriver<QPrintDialog> user([](QPrintDialog& dialog) { dialog.reject(); });
    host_.PrintPage(owner_, ReportPage(), QImage());
    EXPECT_TRUE(user.done());
    EXPECT_TRUE(platform_.boxes.empty());
}

}  // namespace
}  // namespace tarvix::testing
