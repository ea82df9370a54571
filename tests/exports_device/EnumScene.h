#pragma once

// The enumeration of log devices, called index after index.

#include "GetScene.h"

#include <windows.h>

namespace norvepa::test
{

class EnumScene : public GetScene
{
protected:
    [[nodiscard]] std::int32_t GetEnum(const wchar_t* netType, std::uint32_t index, OutputBuffer& name) const
    {
        return library.LogDeviceGetEnumBL(netType, index, name.data(), &name.length);
    }

    // What index after index gives, up to the end; and how it ends.
    [[nodiscard]] Names All(const wchar_t* netType = nullptr, std::uint32_t capacity = 260,
                            std::int32_t end = PGSP_ERR_NO_MORE_ITEMS) const
    {
        Names names;
        for (;;)
        {
            OutputBuffer name(capacity);
            const std::int32_t result = GetEnum(netType, static_cast<std::uint32_t>(names.size()), name);
            if (result != PGSP_OK)
            {
                EXPECT_EQ(result, end);
                EXPECT_TRUE(name.isUntouched());
                EXPECT_EQ(name.length, capacity);
                return names;
            }
            names.push_back(name.text());
            EXPECT_EQ(name.length, names.back().size());
        }
    }

    void WriteHidden(const std::wstring& fileName, const wchar_t* hidden) const
    {
        store.WriteDevice(fileName, XmlContent().Element(L"Ndi", XmlContent().Bool(L"hidden", hidden)));
    }

    void WriteType(const std::wstring& fileName, const wchar_t* type) const
    {
        store.WriteDevice(fileName, {}, OurBoard, type);
    }

    // The names of the folder in its own order.
    [[nodiscard]] Names FoldersOrder() const
    {
        Names names;
        WIN32_FIND_DATAW found = {};
        const HANDLE search = FindFirstFileW((store.deviceFolder() + L"\\*.xml").c_str(), &found);
        do
        {
            const std::wstring name = found.cFileName;
            names.push_back(name.substr(0, name.size() - 4));
        } while (FindNextFileW(search, &found) != FALSE);
        FindClose(search);
        return names;
    }
};

} // namespace norvepa::test
