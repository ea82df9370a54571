#pragma once

// The files of a folder at one moment, each with the stamp that its folder tells of it: a look at a thousand
// files for the price of opening a hundred.
//
// Callers may rely on: names are compared as they are spelled on disk. What can't be relied on is a file with
// a second name elsewhere, or one that somebody has written to and still holds open: a folder may tell of
// both only later.

#include "win/FileStamp.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace norvepa::win
{

class FolderListing
{
public:
    // None when the folder can't be read.
    [[nodiscard]] static std::optional<FolderListing> Of(const std::wstring& folder);

    // Null when there was no such file.
    [[nodiscard]] const FileStamp* Find(std::wstring_view fileName) const;

private:
    struct Hash : std::hash<std::wstring_view>
    {
        using is_transparent = void;
    };

    std::unordered_map<std::wstring, FileStamp, Hash, std::equal_to<>> m_files;
};

} // namespace norvepa::win
