#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();  // needs no display
    }
    // No display, no printer of the machine that the tests run on, no settings of its user; no
    // locale but the one that a test is about.
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    qputenv("CUPS_SERVERROOT", home.path().toLocal8Bit());
    qputenv("CUPS_SERVER", "127.0.0.1:1");
    qputenv("LC_ALL", qEnvironmentVariable("TARVIX_TEST_LOCALE", "C.UTF-8").toLatin1());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
