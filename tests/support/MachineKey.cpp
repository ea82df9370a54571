#include "support/MachineKey.h"

#include "support/RedirectedRegistry.h"

#include <stdexcept>

namespace norvepa::test
{

MachineKey::MachineKey(const std::wstring& path) : m_path(path)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
    {
        return;
    }
    std::vector<wchar_t> name(16384); // the longest that there can be, terminator included
    std::vector<BYTE> data(65536);
    for (DWORD index = 0;; ++index)
    {
        auto nameLength = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(data.size());
        DWORD type = REG_NONE;
        const LSTATUS status =
            RegEnumValueW(key, index, name.data(), &nameLength, nullptr, &type, data.data(), &size);
        if (status == ERROR_NO_MORE_ITEMS)
        {
            break;
        }
        if (status != ERROR_SUCCESS)
        {
            RegCloseKey(key);
            throw std::runtime_error("RegEnumValueW failed: " + std::to_string(status));
        }
        m_saved.push_back({std::wstring(name.data(), nameLength), type, {data.begin(), data.begin() + size}});
    }
    RegCloseKey(key);
    DeleteMachineKey(m_path);
}

MachineKey::~MachineKey()
{
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, m_path.c_str());
    for (const Value& value : m_saved)
    {
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, m_path.c_str(), value.name.c_str(), value.type, value.data.data(),
                        static_cast<DWORD>(value.data.size()));
    }
}

void MachineKey::Set(const std::wstring& name, const std::wstring& text) const
{
    SetMachineText(m_path, name, text);
}

std::wstring MachineKey::Get(const std::wstring& name) const
{
    std::wstring text(1024, L'\0');
    auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    const LSTATUS status = RegGetValueW(HKEY_LOCAL_MACHINE, m_path.c_str(), name.c_str(), RRF_RT_REG_SZ,
                                        nullptr, text.data(), &size);
    return status == ERROR_SUCCESS ? std::wstring(text.c_str()) : std::wstring{};
}

} // namespace norvepa::test
