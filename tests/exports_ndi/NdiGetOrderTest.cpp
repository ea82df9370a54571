#include "NdiScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

// The three places that are asked in turn, and what ends the search.
class NdiGetOrder : public NdiScene
{
protected:
    NdiGetOrder() { UseOurTexts(); }

    // A text of 24 characters, "Steam generators 1 and 2".
    [[nodiscard]] static Link TextCalled(std::wstring_view name)
    {
        return {.name = name, .assembly = L"AuentalTexte.dll", .path = L"", .resourceId = L"1001"};
    }

    const std::wstring m_text = L"Steam generators 1 and 2";
};

TEST_F(NdiGetOrder, BeginsWithTheSectionNdi)
{
    Write(Identity(XmlContent().Text(L"PropSheet", L"plain"),
                   XmlContent().ParameterAssemblyLink(PropSheet).Resource(TextCalled(L"PropSheet"))));

    EXPECT_EQ(Value(L"PropSheet"), L"plain");
}

TEST_F(NdiGetOrder, AsksLinksAheadOfTexts)
{
    Write(Links(XmlContent().Resource(TextCalled(L"PropSheet")).ParameterAssemblyLink(PropSheet)));

    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
}

TEST_F(NdiGetOrder, AsksTextsWhenALinkIsIncomplete)
{
    Write(Links(XmlContent()
                    .ParameterAssemblyLink({.name = L"PropSheet", .assembly = L"Seiten.dll"})
                    .Resource(TextCalled(L"PropSheet"))));

    EXPECT_EQ(Value(L"PropSheet"), m_text);
}

TEST_F(NdiGetOrder, AsksTextsWhenTheLinkIsInTheOtherSection)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet), In32)
              .Element(L"UserInterface64", XmlContent().Resource(TextCalled(L"PropSheet"))));

    EXPECT_EQ(Value(L"PropSheet", In64), m_text);
    EXPECT_EQ(Value(L"PropSheet", In32), L"Seiten.dll,ShowPage");
}

// The search for links runs on behind its section, and takes the texts that it meets there for links.
TEST_F(NdiGetOrder, MeetsATextBehindTheSectionOfLinksAsALink)
{
    Write(Links(XmlContent().Resource(TextCalled(L"DescText")), In32)
              .Element(L"UserInterface64", XmlContent().Resource(TextCalled(L"DescText"))));

    EXPECT_EQ(Value(L"DescText", In32), L"AuentalTexte.dll,1001");
    EXPECT_EQ(Value(L"DescText", In64), m_text);
}

TEST_F(NdiGetOrder, AsksNoOtherPlace)
{
    Write(Links(XmlContent().Text(L"Titel", L"64"))
              .Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle"))
              .Element(L"SpareSection", XmlContent().Text(L"Ort", L"Halle")));
    store.WriteBoard(Catalogue().Parameter(L"Ort", {{L"default", L"Hof"}}));

    EXPECT_EQ(Value(L"Titel"), L"(result 8513)");
    EXPECT_EQ(Value(L"Ort"), L"(result 8513)");
    EXPECT_EQ(Value(L"DeviceID"), L"(result 8513)");
}

