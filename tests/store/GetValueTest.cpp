#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

using GetValueTest = ReadScene;

TEST_F(GetValueTest, ReadsAnEntryOfEachKind)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent().Element(L"LocalSettings", XmlContent()
                                                                      .Text(L"station", L"Kesselhaus")
                                                                      .Int(L"baudrate", L"187500")
                                                                      .Bool(L"keep_alive", L"true"))));

    EXPECT_EQ(GetValue(file, L"LocalSettings", L"station"), Found(L"Kesselhaus"));
    EXPECT_EQ(GetValue(file, L"LocalSettings", L"baudrate"), Found(L"187500"));
    EXPECT_EQ(GetValue(file, L"LocalSettings", L"keep_alive"), Found(L"true"));
}

TEST_F(GetValueTest, ReadsOnlyFromTheSectionAskedFor)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"LocalSettings", XmlContent().Int(L"timeout", L"1"))
                               .Element(L"NetworkSettings", XmlContent().Int(L"timeout", L"2"))
                               .Element(L"Bindings", XmlContent().Int(L"other", L"3"))));

    EXPECT_EQ(GetValue(file, L"LocalSettings", L"timeout"), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"NetworkSettings", L"timeout"), Found(L"2"));
    EXPECT_EQ(GetValue(file, L"Bindings", L"timeout"), NotFound());
}

TEST_F(GetValueTest, AParameterOrSectionThatIsNotThereIsNotFound)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent().Element(L"LocalSettings", XmlContent().Int(L"timeout", L"1"))));

    EXPECT_EQ(GetValue(file, L"LocalSettings", L"time"), NotFound());
    EXPECT_EQ(GetValue(file, L"LocalSettings", L"timeouts"), NotFound());
    EXPECT_EQ(GetValue(file, L"Local", L"timeout"), NotFound());
}

TEST_F(GetValueTest, NamesMatchInAnyCaseAndTheValueKeepsItsOwn)
{
    const std::wstring file = File(
        LogDeviceFile(XmlContent().Element(L"LocalSettings", XmlContent().Text(L"baudRate", L"MaxImum"))));

    EXPECT_EQ(GetValue(file, L"LOCALsettings", L"BAUDrATE"), Found(L"MaxImum"));
}

TEST_F(GetValueTest, NamesMatchInAnyCaseInAllAlphabets)
{
    const std::wstring file = File(LogDeviceFile(
        XmlContent().Element(L"Übersicht", XmlContent().Text(L"größe", L"1").Text(L"ελλάδα", L"2"))));

    EXPECT_EQ(GetValue(file, L"ÜBERSICHT", L"GRÖßE"), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"übersicht", L"ΕΛΛΆΔΑ"), Found(L"2"));
}

TEST_F(GetValueTest, ElementNamesMatchInAnyCase)
{
    const std::wstring file =
        File("<LogDevice><S><pARAMETERiNT><nAME>a</nAME><vALUE>1</vALUE></pARAMETERiNT></S></LogDevice>");

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueTest, NamesOfElementsMayCarryAPrefix)
{
    const std::wstring file = File("<p:LogDevice xmlns:p='urn:one'><p:S><p:Parameter><p:Name>a</p:Name>"
                                   "<p:Value>1</p:Value></p:Parameter></p:S></p:LogDevice>");

    EXPECT_EQ(GetValue(file, L"S", L"a"), Found(L"1"));
}

TEST_F(GetValueTest, BlanksAreAPartOfAName)
{
    const std::wstring file = File(
        LogDeviceFile(XmlContent().Element(L"S", XmlContent().Text(L" a ", L"1").Text(L"two words", L"2"))));

    EXPECT_EQ(GetValue(file, L"S", L"a"), NotFound());
    EXPECT_EQ(GetValue(file, L"S", L" A "), Found(L"1"));
    EXPECT_EQ(GetValue(file, L"S", L"Two Words"), Found(L"2"));
}

TEST_F(GetValueTest, NeitherASectionNorNoSectionMeansTheSpareSection)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent()
                               .Element(L"LocalSettings", XmlContent().Text(L"remark", L"local"))
                               .Element(L"SpareSection", XmlContent().Text(L"remark", L"spare"))));

    EXPECT_EQ(GetValue(file, L"", L"remark"), Found(L"spare"));
    EXPECT_EQ(GetValue(file, nullptr, L"remark"), Found(L"spare"));
    EXPECT_EQ(GetValue(file, L"SpareSection", L"remark"), Found(L"spare"));
}

TEST_F(GetValueTest, TheEmptyParameterIsTheEntryWithTheEmptyName)
{
    const std::wstring file =
        File(LogDeviceFile(XmlContent().Element(L"S", XmlContent().Text(L"a", L"1").Text(L"", L"2"))));

    EXPECT_EQ(GetValue(file, L"S", L""), Found(L"2"));
    EXPECT_EQ(GetValue(file, L"S", nullptr), Found(L"2"));
}

TEST_F(GetValueTest, TheRootMayItselfBeTheSection)
{
    const std::wstring file = File(XmlFile(L"Parameters", {}, XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(GetValue(file, L"Parameters", L"a"), Found(L"1"));
}

TEST_F(GetValueTest, ReadsTheFormsThatTheStoreCreates)
{
    const std::wstring name = File(LogNameFile(XmlContent().Text(L"(default)", L"Kesselhaus")), L"name");
    const std::wstring settings = File(SettingsFile(XmlContent().Text(L"Language", L"de"),
                                                    XmlContent().Text(L"LastChangeDate", L"2024-02-29")),
                                       L"PGSP");

    EXPECT_EQ(GetValue(name, L"Parameters", L"(default)"), Found(L"Kesselhaus"));
    EXPECT_EQ(GetValue(settings, L"PGSP_Section", L"Language"), Found(L"de"));
    EXPECT_EQ(GetValue(settings, L"DateTimeSection", L"LastChangeDate"), Found(L"2024-02-29"));
    EXPECT_EQ(GetValue(settings, L"Updates", L"Language"), NotFound());
}

} // namespace
} // namespace norvepa::test
