#include "support/Norvctl.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlSettings : public Norvctl
{
protected:
    static ProgramEnd Get(const std::wstring& name) { return RunNorvctl({L"settings", L"get", name}); }

    static ProgramEnd Set(const std::wstring& name, const std::wstring& value)
    {
        return RunNorvctl({L"settings", L"set", name, value});
    }
};

TEST_F(NorvctlSettings, GetTellsOneOfAnySection)
{
    EXPECT_EQ(Get(L"PlantName").output, "Zuckerfabrik Auental\n");
    EXPECT_EQ(Get(L"UpdateState").output, "vollst\u00E4ndig\n");
    EXPECT_EQ(Get(L"LastChangeDate").output, "2024-03-14\n");
}

TEST_F(NorvctlSettings, GetAsJsonIsAnObject)
{
    const json got = json::parse(OutputOfNorvctl({L"--json", L"settings", L"get", L"ConductivityUnit"}));

    EXPECT_EQ(got, (json{{"setting", "ConductivityUnit"}, {"value", "\u00B5S/cm"}}));
}

TEST_F(NorvctlSettings, GetTellsALongValueWhole)
{
    const std::wstring text(5000, L'x');
    Set(L"Remark", text);

    EXPECT_EQ(Get(L"Remark").output, ToUtf8(text) + "\n");
}

TEST_F(NorvctlSettings, GetOfWhatIsNotThereFails)
{
    const ProgramEnd end = Get(L"gone");

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: gone: there is no such parameter (8513 PGSP_ERR_PARAM_NOT_FOUND)\n");
}

TEST_F(NorvctlSettings, SetStoresAValueOnce)
{
    const ProgramEnd first = Set(L"PlantNumber", L"AU-018");
    const ProgramEnd second = Set(L"PlantNumber", L"AU-018");

    EXPECT_EQ(first.output, "set PlantNumber\n");
    EXPECT_EQ(first.error, "");
    EXPECT_EQ(second.exitCode, 0U);
    EXPECT_EQ(second.output, "unchanged PlantNumber\n");
    EXPECT_EQ(Get(L"PlantNumber").output, "AU-018\n");
}

TEST_F(NorvctlSettings, SetOfAnEmptyValueIsAChange)
{
    EXPECT_EQ(Set(L"PlantNumber", L"").output, "set PlantNumber\n");
    EXPECT_EQ(Get(L"PlantNumber").exitCode, 1U);
}

TEST_F(NorvctlSettings, TheFirstOneMakesTheFile)
{
    locations.Set(L"Corvane_Oam_Data", folder / L"another-root");
    MakeFolders(folder / L"another-root\\data");

    const ProgramEnd before = Get(L"PlantName");
    const ProgramEnd set = Set(L"PlantName", L"Auental S\u00FCd");

    EXPECT_THAT(before.error, HasSubstr("(8508 PGSP_ERR_CANT_LOAD_XML_FILE)"));
    EXPECT_EQ(set.output, "set PlantName\n");
    EXPECT_EQ(Get(L"PlantName").output, "Auental S\u00FCd\n");
}

TEST_F(NorvctlSettings, SetAsJsonTellsWhatWasDone)
{
    const json done = json::parse(OutputOfNorvctl({L"--json", L"settings", L"set", L"Language", L"en"}));

    EXPECT_EQ(done, (json{{"done", "set"}, {"setting", "Language"}}));
}

TEST_F(NorvctlSettings, SetRefusesCharactersThatTheLibraryRefuses)
{
    const ProgramEnd name = Set(L"Plant Name", L"Auental");
    const ProgramEnd value = Set(L"PlantName", L"<Auental>");

    EXPECT_EQ(name.exitCode, 1U);
    EXPECT_EQ(name.error, "norvctl: Plant Name: the name or the value is not acceptable "
                          "(87 PGSP_ERR_INVALID_PARAMETERS)\n");
    EXPECT_EQ(value.exitCode, 1U);
    EXPECT_EQ(Get(L"PlantName").output, "Zuckerfabrik Auental\n");
}

} // namespace
} // namespace norvepa::test
