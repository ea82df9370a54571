#pragma once

// Files of the sample store, with something else in them.

#include "support/TemporaryFolder.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace norvepa::test
{

// Files of the catalogue, for CataloguePath.
inline const std::wstring MpiProtocol = L"Protocols\\Automation-OnlineAccess-PT-MPI";
inline const std::wstring Afk110Board = L"Boards\\Automation-OnlineAccess-BT-AFK110";
inline const std::wstring MpiTemplate = L"DefaultLogDevices\\Automation-OnlineAccess-LDT-MPI-AFK110";

// Replaces the first such text; throws when there is none.
inline void ChangeSample(const std::wstring& path, std::string_view from, std::string_view to)
{
    std::string bytes = ReadBytes(path);
    const std::size_t at = bytes.find(from);
    if (at == std::string::npos)
    {
        throw std::runtime_error("the sample store does not hold " + std::string(from));
    }
    WriteBytes(path, bytes.replace(at, from.size(), to));
}

} // namespace norvepa::test
