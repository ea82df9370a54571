#pragma once

// A value's own profile: the choices that bring one with them, and what a protocol says of them.

#include "ProfileScene.h"

#include <cstdint>

namespace norvepa::test
{

// The two choices whose value has pairs of its own: a baud rate, and the user's own profile.
inline constexpr const wchar_t* Choices[] = {L"baudrate", L"busparam"};

class DirectProfileScene : public ProfileScene
{
protected:
    // The device that has made both choices, with further entries.
    [[nodiscard]] static XmlContent Chosen(const XmlContent& entries = {})
    {
        return XmlContent().Text(L"baudrate", L"187500").Text(L"busparam", L"3").Raw(entries.utf8());
    }

    // The protocol that lists both values and has sections for them, with this content.
    void WriteProfile(const XmlContent& content) const
    {
        store.WriteProtocol(Catalogue()
                                .Parameter(L"baudrate", {}, Profiles({{L"187500", content}}))
                                .Parameter(L"busparam", {}, Profiles({{L"3", content}})));
    }

    // What each choice answers for the device with nothing but them, and what is written beside them.
    void ExpectWritten(const XmlContent& entries, std::int32_t result = PGSP_OK) const
    {
        for (const wchar_t* const choice : Choices)
        {
            WriteEntries(Chosen());

            EXPECT_EQ(SetProfile(choice), result);

            ExpectEntries(Chosen(entries));
        }
    }

    void ExpectNothingWritten() const
    {
        WriteEntries(Chosen(XmlContent().Text(L"medium", L"copper")));

        for (const wchar_t* const choice : Choices)
        {
            ExpectSetProfileChangesNothing(choice, PGSP_PROFILE_NO_VALUE);
        }
    }
};

} // namespace norvepa::test
