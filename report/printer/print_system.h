// What the print system itself knows about the page that was just handed to it. The toolkit hands
// a page over and does not look back.
#pragma once

#include <QString>

#include <optional>

namespace tarvix {

// Why the print system refused the last page that this thread sent to it, in its own words; nothing
// when it took the page, or on systems where the toolkit reports a refusal itself.
std::optional<QString> PrintSystemRefusal();

// What an answer of CUPS means: its status (RFC 8010) and the words that came with it. Nothing when
// it is no refusal; a text of our own where those words would mislead.
std::optional<QString> RefusalOf(int status, const QString& words);

}  // namespace tarvix
