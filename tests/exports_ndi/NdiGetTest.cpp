#include "NdiScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

using NdiGet = NdiScene;

TEST_F(NdiGet, DeliversAParameterOfTheSectionNdiWhateverItsKindAndCase)
{
    Write(Ndi(XmlContent()
                  .Text(L"VendorName", L"Auental")
                  .Bool(L"hidden", L"False")
                  .Int(L"Year", L"2019")
                  .Text(L"Empty", L"")));

    EXPECT_EQ(Value(L"VendorName"), L"Auental");
    EXPECT_EQ(Value(L"VENDORNAME", In32), L"Auental");
    EXPECT_EQ(Value(L"hidden"), L"False");
    EXPECT_EQ(Value(L"Year"), L"2019");
    EXPECT_EQ(Value(L"Empty"), L"");
}

TEST_F(NdiGet, DeliversALinkAsItsLibraryACommaAndItsFunction)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet)));

    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
    EXPECT_EQ(Value(L"propsheet"), L"Seiten.dll,ShowPage");
}

TEST_F(NdiGet, DeliversALinkOfAnyName)
{
    Write(Links(XmlContent().ParameterAssemblyLink(
        {.name = L"Wartung", .assembly = L"W.dll", .path = L"C:\\x", .function = L"f,g"})));

    EXPECT_EQ(Value(L"Wartung"), L"W.dll,f,g");
}

TEST_F(NdiGet, ChoosesTheSectionOfLinksByTheFlag)
{
    Write(XmlContent()
              .Element(L"UserInterface64", XmlContent().ParameterAssemblyLink(PropSheet))
              .Element(L"UserInterface", XmlContent().ParameterAssemblyLink({.name = L"PropSheet",
                                                                             .assembly = L"Seiten32.dll",
                                                                             .path = L"",
                                                                             .function = L"Show32"})));

    EXPECT_EQ(Value(L"PropSheet", In64), L"Seiten.dll,ShowPage");
    for (const std::int32_t flag : {1, 2, -1, INT32_MIN})
    {
        EXPECT_EQ(Value(L"PropSheet", flag), L"Seiten32.dll,Show32") << flag;
    }
}

TEST_F(NdiGet, KeepsTheCommaOfALinkThatLacksOneOfItsParts)
{
    Write(Links(XmlContent()
                    .ParameterAssemblyLink(
                        {.name = L"PropSheet", .assembly = L"Seiten.dll", .path = L"", .function = L""})
                    .ParameterAssemblyLink(
                        {.name = L"Diagnosis", .assembly = L"", .path = L"", .function = L"Show"})));

    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,");
    EXPECT_EQ(Value(L"Diagnosis"), L",Show");
}

TEST_F(NdiGet, DeliversALinkThatLacksBothPartsAsAnEmptyValue)
{
    Write(Links(XmlContent().ParameterAssemblyLink(
        {.name = L"PropSheet", .assembly = L"", .path = L"%commonpath%", .function = L""})));
    OutputBuffer value(1);

    EXPECT_EQ(GetNdi(L"PropSheet", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"");
    EXPECT_EQ(value.length, 0U);
}

TEST_F(NdiGet, OfALinkNeedsOneCharacterMoreThanItsValue)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet)));
    OutputBuffer enough(20);

    EXPECT_EQ(GetNdi(L"PropSheet", enough), PGSP_OK);
    for (const std::uint32_t capacity : {19U, 1U, 0U})
    {
        OutputBuffer value(capacity);
        EXPECT_EQ(GetNdi(L"PropSheet", value), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;
        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 19U);
    }

    EXPECT_EQ(enough.text(), L"Seiten.dll,ShowPage");
    EXPECT_EQ(enough.length, 19U);
}

TEST_F(NdiGet, NeedsNoCom)
{
    UseOurTexts();
    Write(
        Identity(XmlContent().Text(L"Ort", L"Halle"),
                 XmlContent()
                     .Resource({.name = L"DescText", .assembly = L"AuentalTexte.dll", .resourceId = L"1005"})
                     .ParameterAssemblyLink(PropSheet)));

    OnFreshThread([&] {
        EXPECT_EQ(Value(L"Ort"), L"Halle");
        EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
        EXPECT_EQ(Value(L"DescText"), L"Pulp press 3");
    });
}

// Reads of single values stop where they find it; the others load the document whole.
TEST_F(NdiGet, ReadsAFileThatIsTooLargeForTheOtherCalls)
{
    const XmlContent content =
        Identity(XmlContent().Text(L"Ort", L"Halle"), XmlContent().ParameterAssemblyLink(PropSheet));
    WriteBytes(roots.logDevice(L"Presse"), LogDeviceFile(content) + std::string(10'000'000, ' '));
    OutputBuffer name(20);
    OutputBuffer value(20);

    EXPECT_EQ(Value(L"Ort"), L"Halle");
    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
    EXPECT_EQ(EnumNdi(0, name, value), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(SetNdi(L"Ort", L"Hof"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(SetNdi(L"DescText", L"7"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(DelNdi(L"Ort"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(NdiGet, DeliversTextsOfTheSampleStore)
{
    roots.FillWithSampleStore();
    UseOurTexts();

    EXPECT_EQ(ValueOf(L"Kesselhaus", L"DescText"), L"Steam generators 1 and 2");
    EXPECT_EQ(ValueOf(L"Kesselhaus", L"DescDefault"), L"Access path of the Auental plant");
    EXPECT_EQ(ValueOf(L"Kesselhaus", L"BaudrateResource\\3"), L"93.75 kbit/s");
    EXPECT_EQ(ValueOf(L"Kesselhaus", L"PropSheet"), L"AuentalSeiten.dll,ShowFeldbusPage");
    EXPECT_EQ(ValueOf(L"Kesselhaus", L"OrderCode"), L"AFK220-0");
}

} // namespace
} // namespace norvepa::test
