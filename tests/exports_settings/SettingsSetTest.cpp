#include "SettingsScene.h"
#include "support/Answers.h"

namespace norvepa::test
{
namespace
{

using SettingsSet = SettingsScene;

TEST_F(SettingsSet, MakesTheFileAndThenTheValue)
{
    EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_OK);

    ExpectNewFile({.common = XmlContent().Text(L"Language", L"Deutsch")});
    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
}

TEST_F(SettingsSet, MakesTheFileWithATimeToo)
{
    EXPECT_EQ(SetSetting(L"LastChangeDate", L"2019-09-12"), PGSP_OK);

    ExpectNewFile({.times = XmlContent().Text(L"LastChangeDate", L"2019-09-12")});
    EXPECT_EQ(Setting(L"LastChangeDate"), L"2019-09-12");
}

TEST_F(SettingsSet, KeepsTheThreeTimesApart)
{
    WriteSettings({});

    EXPECT_EQ(SetSetting(L"LastStartupTime", L"1"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LastStartupClock", L"2"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LastChangeDate", L"3"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LastChangeTime", L"4"), PGSP_OK);

    ExpectSettings({.common = XmlContent().Text(L"LastChangeTime", L"4"),
                    .times = XmlContent()
                                 .Text(L"LastStartupTime", L"1")
                                 .Text(L"LastStartupClock", L"2")
                                 .Text(L"LastChangeDate", L"3")});
}

TEST_F(SettingsSet, KnowsTheThreeTimesInTheirExactCaseAlone)
{
    WriteSettings({});

    EXPECT_EQ(SetSetting(L"lastchangedate", L"1"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LASTSTARTUPTIME", L"2"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LastStartupclock", L"3"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LastChangeDates", L"4"), PGSP_OK);

    ExpectSettings({.common = XmlContent()
                                  .Text(L"lastchangedate", L"1")
                                  .Text(L"LASTSTARTUPTIME", L"2")
                                  .Text(L"LastStartupclock", L"3")
                                  .Text(L"LastChangeDates", L"4")});
    EXPECT_EQ(Setting(L"lastchangedate"), L"1");
}

// Reading doesn't regard case, and asks the common section first.
TEST_F(SettingsSet, HidesATimeBehindItsNameInAnotherCase)
{
    WriteSettings({});
    EXPECT_EQ(SetSetting(L"lastchangedate", L"common"), PGSP_OK);

    EXPECT_EQ(SetSetting(L"LastChangeDate", L"time"), PGSP_OK);

    ExpectSettings({.common = XmlContent().Text(L"lastchangedate", L"common"),
                    .times = XmlContent().Text(L"LastChangeDate", L"time")});
    EXPECT_EQ(Setting(L"LastChangeDate"), L"common");
}

TEST_F(SettingsSet, HidesAValueOfTheUpdatesBehindASecondOne)
{
    WriteSettings({.updates = XmlContent().Text(L"Version", L"8.1")});
    EXPECT_EQ(Setting(L"Version"), L"8.1");

    EXPECT_EQ(SetSetting(L"Version", L"8.2"), PGSP_OK);

    ExpectSettings(
        {.common = XmlContent().Text(L"Version", L"8.2"), .updates = XmlContent().Text(L"Version", L"8.1")});
    EXPECT_EQ(Setting(L"Version"), L"8.2");
}

TEST_F(SettingsSet, MakesASecondOneThoughTheUpdatesHoldTheSameValue)
{
    WriteSettings({.updates = XmlContent().Text(L"Version", L"8.1")});

    EXPECT_EQ(SetSetting(L"Version", L"8.1"), PGSP_OK);

    ExpectSettings(
        {.common = XmlContent().Text(L"Version", L"8.1"), .updates = XmlContent().Text(L"Version", L"8.1")});
}

TEST_F(SettingsSet, LeavesATimeThatTheUpdatesHoldInFrontOfIt)
{
    WriteSettings({.updates = XmlContent().Text(L"LastChangeDate", L"update")});

    EXPECT_EQ(SetSetting(L"LastChangeDate", L"time"), PGSP_OK);

    ExpectSettings({.updates = XmlContent().Text(L"LastChangeDate", L"update"),
                    .times = XmlContent().Text(L"LastChangeDate", L"time")});
    EXPECT_EQ(Setting(L"LastChangeDate"), L"update");
}

TEST_F(SettingsSet, ReplacesAValueInItsPlaceWhateverTheCaseOfItsName)
{
    WriteSettings({.common = XmlContent().Text(L"Plant", L"Auental").Text(L"Language", L"Deutsch"),
                   .times = XmlContent().Text(L"lastchangedate", L"1")});

    EXPECT_EQ(SetSetting(L"PLANT", L"Auental & S\u00F6hne"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LastChangeDate", L""), PGSP_OK);

    ExpectSettings(
        {.common = XmlContent().Text(L"Plant", L"Auental & S\u00F6hne").Text(L"Language", L"Deutsch"),
         .times = XmlContent().Text(L"lastchangedate", L"")});
}

TEST_F(SettingsSet, OfTheSameValueWritesNothing)
{
    WriteSettings({.common = XmlContent().Text(L"Language", L"Deutsch"),
                   .times = XmlContent().Text(L"LastChangeDate", L"heute")});

    for (const std::int32_t round : {1, 2})
    {
        SCOPED_TRACE(round);
        ExpectSettingsKept(L"Language", L"Deutsch", PGSP_OK);
        ExpectSettingsKept(L"LANGUAGE", L"DEUTSCH", PGSP_OK);
        ExpectSettingsKept(L"LastChangeDate", L"Heute", PGSP_OK);
    }
}

// Whether an empty value can be read is told by how the engine writes it: with two tags or with one.
TEST_F(SettingsSet, MakesAnEmptyValueThatIsReadByItsTags)
{
    EXPECT_EQ(SetSetting(L"Plant", L""), PGSP_OK);

    ExpectNewFile({.common = XmlContent().Text(L"Plant", L"")});
    const bool hasTwoTags = SettingsBytes().find("</Value>") != std::string::npos;
    EXPECT_EQ(Setting(L"Plant"), hasTwoTags ? L"" : Failed(PGSP_ERR_PARAM_NOT_FOUND));
    ExpectSettingsKept(L"Plant", L"", PGSP_OK);
}

TEST_F(SettingsSet, AlwaysWritesATextAndPassesOverEntriesOfOtherKinds)
{
    WriteSettings({.common = XmlContent().Int(L"Level", L"1").Bool(L"Active", L"true")});

    EXPECT_EQ(SetSetting(L"Level", L"1"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"Active", L"TRUE"), PGSP_OK);

    ExpectSettings({.common = XmlContent()
                                  .Int(L"Level", L"1")
                                  .Bool(L"Active", L"true")
                                  .Text(L"Level", L"1")
                                  .Text(L"Active", L"TRUE")});
}

TEST_F(SettingsSet, RefusesCharactersInNamesAndValues)
{
    WriteSettings({.common = XmlContent().Text(L"Language", L"Deutsch")});

    for (const wchar_t character : std::wstring_view(L" []^!\"\u00A7$%&()=?\u00B4'#+><*|;,"))
    {
        ExpectSettingsKept((std::wstring(L"a") + character).c_str(), L"1", PGSP_ERR_INVALID_PARAMETERS);
    }
    ExpectSettingsKept(L"Language", L"<", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSettingsKept(L"LastChangeDate", L"a>b", PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(SettingsSet, SetsNothingThatXmlCanNotHold)
{
    WriteSettings({.common = XmlContent().Text(L"Language", L"Deutsch")});

    ExpectSettingsKept(L"Language", L"\x01", PGSP_ERR_CANT_SET_VALUE);
    ExpectSettingsKept(L"\x1F", L"1", PGSP_ERR_CANT_SET_VALUE);
}

TEST_F(SettingsSet, TakesNamesAndValuesOfAnyLength)
{
    const std::wstring text(100'000, L'n');

    EXPECT_EQ(SetSetting(text.c_str(), text.c_str()), PGSP_OK);

    ExpectNewFile({.common = XmlContent().Text(text, text)});
}

} // namespace
} // namespace norvepa::test
