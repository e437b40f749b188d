// What the print system's answers mean.
#include "report/printer/print_system.h"

#include <QLibrary>

#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

const QString kWords = "Too many jobs";
const QString kNoAnswer =
    "The print system does not know this printer any more, or does not answer.";

// The statuses of RFC 8010, section 4.1.8 and RFC 8011, appendix B. A refusal is told in its own
// words; for a printer that is not there we have some.
TEST(PrintSystemTest, AnAnswerIsARefusalOrNone) {
    for (const int status : {0x0000, 0x0001, 0x0005, 0x0300, 0x03FF}) {
        EXPECT_EQ(RefusalOf(status, kWords), std::nullopt) << status;
    }
    for (const int status : {0x0400, 0x0401, 0x0405, 0x0407, 0x040B, 0x0501, 0x0503, 0x0509}) {
        EXPECT_EQ(RefusalOf(status, kWords), kWords) << status;
    }
    for (const int status : {0x0406, 0x0500, 0x0502}) {
        EXPECT_EQ(RefusalOf(status, kWords), kNoAnswer) << status;
    }
}

// A job is cancelled at a server that isn't there, by the library that the toolkit prints through.
TEST(PrintSystemTest, TheLastAnswerIsAskedFor) {
    using SetServer = void (*)(const char*);
    using CancelJob = int (*)(const char*, int);
    QLibrary cups("cups", 2);
    // A function found by its name has no other type than the one it is given here.
    // NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast)
    const auto setServer = reinterpret_cast<SetServer>(cups.resolve("cupsSetServer"));
    const auto cancelJob = reinterpret_cast<CancelJob>(cups.resolve("cupsCancelJob"));
    // NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)
    if (setServer == nullptr || cancelJob == nullptr) {
        EXPECT_EQ(PrintSystemRefusal(), std::nullopt) << "a system without CUPS";
        return;
    }
    setServer("/nonexistent/cups.sock");
    EXPECT_EQ(cancelJob("nobody", 1), 0);
    EXPECT_EQ(PrintSystemRefusal(), kNoAnswer);
    setServer(nullptr);
}

}  // namespace
}  // namespace tarvix::testing
