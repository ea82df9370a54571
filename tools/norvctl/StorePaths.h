#pragma once

// Where the files of the store lie, and what is in them just now.

#include <optional>
#include <string>
#include <vector>

namespace norvctl
{

// The bytes of a file that may be in use by others; none when they can't be had just now. It is held for the
// length of one read.
[[nodiscard]] std::optional<std::string> BytesOf(const std::wstring& path);

// How a file of the store is called, without extension, and back.
[[nodiscard]] std::wstring FileNameOf(const std::wstring& name);
[[nodiscard]] std::wstring NameOfFile(const std::wstring& fileName);

// The file of a log device, whether it's there or not.
[[nodiscard]] std::wstring PathOfDevice(const std::string& device);

// All files below a folder, by their paths from there; links to other folders aren't followed.
[[nodiscard]] std::vector<std::wstring> FilesBelow(const std::wstring& folder);

} // namespace norvctl
