#pragma once

// The current folder of this process, that of the object for as long as it lives.

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace norvepa::test
{

class CurrentFolder
{
public:
    CurrentFolder() { std::filesystem::current_path(m_folder.path()); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { std::filesystem::current_path(m_before); }

    [[nodiscard]] std::wstring operator/(std::wstring_view name) const { return m_folder / name; }

    // Where log devices lie when paths are relative to it.
    [[nodiscard]] std::wstring logDevice(const std::wstring& fileName) const
    {
        return m_folder / (L"data\\LogDevices\\" + fileName + L".xml");
    }

private:
    const std::filesystem::path m_before = std::filesystem::current_path();
    const TemporaryFolder m_folder;
};

} // namespace norvepa::test
