#pragma once

// Log devices in a store, read through the library.

#include "support/DeviceStore.h"
#include "support/LoadedLibrary.h"
#include "support/OutputBuffer.h"
#include "support/StoreRoots.h"
#include "support/XmlFiles.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace norvepa::test
{

using Names = std::vector<std::wstring>;

// One parameter in one section: the whole content of many a file.
[[nodiscard]] XmlContent Section(std::wstring_view section, std::wstring_view parameter,
                                 std::wstring_view value);

// What a value is, or "(result N)" for a call that didn't succeed.
[[nodiscard]] std::wstring TextOf(std::int32_t result, const OutputBuffer& value);

using Pairs = std::vector<std::pair<std::wstring, std::wstring>>;

// What an enumeration of pairs gives, index after index, up to its end. A call takes the index and two
// buffers.
template <typename Call>
[[nodiscard]] Pairs AllPairs(const Call& call)
{
    Pairs pairs;
    for (;;)
    {
        OutputBuffer name(300);
        OutputBuffer value(300);
        const std::int32_t result = call(static_cast<std::uint32_t>(pairs.size()), name, value);
        if (result != PGSP_OK)
        {
            EXPECT_EQ(result, PGSP_ERR_NO_MORE_ITEMS);
            return pairs;
        }
        pairs.emplace_back(name.text(), value.text());
        EXPECT_EQ(name.length, pairs.back().first.size());
        EXPECT_EQ(value.length, pairs.back().second.size());
    }
}

class GetScene : public testing::Test
{
protected:
    ~GetScene() override;

    // The calls, each with a buffer of the test's own; and the value that they find.
    [[nodiscard]] std::int32_t Get(const wchar_t* device, const wchar_t* parameter,
                                   OutputBuffer& value) const;
    [[nodiscard]] std::int32_t GetEx(const wchar_t* device, const wchar_t* section, const wchar_t* parameter,
                                     OutputBuffer& value) const;
    [[nodiscard]] std::wstring Value(const std::wstring& device, const wchar_t* parameter) const;
    [[nodiscard]] std::wstring ValueEx(const std::wstring& device, const wchar_t* section,
                                       const wchar_t* parameter) const;

    StoreRoots roots;
    DeviceStore store{roots};
    Exports library;
};

} // namespace norvepa::test
