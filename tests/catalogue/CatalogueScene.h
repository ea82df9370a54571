#pragma once

// Catalogue files in a folder of their own, and what the queries answer about them. Paths are given as the
// queries take them. What was parsed stays in memory, which is why every scene has a folder that none had
// before.

#include "catalogue/norvxmlCatalogue.h"
#include "support/TemporaryFolder.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>
#include <string_view>

namespace norvepa::test
{

// What output strings hold before a query.
inline constexpr std::wstring_view Before = L"before";

// The result of a query with one output, and the output.
struct TextAnswer
{
    Result result;
    std::wstring text;

    bool operator==(const TextAnswer&) const = default;
};

// The result of a query with two, and those.
struct PairAnswer
{
    Result result;
    std::wstring name;
    std::wstring value;

    bool operator==(const PairAnswer&) const = default;
};

void PrintTo(const TextAnswer& answer, std::ostream* out);
void PrintTo(const PairAnswer& answer, std::ostream* out);

[[nodiscard]] TextAnswer Found(std::wstring_view text);
[[nodiscard]] PairAnswer Found(std::wstring_view name, std::wstring_view value);

// With the outputs as they were.
[[nodiscard]] TextAnswer NoText(Result result = PGSP_ERR_PARAM_NOT_FOUND);
[[nodiscard]] PairAnswer NoPair(Result result = PGSP_ERR_NO_MORE_ITEMS);

class CatalogueScene : public testing::Test
{
protected:
    // Writes the bytes as "folder\name.xml" and answers that path as the queries take it: without extension.
    [[nodiscard]] std::wstring File(std::string_view bytes, std::wstring_view name = L"file") const;

    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

// A protocol that holds nothing but this below its `Constraints`.
[[nodiscard]] std::string WithConstraints(const XmlContent& sections);

// A collection of sections, one a value.
[[nodiscard]] XmlContent Values(const XmlContent& sections);

// What `query` answers into a string.
template <typename Query>
[[nodiscard]] TextAnswer TextOf(const Query& query)
{
    std::wstring text(Before);
    const Result result = query(&text);
    return {result, text};
}

// What `query` answers into buffers with room for all; one that is untouched counts as `Before`.
template <typename Query>
[[nodiscard]] PairAnswer PairOf(const Query& query)
{
    constexpr std::uint32_t room = 300;
    std::wstring name(Before);
    std::wstring value(Before);
    name.resize(room);
    value.resize(room);
    std::uint32_t nameLength = room;
    std::uint32_t valueLength = room;
    const Result result = query(PairBuffers{name.data(), &nameLength, value.data(), &valueLength});
    return {result, name.c_str(), value.c_str()};
}

} // namespace norvepa::test
