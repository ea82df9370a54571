#pragma once

// The template that a new log device of a document begins as.

#include "FileValues.h"

#include <string>

namespace norvctl
{

// The one of the document's board and protocol; throws when there is none, or several to choose from.
[[nodiscard]] std::string FittingTemplate(const FileValues& wanted);

} // namespace norvctl
