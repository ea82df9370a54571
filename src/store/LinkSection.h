#pragma once

namespace norvepa
{

// The section that the links of a file stand in, for processes of 64 bits (`wide` 0) or of 32.
[[nodiscard]] constexpr const wchar_t* LinkSection(int wide) noexcept
{
    return wide == 0 ? L"UserInterface64" : L"UserInterface";
}

} // namespace norvepa
