#pragma once

// Files to read from, and what a read answered.

#include "store/norvxml.h"
#include "support/TemporaryFolder.h"
#include "support/XmlFiles.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>
#include <string_view>

namespace norvepa::test
{

// What the output strings of a read hold before it is called.
inline constexpr std::wstring_view Before = L"before";

// The result of a read with one output, and the output.
struct Answer
{
    Result result;
    std::wstring value;

    bool operator==(const Answer&) const = default;
};

void PrintTo(const Answer& answer, std::ostream* out);

[[nodiscard]] Answer Found(std::wstring_view value);
[[nodiscard]] Answer NotFound();             // and the output is empty
[[nodiscard]] Answer Refused(Result result); // and the output is as it was

// The same of an enumeration of pairs.
struct Item
{
    Result result;
    std::wstring name;
    std::wstring value;

    bool operator==(const Item&) const = default;
};

void PrintTo(const Item& item, std::ostream* out);

[[nodiscard]] Item NoItem(Result result); // and the outputs are as they were

class ReadScene : public testing::Test
{
protected:
    // Writes the bytes as "folder\name.xml" and answers that path as the store takes it: without extension.
    [[nodiscard]] std::wstring File(std::string_view bytes, std::wstring_view name = L"file") const;

    [[nodiscard]] const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

// The reads with one output. Paths are given as the store takes them.
[[nodiscard]] Answer GetValue(const std::wstring& file, const wchar_t* section, const wchar_t* parameter);
[[nodiscard]] Answer GetValueRaw(const std::wstring& file, const wchar_t* sectionPath,
                                 const wchar_t* parameter);
[[nodiscard]] Answer GetSubdevValue(const std::wstring& file, const wchar_t* subdevName,
                                    const wchar_t* parameter);

} // namespace norvepa::test
