// The lower half of the page, the same on every report but for the date: the notes on the method
// and the maker's contact lines.
#pragma once

#include "report/page/page_writer.h"

#include <string>

namespace tarvix {

void PrintNotes(PageWriter& writer);

// Follows the notes. `date` is dd mmm yyyy.
void PrintFooter(PageWriter& writer, const std::string& date);

}  // namespace tarvix
