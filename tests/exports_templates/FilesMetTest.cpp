#include "TemplateScene.h"
#include "support/PrefixedName.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

struct Folder
{
    const wchar_t* word;
    const std::wstring& prefix;
};

const Folder Boards{L"Boards", BoardPrefix};
const Folder Protocols{L"Protocols", ProtocolPrefix};
const Folder Templates{L"DefaultLogDevices", TemplatePrefix};
const Folder Own{L"Own", TemplatePrefix};

// Which of the exports meet a file by a name.
struct Meeting
{
    const char* name; // of the test
    Folder folder;
    std::wstring_view asked;
    std::wstring_view file;
    const char* by;
};

void PrintTo(const Meeting& meeting, std::ostream* out)
{
    *out << ToUtf8(meeting.asked) << " in " << ToUtf8(meeting.folder.word) << ", the file "
         << ToUtf8(meeting.file);
}

std::string NameOf(const testing::TestParamInfo<Meeting>& info)
{
    return info.param.name;
}

class FilesMet : public TemplateScene, public testing::WithParamInterface<Meeting>
{
protected:
    // The exports that meet a file by the name, each by its own way to the file.
    [[nodiscard]] std::string MetBy(const std::wstring& folder, const std::wstring& name) const
    {
        std::string exports;
        exports += Exist(folder, name) == PGSP_OK ? "Exist " : "";
        exports += KeyExists(folder, name, L"Constraints") == PGSP_OK ? "Key " : "";
        exports += Item(folder, name, L"Constraints\\p", 0) == L"item" ? "Enum " : "";
        exports += Constraint(folder, name, L"p", L"type") == L"int" ? "Constraint " : "";
        exports += Set(folder, name, L"a", L"2") == PGSP_OK ? "Set " : "";
        return exports.substr(0, exports.find_last_not_of(' ') + 1);
    }
};

TEST_P(FilesMet, ByTheNameAre)
{
    const auto& [name, folder, asked, file, by] = GetParam();
    const XmlContent parameter =
        XmlContent().ParamSection(L"p", XmlContent().Element(L"type", L"int").ValueCollection({L"item"}));
    const XmlContent content =
        XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1")).Element(L"Constraints", parameter);
    WriteIn(folder.word, PrefixedName(file, folder.prefix), content);

    EXPECT_EQ(MetBy(folder.word, PrefixedName(asked, folder.prefix)), by);
}

constexpr char All[] = "Exist Key Enum Constraint Set";

