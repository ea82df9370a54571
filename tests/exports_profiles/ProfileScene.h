#pragma once

// What a choice on the log device "Presse" brings with it, and who is told; and what may be chosen for it.

#include "exports_device/SetScene.h"
#include "support/ProfileFiles.h"

#include <cstdint>

namespace norvepa::test
{

class ProfileScene : public SetScene
{
protected:
    // Copies what that device's value of the parameter selects in the protocol into it.
    [[nodiscard]] std::int32_t SetProfile(const wchar_t* parameter, const wchar_t* protocol = L"MPI") const;

    // That device with these entries, all of them in `SpareSection`, and that its file says just that now.
    void WriteEntries(const XmlContent& entries) const;
    void ExpectEntries(const XmlContent& entries) const;

    // What the copying answers, and that the file stays byte for byte as it was and nothing stands beside it.
    void ExpectSetProfileChangesNothing(const wchar_t* parameter, std::int32_t result,
                                        const wchar_t* protocol = L"MPI") const;
};

} // namespace norvepa::test