TEST_F(NdiGetOrder, LeavesTheLengthAsItCameWhenTheValueIsNowhere)
{
    Write(Identity(XmlContent().Text(L"Ort", L"Halle"), XmlContent().ParameterAssemblyLink(PropSheet)));
    OutputBuffer value(20);
    OutputBuffer none(0);

    EXPECT_EQ(GetNdi(L"unknown", value), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(GetNdi(L"unknown", none), PGSP_ERR_PARAM_NOT_FOUND);

    ExpectUntouched(value, 20);
    ExpectUntouched(none, 0);
}

TEST_F(NdiGetOrder, PassesOverAValueThatDoesNotFitForALinkThatFits)
{
    Write(Identity(XmlContent().Text(L"PropSheet", std::wstring(20, L'p')),
                   XmlContent().ParameterAssemblyLink(PropSheet)));
    OutputBuffer value(20);

    EXPECT_EQ(GetNdi(L"PropSheet", value), PGSP_OK);

    EXPECT_EQ(value.text(), L"Seiten.dll,ShowPage");
    EXPECT_EQ(value.length, 19U);
}

// The length that the value asked for is larger than the link, and the buffer smaller.
TEST_F(NdiGetOrder, OffersALinkTheCallersOwnCapacity)
{
    Write(Identity(XmlContent().Text(L"PropSheet", std::wstring(40, L'p')),
                   XmlContent().ParameterAssemblyLink(PropSheet)));
    OutputBuffer value(10);

    EXPECT_EQ(GetNdi(L"PropSheet", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 19U);
}

// The other way round: the value's length would be too small a capacity for the link.
TEST_F(NdiGetOrder, TellsTheLengthOfTheLinkAndNotOfTheValue)
{
    Write(Identity(XmlContent().Text(L"PropSheet", L"plain"), XmlContent().ParameterAssemblyLink(PropSheet)));
    OutputBuffer value(5);

    EXPECT_EQ(GetNdi(L"PropSheet", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 19U);
}

TEST_F(NdiGetOrder, PassesOverAValueThatDoesNotFitForATextThatFits)
{
    Write(Identity(XmlContent().Text(L"DescText", std::wstring(40, L'p')),
                   XmlContent().Resource(TextCalled(L"DescText"))));
    OutputBuffer enough(25);
    OutputBuffer value(24);

    EXPECT_EQ(GetNdi(L"DescText", enough), PGSP_OK);
    EXPECT_EQ(GetNdi(L"DescText", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(enough.text(), m_text);
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 24U);
}

TEST_F(NdiGetOrder, FindsNothingForAValueThatDoesNotFitWithNothingBehindIt)
{
    Write(Ndi(XmlContent().Text(L"Ort", L"Halle").Text(L"Empty", L"")));
    OutputBuffer value(5);
    OutputBuffer none(0);

    EXPECT_EQ(GetNdi(L"Ort", value), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(GetNdi(L"Empty", none), PGSP_ERR_PARAM_NOT_FOUND);

    ExpectUntouched(value, 5);
    ExpectUntouched(none, 0);
}

// A link that doesn't fit ends the search; the text behind it would.
TEST_F(NdiGetOrder, EndsWithALinkThatDoesNotFit)
{
    const std::wstring longName(100, L'f');
    Write(Links(XmlContent()
                    .Resource(TextCalled(L"PropSheet"))
                    .ParameterAssemblyLink(
                        {.name = L"PropSheet", .assembly = L"a", .path = L"", .function = longName})));
    OutputBuffer value(50);

    EXPECT_EQ(GetNdi(L"PropSheet", value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 102U);
}

TEST_F(NdiGetOrder, EndsWithAFileThatIsMissingOrCanNotBeOpened)
{
    Write(Links(XmlContent().ParameterAssemblyLink(PropSheet)));
    MakeFolders(roots.logDevice(L"folder"));
    const HANDLE held = CreateFileW(roots.logDevice(L"Presse").c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    OutputBuffer value(20);

    EXPECT_EQ(GetNdiOf(L"gone", L"PropSheet", value), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(GetNdiOf(L"folder", L"PropSheet", value), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(GetNdiOf(L"Presse\\subdevices\\Ventil", L"PropSheet", value), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(GetNdi(L"PropSheet", value), PGSP_ERR_FILE_NOT_FOUND);

    ExpectUntouched(value, 20);
    CloseHandle(held);
    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
}

TEST_F(NdiGetOrder, FindsNothingInAFileThatIsNoXml)
{
    WriteBytes(roots.logDevice(L"text"), "no XML");
    WriteBytes(roots.logDevice(L"empty"), "");

    EXPECT_EQ(ValueOf(L"text", L"Ort"), L"(result 8513)");
    EXPECT_EQ(ValueOf(L"empty", L"Ort"), L"(result 8513)");
}

TEST_F(NdiGetOrder, NeedsTheDataFolder)
{
    Write(Ndi(XmlContent().Text(L"Ort", L"Halle")));
    store.TakeDataFolderAway();
    OutputBuffer value(20);

    EXPECT_EQ(GetNdi(L"Ort", value), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectUntouched(value, 20);
}

TEST_F(NdiGetOrder, RefusesTooLongAPathAndLeavesTheLengthAsItCame)
{
    OutputBuffer value(20);

    EXPECT_EQ(GetNdiOf(store.DeviceForPathOf(259).c_str(), L"Ort", value), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(GetNdiOf(store.DeviceForPathOf(260).c_str(), L"Ort", value), PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectUntouched(value, 20);
}

// Links are looked for in a file of the very name that the caller gives, the others in the escaped one's.
TEST_F(NdiGetOrder, PassesOverTheLinksOfADeviceWithACodedName)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Identity(XmlContent().Text(L"Ort", L"Halle"),
                                                   XmlContent()
                                                       .Resource(TextCalled(L"Notiz"))
                                                       .Resource(TextCalled(L"PropSheet"))
                                                       .ParameterAssemblyLink({.name = L"PropSheet",
                                                                               .assembly = L"Seiten.dll",
                                                                               .path = L"",
                                                                               .function = L"ShowPage"})
                                                       .ParameterAssemblyLink({.name = L"Diagnosis",
                                                                               .assembly = L"Seiten.dll",
                                                                               .path = L"",
                                                                               .function = L"Diagnose"})));
        const bool isCoded = std::wstring(coded.name) != coded.fileName;

        EXPECT_EQ(ValueOf(coded.name, L"Ort"), L"Halle") << ToUtf8(coded.name);
        EXPECT_EQ(ValueOf(coded.name, L"Notiz"), m_text) << ToUtf8(coded.name);
        EXPECT_EQ(ValueOf(coded.name, L"PropSheet"), isCoded ? m_text : L"Seiten.dll,ShowPage")
            << ToUtf8(coded.name);
        EXPECT_EQ(ValueOf(coded.name, L"Diagnosis"), isCoded ? L"(result 8513)" : L"Seiten.dll,Diagnose")
            << ToUtf8(coded.name);
    }
}

TEST_F(NdiGetOrder, FindsTheLinksOfAFileThatBearsTheUncodedName)
{
    store.WriteDevice(L"50#25 Dosierer", Identity(XmlContent().Text(L"Ort", L"coded"),
                                                  XmlContent().Resource(TextCalled(L"Notiz"))));
    store.WriteDevice(L"50% Dosierer", Identity(XmlContent().Text(L"Ort", L"uncoded"),
                                                XmlContent().ParameterAssemblyLink(PropSheet)));

    EXPECT_EQ(ValueOf(L"50% Dosierer", L"PropSheet"), L"Seiten.dll,ShowPage");
    EXPECT_EQ(ValueOf(L"50% Dosierer", L"Ort"), L"coded");
    EXPECT_EQ(ValueOf(L"50% Dosierer", L"Notiz"), m_text);
}

TEST_F(NdiGetOrder, AddsAnExtensionForTheLinksOfANameThatHasOne)
{
    Write(Identity(XmlContent().Text(L"Ort", L"Halle"),
                   XmlContent().ParameterAssemblyLink(PropSheet).Resource(TextCalled(L"Notiz"))));

    EXPECT_EQ(ValueOf(L"Presse.xml", L"Ort"), L"Halle");
    EXPECT_EQ(ValueOf(L"Presse.xml", L"PropSheet"), L"(result 8513)");
    EXPECT_EQ(ValueOf(L"Presse.xml", L"Notiz"), m_text);
}

} // namespace
} // namespace norvepa::test
