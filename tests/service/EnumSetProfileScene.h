#pragma once

// A choice made for the log device "Presse", from inside of the library: the value, and what follows from it.

#include "DeviceScene.h"
#include "service/norvepaPgspBl64/profiles/profiles.h"
#include "support/ProfileFiles.h"
#include "support/Workers.h"
#include "support/XmlMeaning.h"

#include <string>
#include <string_view>

namespace norvepa::test
{

class EnumSetProfileScene : public DeviceScene
{
protected:
    [[nodiscard]] static Result Choose(const wchar_t* parameter, const wchar_t* value,
                                       const wchar_t* logDevice = L"Presse")
    {
        return PGSP_LogDeviceEnumSetProfileBL(logDevice, parameter, value);
    }

    // What the protocol holds for the baud rate 9600, and for the medium of profile 1.
    void WriteProfiles(const XmlContent& pairs) const
    {
        const XmlContent medium = SubParameter(L"medium", {{L"copper", pairs}});
        store.WriteProtocol(Catalogue()
                                .Parameter(L"baudrate", {}, Profiles({{L"9600", pairs}}))
                                .Parameter(L"busparam", {}, Profiles({{L"1", medium}})));
    }

    // A device that has chosen this baud rate, and no profile yet, with further entries.
    [[nodiscard]] static XmlContent Chosen(std::wstring_view baudrate, const XmlContent& entries = {})
    {
        return XmlContent()
            .Text(L"baudrate", baudrate)
            .Text(L"busparam", L"2")
            .Text(L"medium", L"copper")
            .Raw(entries.utf8());
    }

    // That device with these entries, all of them in `SpareSection`, and that its file says just that now.
    void WriteEntries(const XmlContent& entries) const { store.WriteDevice(L"Presse", Spare(entries)); }

    void ExpectEntries(const XmlContent& entries) const
    {
        EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(Spare(entries))));
    }

    // What a choice answers, and that the file stays byte for byte as it was.
    void ExpectChooseChangesNothing(const wchar_t* parameter, const wchar_t* value, Result result) const
    {
        const std::string before = store.Bytes(L"Presse");

        EXPECT_EQ(Choose(parameter, value), result);

        EXPECT_EQ(store.Bytes(L"Presse"), before);
    }

    // Those who would tell of the changes end ahead of the store.
    const Workers workers;
};

} // namespace norvepa::test
