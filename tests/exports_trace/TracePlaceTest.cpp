#include "support/LoadedLibrary.h"
#include "support/PortableExecutable.h"
#include "support/StoreRoots.h"
#include "support/TraceLines.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>

namespace norvepa::test
{
namespace
{

using testing::AnyOf;
using testing::HasSubstr;
using testing::StartsWith;

// The exports that look at no argument themselves: without any they ask for the text of an object without a
// name, and it's the failure of that which is traced.
const std::set<std::string> ExportsWithoutTests{
    "PGSP_BoardGetResourceStringBL", "PGSP_LogDeviceGetResourceStringBL", "PGSP_LogNameGetResourceStringBL"};

// The exports that leave without an exit trace when they refuse their arguments.
bool LeavesSilently(const std::string& name)
{
    return name == "NorvepaBl64x_deinit" || name.ends_with("RegisterNotification");
}

std::vector<std::string> RefusingExports()
{
    std::vector<std::string> names = PortableExecutable(LibraryPath()).exportedNames();
    std::erase_if(names, LeavesSilently);
    std::erase_if(names, [](const std::string& name) { return ExportsWithoutTests.contains(name); });
    return names;
}

// An export's tag is its name, a colon and a blank, but for three.
std::string TagOf(const std::string& name)
{
    static const std::map<std::string, std::string> others{
        {"LogDeviceGetValueExBL", "PGSP_LogDeviceGetValueExBL: "},
        {"PGSP_BoardGetNotSupportedBL", "PGSP_BoardGetValueCollectionBL: "}, // which it calls
        {"PGSP_GetLogNameListBL", "GetLogNameListBL"}};
    const auto other = others.find(name);
    return other == others.end() ? name + ": " : other->second;
}

// No export takes more than eight arguments, and what the caller passes beyond them is not looked at.
std::int32_t CallWithoutArguments(const LoadedLibrary& library, const std::string& name)
{
    using EightZeros = int32_t(void*, void*, void*, void*, void*, void*, void*, void*);
    EightZeros* const function = library.Find(name.c_str());
    return function(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
}

struct Place
{
    std::string file; // its first twelve characters
    std::size_t line;
};

// Of the last exit that was traced with a tag.
std::optional<Place> PlaceOfExit(const std::vector<std::string>& lines, const std::string& tag)
{
    const std::regex exit(" FE .* ([^ ]+),(\\d{5}) " + tag + " <<");
    std::optional<Place> place;
    for (const std::string& line : lines)
    {
        if (std::smatch found; std::regex_search(line, found, exit))
        {
            place = Place{found[1], std::stoul(found[2])};
        }
    }
    return place;
}

// What stands at a place of the sources, in the file that holds the tag, behind it.
std::string SourceLine(const Place& place, const std::string& tag)
{
    const std::string quoted = "\"" + tag + "\"";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(FromUtf8(NORV_SERVICE_SOURCES)))
    {
        const std::string name = ToUtf8(entry.path().filename().wstring());
        const std::string source = entry.is_regular_file() ? ReadBytes(entry.path().wstring()) : "";
        if (!name.starts_with(place.file) || source.find(quoted) == std::string::npos)
        {
            continue;
        }
        std::istringstream rest(source);
        std::string line;
        bool isInside = false;
        for (std::size_t number = 0; number < place.line; ++number)
        {
            std::getline(rest, line);
            isInside = isInside || line.find(quoted) != std::string::npos;
        }
        return isInside ? line : "ahead of the export: " + line;
    }
    return "no file with " + tag + " begins with " + place.file;
}

class TracePlace : public testing::TestWithParam<std::string>
{
protected:
    TracePlace() : m_lines(AllTraceLevels, L"LONG") {}

    [[nodiscard]] std::string SourceOfExit(const std::string& exportName) const
    {
        const std::string tag = TagOf(exportName);
        const std::optional<Place> place = PlaceOfExit(m_lines.read(), tag);
        return place ? SourceLine(*place, tag) : "no exit is traced";
    }

    StoreRoots roots;

private:
    TraceLines m_lines;
};

TEST_P(TracePlace, OfARefusalIsTheLineOfTheExportThatLeft)
{
    const LoadedLibrary library;

    static_cast<void>(CallWithoutArguments(library, GetParam()));

    EXPECT_THAT(SourceOfExit(GetParam()), AnyOf(StartsWith("            return frame.InvalidParameters();"),
                                                StartsWith("        return ReturnStoreFiles(frame,")));
}

INSTANTIATE_TEST_SUITE_P(EachExport, TracePlace, testing::ValuesIn(RefusingExports()),
                         [](const auto& each) { return each.param; });

using TracePlaceWithoutTests = TracePlace;

TEST_P(TracePlaceWithoutTests, OfAMissingObjectIsTheLineOfTheExportThatLeft)
{
    const LoadedLibrary library;

    EXPECT_EQ(CallWithoutArguments(library, GetParam()), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_THAT(SourceOfExit(GetParam()), StartsWith("        return frame.Return(PGSP_LoadResourceString("));
}

INSTANTIATE_TEST_SUITE_P(EachExport, TracePlaceWithoutTests, testing::ValuesIn(ExportsWithoutTests),
                         [](const auto& each) { return each.param; });

class TracePlaceOfSharedExits : public TracePlace
{
};

TEST_F(TracePlaceOfSharedExits, OfAReturnIsTheExports)
{
    const Exports library;
    wchar_t value[20] = L"";
    uint32_t length = 20;

    static_cast<void>(library.LogNameGetValueBL(L"nobody", nullptr, value, &length));

    EXPECT_THAT(SourceOfExit("LogNameGetValueBL"), HasSubstr("return frame.Return(result);"));
}

TEST_F(TracePlaceOfSharedExits, OfAListIsTheExports)
{
    const Exports library;
    wchar_t list[20] = L"";
    uint32_t length = 20;

    static_cast<void>(library.LogNameGetValueListBL(L"nobody", nullptr, nullptr, 0, list, &length));

    EXPECT_THAT(SourceOfExit("LogNameGetValueListBL"), HasSubstr("return ReturnValueList(frame,"));
}

TEST_F(TracePlaceOfSharedExits, OfAnAccessTestIsTheExports)
{
    const Exports library;

    static_cast<void>(library.LogNameExistBL(L"nobody", 0));

    EXPECT_THAT(SourceOfExit("LogNameExistBL"), HasSubstr("TestAccess(frame,"));
}

TEST_F(TracePlaceOfSharedExits, OfAnEnumerationIsTheExports)
{
    const Exports library;
    wchar_t name[260] = L"";
    uint32_t length = 260;

    static_cast<void>(library.LogDeviceGetEnumBL(nullptr, 0, name, &length));

    EXPECT_THAT(SourceOfExit("LogDeviceGetEnumBL"), HasSubstr("TraceEnumEnd(frame,"));
}

} // namespace
} // namespace norvepa::test
