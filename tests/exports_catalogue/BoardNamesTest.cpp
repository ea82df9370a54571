#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

// Each file tells which it is: by a value, by a collection and by a parameter's section.
XmlContent Telling(const std::wstring& which)
{
    return XmlContent()
        .Element(L"Install", XmlContent().Text(L"Which", which))
        .Element(L"NotSupported", XmlContent().ValueCollection({which}))
        .ParamSection(L"a", XmlContent().Element(L"type", which));
}

class BoardNames : public CatalogueScene
{
protected:
    BoardNames() { WriteBoard(L"X", Telling(L"the board")); }

    // The file that each export of the first order meets by the name; "none" for none.
    [[nodiscard]] Strings MetByValues(const std::wstring& name) const
    {
        const auto shown = [](const std::wstring& answer) {
            return answer.starts_with(L"(result") ? std::wstring(L"none") : answer;
        };
        const auto firstOf = [](const Strings& strings) {
            return strings.empty() ? std::wstring(L"none") : strings.front();
        };
        ListBuffer values(300);
        const bool isListed = BoardValues(name, {L"Which"}, values) == PGSP_OK;
        ListBuffer notSupported(300);
        EXPECT_EQ(
            library.PGSP_BoardGetNotSupportedBL(name.c_str(), notSupported.data(), &notSupported.length),
            PGSP_OK);
        return {shown(BoardValue(name, L"Which")),
                shown(BoardValueRaw(name, nullptr, L"Which")),
                shown(BoardValueRaw(name, L"Install", L"Which")),
                isListed ? values.strings().front() : L"none",
                firstOf(BoardCollection(L"NotSupported", name)),
                firstOf(notSupported.strings())};
    }

    // The same for the enumerations, which have the second order.
    [[nodiscard]] std::wstring MetByEnumeration(const std::wstring& name) const
    {
        const std::wstring whole = BoardPair(name, 0);
        const std::wstring section = BoardPair(name + L"\\a", 0);
        return whole == L"Which=" + section.substr(std::min<std::size_t>(section.size(), 5)) ? whole.substr(6)
                                                                                             : L"none";
    }
};

TEST_F(BoardNames, MayBeBareOrWithThePrefixOrWithAStar)
{
    for (const std::wstring& name : {std::wstring(L"X"), std::wstring(L"*X"), BoardPrefix + L"X"})
    {
        SCOPED_TRACE(ToUtf8(name));
        EXPECT_THAT(MetByValues(name), testing::Each(L"the board"));
        EXPECT_EQ(MetByEnumeration(name), L"the board");
    }
}

TEST_F(BoardNames, WithAStarAndThePrefixLoseTheStarInEnumerationsAlone)
{
    EXPECT_EQ(MetByEnumeration(L"*" + BoardPrefix + L"X"), L"the board");
    EXPECT_THAT(MetByValues(L"*" + BoardPrefix + L"X"), testing::Each(L"none"));
}

TEST_F(BoardNames, WithAStarAndThePrefixKeepTheStarElsewhere)
{
    WriteBoardAs(L"#2a" + BoardPrefix + L"X", Telling(L"the one with the star"));
    WriteBoardAs(L"(nmbr)2a" + BoardPrefix + L"X", Telling(L"the one with the star"));

    EXPECT_THAT(MetByValues(L"*" + BoardPrefix + L"X"), testing::Each(L"the one with the star"));
    EXPECT_EQ(MetByEnumeration(L"*" + BoardPrefix + L"X"), L"the board");
}

TEST_F(BoardNames, ThatHoldThePrefixAnywhereGetNoOther)
{
    WriteBoardAs(L"Old-" + BoardPrefix + L"X", Telling(L"the old one"));

    EXPECT_THAT(MetByValues(L"Old-" + BoardPrefix + L"X"), testing::Each(L"the old one"));
    EXPECT_EQ(MetByEnumeration(L"Old-" + BoardPrefix + L"X"), L"the old one");
}

TEST_F(BoardNames, HoldThePrefixInExactCaseOrNotAtAll)
{
    const std::wstring lower = L"automation-onlineaccess-bt-X";
    EXPECT_THAT(MetByValues(lower), testing::Each(L"none"));
    WriteBoard(lower, Telling(L"the one with two"));

    EXPECT_THAT(MetByValues(lower), testing::Each(L"the one with two"));
    EXPECT_EQ(MetByEnumeration(lower), L"the one with two");
}

TEST_F(BoardNames, LoseOneStarAndNoMore)
{
    WriteBoard(L"#2aX", Telling(L"the one with a star"));
    WriteBoard(L"(nmbr)2aX", Telling(L"the one with a star"));

    EXPECT_THAT(MetByValues(L"**X"), testing::Each(L"the one with a star"));
    EXPECT_EQ(MetByEnumeration(L"**X"), L"the one with a star");
}

TEST_F(BoardNames, LoseNoStarButTheFirstCharacter)
{
    EXPECT_THAT(MetByValues(L" *X"), testing::Each(L"none"));
    EXPECT_EQ(MetByEnumeration(L" *X"), L"none");
}

TEST_F(BoardNames, MayHoldAnyLetter)
{
    WriteBoard(L"Gr\u00F6\u00DFe \u00B5\u03A9 \u20AC", Telling(L"that one"));

    EXPECT_THAT(MetByValues(L"Gr\u00F6\u00DFe \u00B5\u03A9 \u20AC"), testing::Each(L"that one"));
    EXPECT_EQ(MetByEnumeration(L"Gr\u00F6\u00DFe \u00B5\u03A9 \u20AC"), L"that one");
}

TEST_F(BoardNames, AreEscapedToFileNames)
{
    WriteBoard(L"50#25 #3e#3c", Telling(L"that one"));

    EXPECT_EQ(BoardValue(L"50% ><", L"Which"), L"that one");
    EXPECT_EQ(BoardValueRaw(L"50% ><", L"Install", L"Which"), L"that one");
    EXPECT_THAT(BoardValues(L"50% ><", {L"Which"}), testing::ElementsAre(L"that one"));
    EXPECT_EQ(MetByEnumeration(L"50% ><"), L"that one");
}

TEST_F(BoardNames, AreEscapedTwiceForCollections)
{
    WriteBoard(L"50(nmbr)25", Telling(L"that one"));

    EXPECT_THAT(BoardCollection(L"NotSupported", L"50%"), testing::ElementsAre(L"that one"));
}

TEST_F(BoardNames, OfASingleStarAreThePrefixAlone)
{
    WriteBoard(L"", Telling(L"the nameless"));

    EXPECT_THAT(MetByValues(L"*"), testing::Each(L"the nameless"));
    EXPECT_EQ(MetByEnumeration(L"*"), L"the nameless");
}

TEST_F(BoardNames, AreToldApartByTheFileSystemAlone)
{
    EXPECT_THAT(MetByValues(L"x"), testing::Each(L"the board"));
}

TEST_F(BoardNames, ThatHoldTheExtensionGetNoOther)
{
    EXPECT_EQ(BoardValue(L"X.xml", L"Which"), L"the board");
    EXPECT_EQ(MetByEnumeration(L"X.xml"), L"the board");
}

TEST_F(BoardNames, OfAPathTooLongAreToldSo)
{
    const std::wstring name(260, L'n');

    EXPECT_EQ(BoardValue(name, L"Which"), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(BoardValueRaw(name, L"Install", L"Which"), Failed(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(BoardPair(name, 0), Failed(PGSP_ERR_FILE_NOT_FOUND));
    EXPECT_THAT(BoardCollection(L"NotSupported", name), testing::IsEmpty());
}

} // namespace
} // namespace norvepa::test
