#pragma once

// The profiles that a value has for the values of other parameters.

#include "ProfileScene.h"

#include <cstdint>

namespace norvepa::test
{

class SubProfileScene : public ProfileScene
{
protected:
    // The device of profile 1 with a copper cable at 9600 baud, with further entries.
    [[nodiscard]] static XmlContent Chosen(const XmlContent& entries = {})
    {
        return XmlContent()
            .Text(L"busparam", L"1")
            .Text(L"medium", L"copper")
            .Text(L"baudrate", L"9600")
            .Raw(entries.utf8());
    }

    // The protocol whose profile 1 has these sub-parameters.
    void WriteProfile(const XmlContent& subParameters) const
    {
        store.WriteProtocol(Catalogue().Parameter(L"busparam", {}, Profiles({{L"1", subParameters}})));
    }

    // What is answered for the device with nothing but its choices, and what is written beside them.
    void ExpectWritten(const XmlContent& entries, std::int32_t result = PGSP_OK) const
    {
        WriteEntries(Chosen());

        EXPECT_EQ(SetProfile(L"busparam"), result);

        ExpectEntries(Chosen(entries));
    }

    void ExpectNothingWritten() const
    {
        WriteEntries(Chosen());

        ExpectSetProfileChangesNothing(L"busparam", PGSP_PROFILE_NO_VALUE);
    }

    // Sub-parameters of which the section for the device's value holds this.
    [[nodiscard]] static XmlContent Medium(const XmlContent& ofCopper)
    {
        return SubParameter(L"medium", {{L"copper", ofCopper}});
    }

    [[nodiscard]] static XmlContent Rate(const XmlContent& of9600)
    {
        return SubParameter(L"baudrate", {{L"9600", of9600}});
    }
};

} // namespace norvepa::test
