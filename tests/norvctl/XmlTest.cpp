#include "support/Norvctl.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

// Blanks, tabs and line ends are left out; of the sample store's files nothing else is.
std::string WithoutBlanks(std::string text)
{
    std::erase_if(text,
                  [](char byte) { return std::string_view(" \t\r\n").find(byte) != std::string_view::npos; });
    return text;
}

class NorvctlXml : public Norvctl
{
protected:
    // Prints a log device with these bytes for a file.
    [[nodiscard]] ProgramEnd Printed(std::string_view file) const
    {
        WriteBytes(LogDevicePath(L"Schieber"), file);
        return RunNorvctl({L"device", L"xml", L"Schieber"});
    }
};

struct Kind
{
    const char* name;
    std::wstring noun;
    std::wstring object;
    std::wstring file; // below the copy of the sample store
    const char* missing;
};

void PrintTo(const Kind& kind, std::ostream* stream)
{
    *stream << kind.name;
}

class NorvctlXmlOf : public NorvctlXml, public testing::WithParamInterface<Kind>
{
};

TEST_P(NorvctlXmlOf, IsTheFileThatIsStored)
{
    const ProgramEnd end = RunNorvctl({GetParam().noun, L"xml", GetParam().object});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(WithoutBlanks(end.output), WithoutBlanks(ReadBytes(folder / GetParam().file)));
    EXPECT_EQ(end.error, "");
}

TEST_P(NorvctlXmlOf, AsJsonIsOneDocument)
{
    const std::string text = OutputOfNorvctl({GetParam().noun, L"xml", GetParam().object});

    const json document =
        json::parse(OutputOfNorvctl({L"--json", GetParam().noun, L"xml", GetParam().object}));

    EXPECT_EQ(document.size(), 2U);
    EXPECT_EQ(document.at(ToUtf8(GetParam().noun)), ToUtf8(GetParam().object));
    EXPECT_EQ(document.at("xml").get<std::string>() + "\n", text);
}

TEST_P(NorvctlXmlOf, AMissingNameFails)
{
    for (const Words& words :
         {Words{GetParam().noun, L"xml", L"gone"}, Words{L"--json", GetParam().noun, L"xml", L"gone"}})
    {
        const ProgramEnd end = RunNorvctl(words);

        EXPECT_EQ(end.exitCode, 1U);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, GetParam().missing);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, NorvctlXmlOf,
    testing::Values(Kind{"ALogName", L"name", L"St\u00F6rung?",
                         L"data-root\\data\\LogNames\\St\u00F6rung#3f.xml",
                         "norvctl: gone: there are no more items (259 PGSP_ERR_NO_MORE_ITEMS): "
                         "there is no such log name, or it cannot be read\n"},
                    Kind{"ALogDevice", L"device", L"Presse#3",
                         L"data-root\\data\\LogDevices\\Presse(nmbr)3.xml",
                         "norvctl: gone: there are no more items (259 PGSP_ERR_NO_MORE_ITEMS): "
                         "there is no such log device, or it cannot be read\n"},
                    Kind{"ABoard", L"board", L"*AFK220",
                         L"program-root\\meta\\Boards\\Automation-OnlineAccess-BT-AFK220.xml",
                         "norvctl: gone: there are no more items (259 PGSP_ERR_NO_MORE_ITEMS): "
                         "there is no such board, or it cannot be read\n"},
                    Kind{"ATemplate", L"template", L"L2-AFK110",
                         L"program-root\\meta\\DefaultLogDevices\\Automation-OnlineAccess-LDT-L2-AFK110.xml",
                         "norvctl: gone: there are no more items (259 PGSP_ERR_NO_MORE_ITEMS): "
                         "there is no such template, or it cannot be read\n"},
                    Kind{"AProtocol", L"protocol", L"L2",
                         L"program-root\\meta\\Protocols\\Automation-OnlineAccess-PT-L2.xml",
                         "norvctl: gone: there are no more items (259 PGSP_ERR_NO_MORE_ITEMS): "
                         "there is no such protocol, or it cannot be read\n"}),
    [](const auto& kind) { return kind.param.name; });

// Pieces have 4096 bytes, the zero byte behind the file counts as one.
class NorvctlXmlOfLength : public NorvctlXml, public testing::WithParamInterface<std::size_t>
{
};

TEST_P(NorvctlXmlOfLength, IsByteForByteWhatTheLibraryHandsOut)
{
    std::string file = "<a>";
    while (file.size() < GetParam())
    {
        file += "\u03A9\r\n\u20AC\n";
    }
    file.resize(GetParam()); // in the midst of a character, may be

    const ProgramEnd end = Printed(file);

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.rawOutput, file.back() == '\n' ? file : file + '\n');
}

INSTANTIATE_TEST_SUITE_P(OnePieceAndMore, NorvctlXmlOfLength,
                         testing::Values(100, 4094, 4095, 4096, 4097, 8191, 8192, 20'000));

TEST_F(NorvctlXml, LeavesOutWhatStandsBlankBetweenTheTags)
{
    EXPECT_EQ(Printed("<a>\r\n  <b> x </b>\t</a>\n").rawOutput, "<a><b>x </b></a>\n");
}

TEST_F(NorvctlXml, EndsInOneLineFeed)
{
    EXPECT_EQ(Printed("<a/>x").rawOutput, "<a/>x\n");
    EXPECT_EQ(Printed("<a/>x\n").rawOutput, "<a/>x\n");
    EXPECT_EQ(Printed("<a/>x\r\n").rawOutput, "<a/>x\r\n");
    EXPECT_EQ(Printed("").rawOutput, "\n");
}

TEST_F(NorvctlXml, GivesAnyBytesOn)
{
    const std::string file("<a>\xE4\x1A\0\xFF</a>", 11);

    EXPECT_EQ(Printed(file).rawOutput, file + '\n');
}

TEST_F(NorvctlXml, ThatIsNotUtf8CannotBeJson)
{
    WriteBytes(LogDevicePath(L"Schieber"), "<a>\xE4</a>");

    const ProgramEnd end = RunNorvctl({L"--json", L"device", L"xml", L"Schieber"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: Schieber: the file is not UTF-8, as a JSON document has to be\n");
}

TEST_F(NorvctlXml, OfANameThatIsTooLongFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"xml", std::wstring(260, L'x')});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error,
                HasSubstr("x: the text or the path is too long (234 PGSP_ERR_BUFFER_TOO_SHORT)\n"));
}

TEST_F(NorvctlXml, OfNoNameFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"xml", L""});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("(87 PGSP_ERR_INVALID_PARAMETERS)"));
}

} // namespace
} // namespace norvepa::test
