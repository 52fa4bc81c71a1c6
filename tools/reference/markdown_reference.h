#pragma once
#include "tools/reference/library_description.h"
#include <string>

namespace tolva::reference {

// The reference document of a library in Markdown, UTF-8 with LF line ends.
std::string MarkdownReference(const LibraryDescription& library);

} // namespace tolva::reference
