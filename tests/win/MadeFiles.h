#pragma once

// What tests of new files look at.

#include "support/TemporaryFolder.h"

#include <windows.h>

#include <string>
#include <vector>

namespace norvepa::test
{

// As whoever lists documents asks for them.
[[nodiscard]] inline std::vector<std::wstring> DocumentsIn(const std::wstring& folder)
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((folder + L"\\*.xml").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
    {
        return names;
    }
    do
    {
        names.emplace_back(found.cFileName);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

// A document's in the folder, of so many characters.
[[nodiscard]] inline std::wstring PathOfLength(const TemporaryFolder& folder, std::size_t length)
{
    const std::wstring extension = L".xml";
    return folder / std::wstring(length - folder.path().size() - 1 - extension.size(), L'p') + extension;
}

} // namespace norvepa::test
