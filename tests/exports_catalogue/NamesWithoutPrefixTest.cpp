#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class NamesWithoutPrefix : public CatalogueScene
{
protected:
    [[nodiscard]] Strings All(const wchar_t* folder) const
    {
        Strings names;
        std::wstring name = NameWithoutPrefix(folder, 0);
        while (name != Failed(PGSP_ERR_NO_MORE_ITEMS))
        {
            names.push_back(name);
            name = NameWithoutPrefix(folder, static_cast<std::uint32_t>(names.size()));
        }
        return names;
    }
};

TEST_F(NamesWithoutPrefix, AreTheDeviceIdsOfBoards)
{
    WriteBytes(roots.board(L"X"), BoardFile({}, L"Karte \u00DCber 1"));
    WriteBytes(roots.board(L"50#25"), BoardFile({}, L"50 von 100"));

    EXPECT_THAT(All(L"Boards"), UnorderedElementsAre(L"Karte \u00DCber 1", L"50 von 100"));
    EXPECT_THAT(All(L"BOARDS"), UnorderedElementsAre(L"Karte \u00DCber 1", L"50 von 100"));
}

TEST_F(NamesWithoutPrefix, AreTheDeviceIdsOfBoardsFromWhereverABoardHasThem)
{
    const XmlContent content = XmlContent().Element(L"Install", XmlContent().Text(L"DeviceID", L"installed"));
    WriteBytes(roots.board(L"X"), XmlFile(L"Device", {}, content));

    EXPECT_THAT(All(L"Boards"), ElementsAre(L"installed"));
}

// A file without the prefix is looked up by the name with it.
TEST_F(NamesWithoutPrefix, AreTheDeviceIdsOfTheBoardsWithThePrefixForFilesWithoutToo)
{
    WriteBytes(roots.board(L"X"), BoardFile({}, L"with"));
    WriteBytes(roots.program() + L"\\meta\\Boards\\X.xml", BoardFile({}, L"without"));
    WriteBytes(roots.program() + L"\\meta\\Boards\\Y.xml", BoardFile({}, L"alone"));

    EXPECT_THAT(All(L"Boards"), UnorderedElementsAre(L"with", L"with", L"Y"));
}

TEST_F(NamesWithoutPrefix, AreEmptyForAnEmptyDeviceId)
{
    WriteBytes(roots.board(L"X"), BoardFile({}, L""));

    EXPECT_THAT(All(L"Boards"), ElementsAre(L""));
}

TEST_F(NamesWithoutPrefix, AreTheFileNamesOfBoardsThatDoNotTell)
{
    WriteBytes(roots.board(L"X"), XmlFile(L"Device", {}, {}));
    WriteBytes(roots.board(L"Y"), "not even XML");
    WriteBytes(roots.board(L"Z"), BoardFile({}, std::wstring(260, L'd')));

    EXPECT_THAT(All(L"Boards"), UnorderedElementsAre(L"X", L"Y", L"Z"));
}

TEST_F(NamesWithoutPrefix, AreADeviceIdOfAnyLengthThatAPathMayHave)
{
    const std::wstring deviceId(259, L'd');
    WriteBytes(roots.board(L"X"), BoardFile({}, deviceId));

    EXPECT_THAT(All(L"Boards"), ElementsAre(deviceId));
}

TEST_F(NamesWithoutPrefix, OfOtherFoldersLackTheirOwnPrefixWhereverItStands)
{
    WriteProtocol(L"MPI" + ProtocolPrefix + L"2", {});
    WriteBytes(roots.deviceTemplate(L"L2" + TemplatePrefix), LogDeviceFile({}));

    EXPECT_THAT(All(L"Protocols"), ElementsAre(L"MPI2"));
    EXPECT_THAT(All(L"protocols"), ElementsAre(L"MPI2"));
    EXPECT_THAT(All(L"DefaultLogDevices"), ElementsAre(L"L2"));
    EXPECT_THAT(All(L"DEFAULTLOGDEVICES"), ElementsAre(L"L2"));
}

TEST_F(NamesWithoutPrefix, OfOtherFoldersKeepThePrefixOfAnother)
{
    WriteProtocolAs(BoardPrefix + L"a", {});
    WriteBytes(roots.program() + L"\\meta\\Own\\" + ProtocolPrefix + L"b.xml", "");

    EXPECT_THAT(All(L"Protocols"), ElementsAre(BoardPrefix + L"a"));
    EXPECT_THAT(All(L"Own"), ElementsAre(ProtocolPrefix + L"b"));
}

TEST_F(NamesWithoutPrefix, KeepWhatARemovalPutsTogether)
{
    const std::wstring half = ProtocolPrefix.substr(0, 10);
    WriteProtocolAs(half + ProtocolPrefix + ProtocolPrefix.substr(10) + L"a", {});

    EXPECT_THAT(All(L"Protocols"), ElementsAre(ProtocolPrefix + L"a"));
}

TEST_F(NamesWithoutPrefix, EndBehindTheLastFile)
{
    WriteProtocol(L"a", {});
    WriteProtocol(L"b", {});
    WriteProtocol(L"c", {});

    EXPECT_THAT(All(L"Protocols"), UnorderedElementsAre(L"a", L"b", L"c"));
    EXPECT_EQ(NameWithoutPrefix(L"Protocols", 3), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(NameWithoutPrefix(L"Protocols", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(NameWithoutPrefix(L"gone", 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(NamesWithoutPrefix, FillABufferOfOneCharacterMore)
{
    WriteProtocol(L"MPI", {});
    for (const std::uint32_t capacity : {0U, 3U})
    {
        OutputBuffer name(capacity);

        EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Protocols", 0, name.data(), &name.length),
                  PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(name.isUntouched());
        EXPECT_EQ(name.length, 3U);
    }
    OutputBuffer name(4);

    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Protocols", 0, name.data(), &name.length), PGSP_OK);

    EXPECT_EQ(name.text(), L"MPI");
    EXPECT_EQ(name.length, 3U);
}

TEST_F(NamesWithoutPrefix, LookAtTheirOutputsOnlyWhenThereIsAName)
{
    WriteProtocol(L"MPI", {});
    wchar_t buffer[10] = L"before";
    std::uint32_t none = 0;
    std::uint32_t enough = 10;

    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Protocols", 1, nullptr, nullptr),
              PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Protocols", 0, buffer, nullptr),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Protocols", 0, nullptr, &none),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.PGSP_TemplateGetEnumNoPrefixBL(L"Protocols", 0, nullptr, &enough), PGSP_OK);

    EXPECT_STREQ(buffer, L"before");
    EXPECT_EQ(none, 3U);
    EXPECT_EQ(enough, 10U);
}

} // namespace
} // namespace norvepa::test
