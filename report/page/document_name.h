// What a report is called: as a print job, as the title of a PDF and as a file.
#pragma once

#include <string>
#include <string_view>

namespace tarvix {

// "Orifice calculation" and the tag, on one line, so that two documents can be told apart. A tag
// that makes it longer than print systems and file systems take is cut.
std::string DocumentName(std::string_view tag);

// A document's name as that of a file, without folder and ending: every character that some file
// system cannot hold is a hyphen.
std::string FileNameOf(std::string_view documentName);

}  // namespace tarvix
