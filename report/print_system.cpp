#include "report/print_system.h"

#include <QLibrary>

namespace tarvix {

namespace {

// From this status on, the answers of CUPS are errors (RFC 8010, client-error-bad-request).
constexpr int kFirstErrorStatus = 0x0400;

}  // namespace

// The toolkit's CUPS back end ignores what CUPS answers to a page. CUPS keeps its last answer for
// each thread, and the library is in the process already when a page has been printed through it;
// so it is asked where it is there, and is not needed where it isn't.
std::optional<QString> PrintSystemRefusal() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    using LastError = int (*)();
    using LastErrorString = const char* (*)();
    QLibrary cups("cups", 2);
    const auto lastError = reinterpret_cast<LastError>(cups.resolve("cupsLastError"));
    const auto lastErrorString =
        reinterpret_cast<LastErrorString>(cups.resolve("cupsLastErrorString"));
    if (lastError == nullptr || lastErrorString == nullptr || lastError() < kFirstErrorStatus) {
        return std::nullopt;
    }
    return QString::fromUtf8(lastErrorString());
#else
    return std::nullopt;
#endif
}

}  // namespace tarvix
