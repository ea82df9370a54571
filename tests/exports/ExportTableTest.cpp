#include "support/LoadedLibrary.h"
#include "support/PortableExecutable.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::Each;
using testing::Eq;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

// An export's row on the page, its cells without the blanks around them.
using Row = std::vector<std::string>;

constexpr std::size_t CellsOfARow = 5; // export, purpose, result codes, notifies, reads
constexpr std::size_t CodesCell = 2;

std::vector<std::string> SplitAt(const std::string& separator, const std::string& text)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t end = text.find(separator); end != std::string::npos; end = text.find(separator, begin))
    {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + separator.size();
    }
    parts.push_back(text.substr(begin));
    return parts;
}

// Only an export stands as code in a first cell.
std::vector<Row> Rows()
{
    std::istringstream page(ReadBytes(FromUtf8(NORV_EXPORT_TABLE)));
    const std::regex row("\\| (`.*) \\|\\s*");
    std::vector<Row> rows;
    std::smatch found;
    for (std::string line; std::getline(page, line);)
    {
        if (std::regex_match(line, found, row))
        {
            rows.push_back(SplitAt(" | ", found[1]));
        }
    }
    return rows;
}

// The result codes of the header as the page writes them: the word as code, a blank, the number.
std::set<std::string> WrittenCodes(const std::string& header)
{
    const std::regex code("\\b(PGSP_\\w+) = (\\d+)\\b");
    std::set<std::string> written;
    for (std::sregex_iterator each(header.begin(), header.end(), code), end; each != end; ++each)
    {
        written.insert("`" + (*each)[1].str() + "` " + (*each)[2].str());
    }
    return written;
}

class ExportTable : public testing::Test
{
protected:
    [[nodiscard]] static std::string NameOf(const Row& row) { return row[0].substr(1, row[0].size() - 2); }

    [[nodiscard]] std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const Row& row : rows)
        {
            names.push_back(NameOf(row));
        }
        return names;
    }

    [[nodiscard]] bool HasNoResult(const Row& row) const
    {
        return header.find("\nvoid " + NameOf(row) + "(") != std::string::npos;
    }

    const std::string header = ReadBytes(FromUtf8(NORV_PUBLIC_HEADER));
    const std::vector<Row> rows = Rows();
};

// What the first holds and the second doesn't, or not as often.
std::vector<std::string> Surplus(std::vector<std::string> first, std::vector<std::string> second)
{
    std::ranges::sort(first);
    std::ranges::sort(second);
    std::vector<std::string> surplus;
    std::ranges::set_difference(first, second, std::back_inserter(surplus));
    return surplus;
}

TEST_F(ExportTable, HasOneRowForEachExport)
{
    const std::vector<std::string> exports = PortableExecutable(LibraryPath()).exportedNames();

    EXPECT_THAT(Surplus(exports, Names()), IsEmpty());
}

TEST_F(ExportTable, HasNoOtherRow)
{
    const std::vector<std::string> exports = PortableExecutable(LibraryPath()).exportedNames();

    EXPECT_THAT(Surplus(Names(), exports), IsEmpty());
}

TEST_F(ExportTable, LeavesNoCellEmpty)
{
    ASSERT_THAT(rows, Not(IsEmpty()));
    for (const Row& row : rows)
    {
        EXPECT_THAT(row, SizeIs(CellsOfARow)) << row[0];
        EXPECT_THAT(row, Each(Not(IsEmpty()))) << row[0];
    }
}

TEST_F(ExportTable, NamesResultCodesAsThePublicHeaderDoes)
{
    const std::set<std::string> known = WrittenCodes(header);

    for (const Row& row : rows)
    {
        ASSERT_THAT(row, SizeIs(CellsOfARow)) << row[0];
        for (const std::string& code : SplitAt(", ", row[CodesCell]))
        {
            EXPECT_TRUE(HasNoResult(row) ? code == "none" : known.contains(code)) << row[0] << ", " << code;
        }
    }
}

TEST_F(ExportTable, BeginsTheResultCodesWithSuccessAndRepeatsNone)
{
    for (const Row& row : rows)
    {
        ASSERT_THAT(row, SizeIs(CellsOfARow)) << row[0];
        const std::vector<std::string> codes = SplitAt(", ", row[CodesCell]);
        EXPECT_THAT(codes.front(), Eq(HasNoResult(row) ? "none" : "`PGSP_OK` 0")) << row[0];
        EXPECT_THAT(std::set<std::string>(codes.begin(), codes.end()), SizeIs(codes.size())) << row[0];
    }
}

} // namespace
} // namespace norvepa::test
