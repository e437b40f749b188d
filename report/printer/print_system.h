// What the print system itself knows about the page that was just handed to it. The toolkit hands
// a page over and does not look back.
#pragma once

#include <QString>

#include <optional>

namespace tarvix {

// Why the print system refused the last page that this thread sent to it, in its own words; nothing
// when it took the page, or on systems where the toolkit reports a refusal itself.
std::optional<QString> PrintSystemRefusal();

}  // namespace tarvix