INSTANTIATE_TEST_SUITE_P(
    OfBoards, FilesMet,
    testing::Values(Meeting{"Bare", Boards, L"X", L"{Prefix}X", All},
                    Meeting{"BareWithoutPrefix", Boards, L"X", L"X", ""},
                    Meeting{"BareByAnotherCase", Boards, L"\u00C4X", L"{Prefix}\u00E4x", All},
                    Meeting{"WithExtension", Boards, L"X.xml", L"{Prefix}X", All},
                    Meeting{"WithStar", Boards, L"*X", L"{Prefix}X", All},
                    Meeting{"WithTwoStars", Boards, L"**X", L"{Prefix}#2aX", "Key Set"},
                    Meeting{"WithTwoStarsEscapedTwice", Boards, L"**X", L"{Prefix}(nmbr)2aX", "Enum"},
                    Meeting{"WithPrefix", Boards, L"{Prefix}X", L"{Prefix}X", All},
                    Meeting{"WithStarAndPrefixLost", Boards, L"*{Prefix}X", L"{Prefix}X", "Exist"},
                    Meeting{"WithStarAndPrefixKept", Boards, L"*{Prefix}X", L"#2a{Prefix}X", "Key Set"},
                    Meeting{"WithStarAndPrefixEscapedTwice", Boards, L"*{Prefix}X", L"(nmbr)2a{Prefix}X",
                            "Enum"},
                    Meeting{"WithPrefixInside", Boards, L"Old-{Prefix}X", L"Old-{Prefix}X", All},
                    Meeting{"WithPrefixInCapitals", Boards, L"{PREFIX}X", L"{Prefix}X", "Exist Key"},
                    Meeting{"WithPrefixInCapitalsAndAnother", Boards, L"{PREFIX}X", L"{Prefix}{PREFIX}X",
                            "Enum Constraint Set"},
                    Meeting{"WithPrefixInSmallLetters", Boards, L"{prefix}X", L"{Prefix}X", "Exist Key"},
                    Meeting{"WithAnotherPrefix", Boards, L"Automation-OnlineAccess-PT-X",
                            L"{Prefix}Automation-OnlineAccess-PT-X", All},
                    Meeting{"Uncoded", Boards, L"50% X", L"{Prefix}50% X", "Exist Constraint"},
                    Meeting{"Coded", Boards, L"50% X", L"{Prefix}50#25 X", "Key Set"},
                    Meeting{"CodedTwice", Boards, L"50% X", L"{Prefix}50(nmbr)25 X", "Enum"},
                    Meeting{"InCapitalFolder", {L"BOARDS", BoardPrefix}, L"*X", L"{Prefix}X", All},
                    Meeting{"InSmallFolder", {L"boards", BoardPrefix}, L"*X", L"{Prefix}X", All}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    OfProtocols, FilesMet,
    testing::Values(Meeting{"Bare", Protocols, L"X", L"{Prefix}X", All},
                    Meeting{"BareWithoutPrefix", Protocols, L"X", L"X", ""},
                    Meeting{"BareByAnotherCase", Protocols, L"\u00C4X", L"{Prefix}\u00E4x", All},
                    Meeting{"WithExtension", Protocols, L"X.xml", L"{Prefix}X", All},
                    Meeting{"WithStarLost", Protocols, L"*X", L"{Prefix}X", ""},
                    Meeting{"WithStarKept", Protocols, L"*X", L"{Prefix}#2aX", "Key Set"},
                    Meeting{"WithStarEscapedTwice", Protocols, L"*X", L"{Prefix}(nmbr)2aX", "Enum"},
                    Meeting{"WithPrefix", Protocols, L"{Prefix}X", L"{Prefix}X", All},
                    Meeting{"WithStarAndPrefixLost", Protocols, L"*{Prefix}X", L"{Prefix}X", ""},
                    Meeting{"WithStarAndPrefixKept", Protocols, L"*{Prefix}X", L"#2a{Prefix}X", "Key Set"},
                    Meeting{"WithPrefixInside", Protocols, L"Old-{Prefix}X", L"Old-{Prefix}X", All},
                    Meeting{"WithPrefixInCapitals", Protocols, L"{PREFIX}X", L"{Prefix}X", "Exist Key"},
                    Meeting{"WithPrefixInCapitalsAndAnother", Protocols, L"{PREFIX}X", L"{Prefix}{PREFIX}X",
                            "Enum Constraint Set"},
                    Meeting{"WithAnotherPrefix", Protocols, L"Automation-OnlineAccess-BT-X",
                            L"{Prefix}Automation-OnlineAccess-BT-X", All},
                    Meeting{"Uncoded", Protocols, L"50% X", L"{Prefix}50% X", "Exist Constraint"},
                    Meeting{"Coded", Protocols, L"50% X", L"{Prefix}50#25 X", "Key Set"},
                    Meeting{"CodedTwice", Protocols, L"50% X", L"{Prefix}50(nmbr)25 X", "Enum"},
                    Meeting{"InCapitalFolder", {L"PROTOCOLS", ProtocolPrefix}, L"X", L"{Prefix}X", All},
                    Meeting{"InSmallFolder", {L"protocols", ProtocolPrefix}, L"X", L"{Prefix}X", All}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    OfTemplates, FilesMet,
    testing::Values(
        Meeting{"Bare", Templates, L"X", L"{Prefix}X", "Exist Key Enum Set"},
        Meeting{"BareWithoutPrefix", Templates, L"X", L"X", "Constraint"},
        Meeting{"BareByAnotherCase", Templates, L"\u00C4X", L"{Prefix}\u00E4x", "Exist Key Enum Set"},
        Meeting{"WithExtension", Templates, L"X.xml", L"{Prefix}X", "Exist Key Enum Set"},
        Meeting{"WithStarLost", Templates, L"*X", L"{Prefix}X", ""},
        Meeting{"WithStarKept", Templates, L"*X", L"{Prefix}#2aX", "Exist Key Set"},
        Meeting{"WithStarEscapedTwice", Templates, L"*X", L"{Prefix}(nmbr)2aX", "Enum"},
        Meeting{"WithPrefix", Templates, L"{Prefix}X", L"{Prefix}X", All},
        Meeting{"WithStarAndPrefixKept", Templates, L"*{Prefix}X", L"#2a{Prefix}X", "Set"},
        Meeting{"WithPrefixInside", Templates, L"Old-{Prefix}X", L"Old-{Prefix}X", All},
        Meeting{"WithPrefixInCapitals", Templates, L"{PREFIX}X", L"{Prefix}X", "Exist Key Constraint"},
        Meeting{"WithPrefixInCapitalsAndAnother", Templates, L"{PREFIX}X", L"{Prefix}{PREFIX}X", "Enum Set"},
        Meeting{"WithAnotherPrefix", Templates, L"Automation-OnlineAccess-BT-X",
                L"{Prefix}Automation-OnlineAccess-BT-X", "Exist Key Enum Set"},
        Meeting{"Uncoded", Templates, L"50% X", L"{Prefix}50% X", ""},
        Meeting{"UncodedWithoutPrefix", Templates, L"50% X", L"50% X", "Constraint"},
        Meeting{"Coded", Templates, L"50% X", L"{Prefix}50#25 X", "Exist Key Set"},
        Meeting{"CodedTwice", Templates, L"50% X", L"{Prefix}50(nmbr)25 X", "Enum"},
        Meeting{"UncodedWithPrefix", Templates, L"{Prefix}50% X", L"{Prefix}50% X", "Exist Key Constraint"},
        Meeting{"CodedWithPrefix", Templates, L"{Prefix}50% X", L"{Prefix}50#25 X", "Set"},
        Meeting{"InCapitalFolder",
                {L"DEFAULTLOGDEVICES", TemplatePrefix},
                L"X",
                L"{Prefix}X",
                "Exist Key Enum Set"},
        Meeting{"InSmallFolder",
                {L"defaultlogdevices", TemplatePrefix},
                L"X",
                L"{Prefix}X",
                "Exist Key Enum Set"}),
    NameOf);

// A key is there in any case in such a folder.
INSTANTIATE_TEST_SUITE_P(
    OfAFolderOfTheCallersOwn, FilesMet,
    testing::Values(
        Meeting{"Bare", Own, L"X", L"X", All}, Meeting{"BareByAnotherCase", Own, L"\u00C4X", L"\u00E4x", All},
        Meeting{"BareWithPrefix", Own, L"X", L"{Prefix}X", "Key"},
        Meeting{"WithPrefix", Own, L"{Prefix}X", L"{Prefix}X", All},
        Meeting{"WithStarLost", Own, L"*X", L"X", "Key"},
        Meeting{"WithStarKept", Own, L"*X", L"#2aX", "Key Set"},
        Meeting{"WithStarEscapedTwice", Own, L"*X", L"(nmbr)2aX", "Key Enum"},
        Meeting{"Uncoded", Own, L"50% X", L"50% X", "Exist Key Constraint"},
        Meeting{"Coded", Own, L"50% X", L"50#25 X", "Key Set"},
        Meeting{"CodedTwice", Own, L"50% X", L"50(nmbr)25 X", "Key Enum"},
        Meeting{"InAFolderBelow", {L"Own\\Deep", TemplatePrefix}, L"X", L"X", All},
        Meeting{"InAFolderThatIsAlmostOneOfTheThree", {L"Boards2", BoardPrefix}, L"*X", L"{Prefix}X", "Key"}),
    NameOf);

} // namespace
} // namespace norvepa::test
