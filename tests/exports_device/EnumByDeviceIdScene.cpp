#include "EnumByDeviceIdScene.h"

#include "support/Eventually.h"

#include <algorithm>
#include <stdexcept>

namespace norvepa::test
{

std::int32_t EnumByDeviceIdScene::Enum(const wchar_t* deviceId, std::uint32_t index, OutputBuffer& name,
                                       OutputBuffer& unit) const
{
    return library.LogDeviceGetEnumByDeviceIdBL(deviceId, index, name.data(), &name.length, unit.data(),
                                                &unit.length);
}

Entries EnumByDeviceIdScene::All(const wchar_t* deviceId) const
{
    Entries entries;
    for (;;)
    {
        OutputBuffer name(260);
        OutputBuffer unit(260);
        if (Enum(deviceId, static_cast<std::uint32_t>(entries.size()), name, unit) != PGSP_OK)
        {
            return entries;
        }
        entries.emplace_back(name.text(), unit.text());
    }
}

bool EnumByDeviceIdScene::Becomes(const Entries& entries, const wchar_t* deviceId) const
{
    return Eventually([&] {
        const Entries found = All(deviceId);
        return found.size() == entries.size() &&
               std::is_permutation(found.begin(), found.end(), entries.begin());
    });
}

void EnumByDeviceIdScene::WriteUnit(const std::wstring& fileName, const wchar_t* unit,
                                    std::wstring_view deviceId) const
{
    store.WriteDevice(fileName, Section(L"DeviceHeader", L"Unit", unit), deviceId);
}

std::wstring EnumByDeviceIdScene::Prepare(const std::wstring& fileName, const wchar_t* unit) const
{
    const std::wstring path = roots.folder() / (L"prepared\\" + fileName + L".xml");
    WriteBytes(path, LogDeviceFile(Section(L"DeviceHeader", L"Unit", unit)));
    return path;
}

void EnumByDeviceIdScene::Move(Peer& peer, const std::wstring& from, const std::wstring& to)
{
    const std::string command = "rename " + ToUtf8(from) + "|" + ToUtf8(to);
    if (!Eventually([&] { return peer.Ask(command) == "done"; }))
    {
        throw std::runtime_error("the file can't be moved");
    }
}

} // namespace norvepa::test
