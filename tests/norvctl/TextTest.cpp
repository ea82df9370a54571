#include "support/Norvctl.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::AnyOf;
using testing::HasSubstr;

class NorvctlText : public Norvctl
{
protected:
    NorvctlText() { LayOutTexts(); }

    static std::string Text(const std::wstring& noun, const std::wstring& object, const std::wstring& text,
                            const std::wstring& language)
    {
        return OutputOfNorvctl({noun, L"text", object, text, L"--language", language});
    }
};

struct Known
{
    const char* name;
    std::wstring noun;
    std::wstring object;
    std::wstring text;
    const char* german;
    const char* english;
};

void PrintTo(const Known& known, std::ostream* stream)
{
    *stream << known.name;
}

class NorvctlTexts : public NorvctlText, public testing::WithParamInterface<Known>
{
};

TEST_P(NorvctlTexts, AreToldInTheLanguageAskedFor)
{
    const Known& known = GetParam();

    EXPECT_EQ(Text(known.noun, known.object, known.text, L"de"), known.german);
    EXPECT_EQ(Text(known.noun, known.object, known.text, L"EN"), known.english);
}

INSTANTIATE_TEST_SUITE_P(
    Objects, NorvctlTexts,
    testing::Values(Known{"OfALogDevice", L"device", L"Labor", L"DescText",
                          "Laborger\u00E4te und Probennahme\n", "Laboratory devices and sampling\n"},
                    Known{"OfABlockOfALogDevice", L"device", L"Kesselhaus", L"BaudrateResource\\3",
                          "93,75 kbit/s\n", "93.75 kbit/s\n"},
                    Known{"OfALogName", L"name", L"Kessel#1", L"DescText", "Kessel 1\n", "Boiler 1\n"},
                    Known{"OfABoard", L"board", L"*AFK110", L"DescText", "Feldbuskarte 110\n",
                          "Fieldbus board 110\n"},
                    Known{"OfATemplate", L"template", L"L2-AFK110", L"DescText", "Vorlage L2-AFK110\n",
                          "Template L2-AFK110\n"}),
    [](const auto& known) { return known.param.name; });

TEST_F(NorvctlText, InALanguageThatIsNotThereIsEnglish)
{
    EXPECT_EQ(Text(L"device", L"Labor", L"DescText", L"fr"), "Laboratory devices and sampling\n");
}

TEST_F(NorvctlText, WithoutALanguageIsInTheUsersOwn)
{
    EXPECT_THAT(OutputOfNorvctl({L"name", L"text", L"Kessel#1", L"DescText"}),
                AnyOf("Kessel 1\n", "Boiler 1\n"));
}

TEST_F(NorvctlText, For32BitProcessesIsThatOfTheOtherSection)
{
    OutputOfNorvctl({L"device", L"ndi", L"set", L"Labor", L"DescText", L"AuentalTexte.dll,3102", L"--32"});

    EXPECT_EQ(OutputOfNorvctl({L"device", L"text", L"Labor", L"DescText", L"--language", L"de", L"--32"}),
              "Universell\n");
    EXPECT_EQ(Text(L"device", L"Labor", L"DescText", L"de"), "Laborger\u00E4te und Probennahme\n");
}

TEST_F(NorvctlText, AsJsonIsOneDocument)
{
    const json ofDevice = json::parse(
        OutputOfNorvctl({L"--json", L"device", L"text", L"Labor", L"DescText", L"--language", L"en"}));
    const json ofBoard = json::parse(
        OutputOfNorvctl({L"--json", L"board", L"text", L"AFK220", L"DescDefault", L"--language", L"de"}));

    EXPECT_EQ(
        ofDevice,
        (json{{"device", "Labor"}, {"text", "DescText"}, {"value", "Laboratory devices and sampling"}}));
    EXPECT_EQ(ofBoard,
              (json{{"board", "AFK220"}, {"text", "DescDefault"}, {"value", "Karte der Anlage Auental"}}));
}

TEST_F(NorvctlText, ThatNoLinkNamesFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"text", L"Labor", L"gone"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error,
              "norvctl: Labor, gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
}

TEST_F(NorvctlText, ThatTheLibraryLacksFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"text", L"Labor", L"DescText\\400"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(
        end.error,
        "norvctl: Labor, DescText\\400: the text cannot be loaded (8522 PGSP_ERR_CANT_LOAD_RESOURCE)\n");
}

TEST_F(NorvctlText, OfAMissingObjectFails)
{
    for (const wchar_t* const noun : {L"device", L"name", L"board", L"template"})
    {
        const ProgramEnd end = RunNorvctl({noun, L"text", L"gone", L"DescText"});

        EXPECT_EQ(end.exitCode, 1U);
        EXPECT_EQ(end.error, "norvctl: gone, DescText: the file cannot be opened or parsed "
                             "(8508 PGSP_ERR_CANT_LOAD_XML_FILE)\n");
    }
}

TEST_F(Norvctl, TextOfALibraryThatIsNotThereFails)
{
    const ProgramEnd end = RunNorvctl({L"name", L"text", L"Kessel#1", L"DescText", L"--language", L"de"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("the resource library cannot be loaded (8101 PGSP_ERR_CANT_LOAD_DLL)"));
}

} // namespace
} // namespace norvepa::test
