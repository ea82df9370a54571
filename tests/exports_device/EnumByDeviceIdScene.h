#pragma once

// Log devices found by the identity of their board, while this or another process changes their folder.

#include "GetScene.h"
#include "support/Peer.h"

#include <string>
#include <utility>
#include <vector>

namespace norvepa::test
{

// Name and unit, as the index has them.
using Entries = std::vector<std::pair<std::wstring, std::wstring>>;

class EnumByDeviceIdScene : public GetScene
{
protected:
    [[nodiscard]] std::int32_t Enum(const wchar_t* deviceId, std::uint32_t index, OutputBuffer& name,
                                    OutputBuffer& unit) const;

    // What index after index gives, up to the end.
    [[nodiscard]] Entries All(const wchar_t* deviceId = L"AFK110") const;

    // Whether that is what there is, in whatever order, as soon as the system has told of the last change.
    [[nodiscard]] bool Becomes(const Entries& entries, const wchar_t* deviceId = L"AFK110") const;

    void WriteUnit(const std::wstring& fileName, const wchar_t* unit,
                   std::wstring_view deviceId = OurBoard) const;

    // A device's file outside of the folder, and its path: whole when another process moves it in.
    [[nodiscard]] std::wstring Prepare(const std::wstring& fileName, const wchar_t* unit) const;

    // Moves a file, as another process does it: not as long as somebody reads it.
    static void Move(Peer& peer, const std::wstring& from, const std::wstring& to);
};

} // namespace norvepa::test
