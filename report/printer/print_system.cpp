#include "report/printer/print_system.h"

#include <QLibrary>

namespace tarvix {

namespace {

// From this status on, the answers of CUPS are errors (RFC 8010, client-error-bad-request).
constexpr int kFirstErrorStatus = 0x0400;

// What CUPS answers for a printer that it doesn't know, or can't be reached to ask about. The text
// that comes with it ("No such file or directory") would only mislead.
constexpr int kNotFound = 0x0406;
constexpr int kInternalError = 0x0500;
constexpr int kServiceUnavailable = 0x0502;

}  // namespace

std::optional<QString> RefusalOf(int status, const QString& words) {
    if (status < kFirstErrorStatus) {
        return std::nullopt;
    }
    if (status == kNotFound || status == kInternalError || status == kServiceUnavailable) {
        return "The print system does not know this printer any more, or does not answer.";
    }
    return words;
}

// The toolkit's CUPS back end ignores what CUPS answers to a page. CUPS keeps its last answer for
// each thread, and the library is in the process already when a page has been printed through it;
// so it is asked where it is there, and is not needed where it isn't.
std::optional<QString> PrintSystemRefusal() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    using LastError = int (*)();
    using LastErrorString = const char* (*)();
    QLibrary cups("cups", 2);
    // A function found by its name has no other type than the one it is given here.
    // NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast)
    const auto lastError = reinterpret_cast<LastError>(cups.resolve("cupsLastError"));
    const auto lastErrorString =
        reinterpret_cast<LastErrorString>(cups.resolve("cupsLastErrorString"));
    // NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)
    if (lastError == nullptr || lastErrorString == nullptr) {
        return std::nullopt;
    }
    return RefusalOf(lastError(), QString::fromUtf8(lastErrorString()));
#else
    return std::nullopt;
#endif
}

}  // namespace tarvix
