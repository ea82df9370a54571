#pragma once

// What the small store holds in the beginning: every file that a question is about.

#include <array>
#include <map>
#include <string>
#include <string_view>

namespace norvepa::test
{

using Files = std::map<std::wstring, std::string>; // by path below the folder of both roots

[[nodiscard]] const Files& Beginning();

// The folders that these files are in: the library makes and changes files in no others.
inline constexpr std::array Folders{
    L"data-root\\data",
    L"data-root\\data\\LogDevices",
    L"data-root\\data\\LogNames",
    L"data-root\\data\\Werte",
    L"program-root\\meta\\Boards",
    L"program-root\\meta\\DefaultLogDevices",
    L"program-root\\meta\\Protocols",
};
inline const std::wstring SettingsName = L"data-root\\data\\PGSP.xml";
[[nodiscard]] std::wstring DeviceName(std::wstring_view logDevice); // of a log device's file

} // namespace norvepa::test
