#pragma once

// A file's bytes, read at once.
//
// Callers may rely on: others may read and write the file meanwhile. What is cut off while it is read comes
// as zero bytes. Callers must: expect std::bad_alloc for a file that memory can't hold.

#include <optional>
#include <string>

namespace norvepa::win
{

// None when the file can't be opened for reading, or is longer than 2 GB.
[[nodiscard]] std::optional<std::string> ReadWholeFile(const std::wstring& file);

} // namespace norvepa::win
