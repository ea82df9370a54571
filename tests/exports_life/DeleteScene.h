#pragma once

// Log devices removed, and the permission that they need for it.

#include "LifeScene.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa::test
{

// What a removal does about the permission.
inline constexpr std::int32_t Ask = 0;
inline constexpr std::int32_t Override = 1;

class DeleteScene : public LifeScene
{
protected:
    [[nodiscard]] std::int32_t Remove(const std::wstring& logDevice, std::int32_t allow) const
    {
        return library.LogDeviceDelBL(logDevice.c_str(), allow);
    }

    // What the removal of "Presse" answers, and that its file stays byte for byte as it was.
    void ExpectKept(std::int32_t allow, std::int32_t result) const
    {
        const std::string before = store.Bytes(L"Presse");

        EXPECT_EQ(Remove(L"Presse", allow), result);

        EXPECT_EQ(store.Bytes(L"Presse"), before);
    }

    // A device that says this of its removal.
    void WritePermission(std::wstring_view value) const
    {
        Write(XmlContent().Element(L"Ndi", XmlContent().Text(L"enable_delete", value)));
    }
};

} // namespace norvepa::test
