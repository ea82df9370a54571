#include "SettingsScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{
namespace
{

// An entry of this name, as each of the three sections may have one.
XmlContent Language(std::wstring_view value)
{
    return XmlContent().Text(L"Language", value);
}

class SettingsGet : public SettingsScene
{
protected:
    [[nodiscard]] std::int32_t Get(OutputBuffer& value, const wchar_t* parameter = L"Language") const
    {
        return library.GetValueInPGSP_BL(parameter, value.data(), &value.length);
    }

    void ExpectTooShort(std::uint32_t capacity, std::uint32_t needed) const
    {
        OutputBuffer value(capacity);

        EXPECT_EQ(Get(value), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, needed);
    }
};

TEST_F(SettingsGet, ReadsEachOfTheThreeSections)
{
    WriteSettings({.common = XmlContent().Text(L"Language", L"Deutsch"),
                   .updates = XmlContent().Text(L"Version", L"8.2"),
                   .times = XmlContent().Text(L"LastChangeDate", L"2019-09-12")});

    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
    EXPECT_EQ(Setting(L"Version"), L"8.2");
    EXPECT_EQ(Setting(L"LastChangeDate"), L"2019-09-12");
}

TEST_F(SettingsGet, TakesTheSectionsInTheirOrder)
{
    WriteSettings({Language(L"common"), Language(L"updates"), Language(L"times")});
    EXPECT_EQ(Setting(L"Language"), L"common");

    WriteSettings({{}, Language(L"updates"), Language(L"times")});
    EXPECT_EQ(Setting(L"Language"), L"updates");

    WriteSettings({{}, {}, Language(L"times")});
    EXPECT_EQ(Setting(L"Language"), L"times");
}

TEST_F(SettingsGet, DoesNotGoByTheOrderOfTheFile)
{
    WriteSettingsBytes(XmlFile(L"PGSP", {},
                               XmlContent()
                                   .Element(L"DateTimeSection", Language(L"times"))
                                   .Element(L"Updates", Language(L"updates"))
                                   .Element(L"PGSP_Section", Language(L"common"))));

    EXPECT_EQ(Setting(L"Language"), L"common");
}

// A value that is there and doesn't fit has been found.
TEST_F(SettingsGet, EndsItsSearchAtAValueThatDoesNotFit)
{
    WriteSettings({Language(L"Deutsch"), Language(L"x"), Language(L"y")});
    ExpectTooShort(7, 7);
    ExpectTooShort(2, 7);

    WriteSettings({{}, Language(L"Deutsch"), Language(L"y")});
    ExpectTooShort(7, 7);
    ExpectTooShort(2, 7);

    WriteSettings({{}, {}, Language(L"Deutsch")});
    ExpectTooShort(7, 7);
}

TEST_F(SettingsGet, OffersEachSectionAllTheRoomThereIs)
{
    for (const Settings& settings :
         {Settings{.common = Language(L"Deutsch")}, Settings{.updates = Language(L"Deutsch")},
          Settings{.times = Language(L"Deutsch")}})
    {
        WriteSettings(settings);
        OutputBuffer value(8);

        EXPECT_EQ(Get(value), PGSP_OK);

        EXPECT_EQ(value.text(), L"Deutsch");
        EXPECT_EQ(value.length, 7U);
    }
}

TEST_F(SettingsGet, WithoutAnyRoomTellsHowMuchIsNeeded)
{
    WriteSettings({.common = Language(L"Deutsch")});

    ExpectTooShort(0, 7);
    ExpectTooShort(1, 7);
}

TEST_F(SettingsGet, NeedsOneCharacterForAnEmptyValue)
{
    WriteSettings({.common = Language(L""), .updates = Language(L"x")});
    OutputBuffer value(1);

    EXPECT_EQ(Get(value), PGSP_OK);
    EXPECT_EQ(value.text(), L"");
    EXPECT_EQ(value.length, 0U);

    ExpectTooShort(0, 0);
}

TEST_F(SettingsGet, KnowsNamesInAnyCase)
{
    WriteSettings({.common = XmlContent().Text(L"Gr\u00F6\u00DFe", L"1"),
                   .times = XmlContent().Text(L"LastChangeDate", L"2")});

    EXPECT_EQ(Setting(L"GR\u00D6\u00DFE"), L"1");
    EXPECT_EQ(Setting(L"lastchangedate"), L"2");
}

TEST_F(SettingsGet, KnowsSectionsInAnyCase)
{
    WriteSettingsBytes(XmlFile(L"PGSP", {},
                               XmlContent()
                                   .Element(L"pgsp_section", Language(L"common"))
                                   .Element(L"UPDATES", XmlContent().Text(L"Version", L"8.2"))
                                   .Element(L"datetimesection", XmlContent().Text(L"Start", L"heute"))));

    EXPECT_EQ(Setting(L"Language"), L"common");
    EXPECT_EQ(Setting(L"Version"), L"8.2");
    EXPECT_EQ(Setting(L"Start"), L"heute");
}

TEST_F(SettingsGet, FindsEntriesOfEveryKind)
{
    WriteSettings(
        {.common = XmlContent().Int(L"Level", L"3").Bool(L"Active", L"true").Text(L"Plant", L"Auental")});

    EXPECT_EQ(Setting(L"Level"), L"3");
    EXPECT_EQ(Setting(L"Active"), L"true");
    EXPECT_EQ(Setting(L"Plant"), L"Auental");
}

TEST_F(SettingsGet, AsksNoOtherSection)
{
    WriteSettingsBytes(XmlFile(L"PGSP", {{L"Language", L"en"}},
                               XmlContent()
                                   .Text(L"Language", L"root")
                                   .Element(L"SpareSection", Language(L"spare"))
                                   .Element(L"Parameters", Language(L"parameters"))));

    EXPECT_EQ(Setting(L"Language"), L"(result 8513)");
}

TEST_F(SettingsGet, SeesTheFileAsItIsNow)
{
    WriteSettings({.common = Language(L"Deutsch")});
    EXPECT_EQ(Setting(L"Language"), L"Deutsch");

    WriteSettings({.common = Language(L"English")});
    EXPECT_EQ(Setting(L"Language"), L"English");

    WriteSettings({});
    EXPECT_EQ(Setting(L"Language"), L"(result 8513)");
}

TEST_F(SettingsGet, CanNotLoadAFileThatIsNotThere)
{
    EXPECT_EQ(Setting(L"Language"), L"(result 8508)");
}

TEST_F(SettingsGet, CanNotLoadAFileThatSomebodyKeepsToHimself)
{
    WriteSettings({.common = Language(L"Deutsch")});
    {
        const OpenFile held(settingsFile(), 0);
        EXPECT_EQ(Setting(L"Language"), L"(result 8508)");
    }
    const OpenFile shared(settingsFile());
    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
}

// What is damaged only ends the reading.
TEST_F(SettingsGet, FindsInADamagedFileWhatStandsAheadOfTheDamage)
{
    for (const std::string_view bytes : {"", "not even a document", "<PGSP><PGSP_Section></PGSP>"})
    {
        WriteSettingsBytes(bytes);
        EXPECT_EQ(Setting(L"Language"), L"(result 8513)") << bytes;
    }

    WriteSettingsBytes("<PGSP>" + XmlContent().Element(L"PGSP_Section", Language(L"Deutsch")).utf8() +
                       "<Updates></PGSP>");
    EXPECT_EQ(Setting(L"Language"), L"Deutsch");
    EXPECT_EQ(Setting(L"Version"), L"(result 8513)");
}

TEST_F(SettingsGet, NeedsTheDataFolder)
{
    WriteSettings({.common = Language(L"Deutsch")});
    store.TakeDataFolderAway();

    EXPECT_EQ(Setting(L"Language"), L"(result 8517)");
}

TEST_F(SettingsGet, NeedsNoComAndNoProgramFolder)
{
    WriteSettings({.common = Language(L"Deutsch")});
    store.TakeProgramFolderAway();

    OnFreshThread([&] {
        EXPECT_EQ(Setting(L"Language"), L"Deutsch");
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(SettingsGet, ReadsNamesAndValuesOfAnyLengthAndWithAnyCharacters)
{
    const std::wstring text(100'000, L'n');
    WriteSettings({.times = XmlContent().Text(text, text).Text(L" a<b>#%\\*", L"< & >")});
    OutputBuffer whole(100'001);

    EXPECT_EQ(Get(whole, text.c_str()), PGSP_OK);

    EXPECT_EQ(whole.text(), text);
    EXPECT_EQ(Setting(L" A<B>#%\\*"), L"< & >");
}

} // namespace
} // namespace norvepa::test
