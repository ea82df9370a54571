#pragma once

// A stream of records as plain bytes, to be compared as a whole.

#include "handover/DriverRecords.h"

#include <string>
#include <string_view>

namespace norvepa::test
{

[[nodiscard]] inline std::string BytesOf(const DriverRecords& records)
{
    return {reinterpret_cast<const char*>(records.bytes().data()), records.bytes().size()};
}

// A text's bytes, as they are in a record.
[[nodiscard]] inline std::string BytesOf(std::wstring_view text)
{
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

} // namespace norvepa::test
