#pragma once

// Log devices read for their driver through the library. Unless a test says otherwise a log device may hold
// whatever it wants to: the schema only asks for its root.

#include "support/DeviceStore.h"
#include "support/LoadedLibrary.h"
#include "support/ReceivedRecords.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>
#include <string_view>

namespace norvepa::test
{

class DriverReadScene : public testing::Test
{
protected:
    DriverReadScene();

    // A log device under its file's name.
    void Write(const XmlContent& content, const std::wstring& fileName = L"Presse") const;

    // What a read gives; throws when it is refused.
    [[nodiscard]] ReceivedRecords Read(const std::wstring& name = L"Presse") const;

    // What a read answers that fails; it must leave the outputs alone.
    [[nodiscard]] std::int32_t ResultOf(const std::wstring& name = L"Presse") const;

    [[nodiscard]] std::wstring schemaFile() const;

    const StoreRoots roots;
    const DeviceStore store{roots};
    const Exports library;
};

// A log device that gives one record, and that record.
[[nodiscard]] XmlContent Holding(std::wstring_view value);
[[nodiscard]] ReceivedRecords Held(std::wstring_view value);

} // namespace norvepa::test
