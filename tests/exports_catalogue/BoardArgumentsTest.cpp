#include "CatalogueScene.h"

namespace norvepa::test
{
namespace
{

class BoardArguments : public CatalogueScene
{
protected:
    wchar_t buffer[300] = L"before";
    std::uint32_t length = 300;

    // What each of the exports that read one value or one list answers for a board's name.
    [[nodiscard]] std::vector<std::int32_t> AskAll(const wchar_t* board, wchar_t* value,
                                                   std::uint32_t* valueLength) const
    {
        return {library.PGSP_BoardGetValueBL(board, L"DeviceID", value, valueLength),
                library.PGSP_BoardGetValueRawBL(board, nullptr, L"DeviceID", value, valueLength),
                library.PGSP_BoardGetValueRawBL(board, L"Install", L"DeviceID", value, valueLength),
                library.PGSP_BoardGetValueListBL(board, L"DeviceID", 9, value, valueLength),
                library.PGSP_BoardGetValueCollectionBL(L"NotSupported", board, value, valueLength),
                library.PGSP_BoardGetNotSupportedBL(board, value, valueLength)};
    }

    [[nodiscard]] std::int32_t AskPair(const std::wstring& board, std::uint32_t nameLength,
                                       std::uint32_t valueLength)
    {
        return library.PGSP_BoardGetEnumValueBL(board.c_str(), 0, buffer, &nameLength, buffer, &valueLength);
    }
};

TEST_F(BoardArguments, WithoutABoardAreRefused)
{
    EXPECT_THAT(AskAll(nullptr, buffer, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(L"", buffer, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(nullptr, 0, buffer, &length, buffer, &length), 87);
    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"", 0, buffer, &length, buffer, &length), 87);

    EXPECT_STREQ(buffer, L"before");
    EXPECT_EQ(length, 300U);
}

TEST_F(BoardArguments, WithoutAnOutputAreRefused)
{
    EXPECT_THAT(AskAll(L"X", nullptr, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(L"X", buffer, nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
}

TEST_F(BoardArguments, AreTestedAheadOfTheFolder)
{
    TakeProgramFolderAway();

    EXPECT_THAT(AskAll(L"", buffer, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(L"X", nullptr, &length), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"", 0, buffer, &length, buffer, &length), 87);
}

TEST_F(BoardArguments, AreNotAllTestedAheadOfTheFolderInAnEnumeration)
{
    TakeProgramFolderAway();

    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"X", 0, nullptr, nullptr, nullptr, nullptr), 8517);
}

TEST_F(BoardArguments, LeadNowhereWithoutTheProgramFolder)
{
    WriteBoard(L"X", {});
    TakeProgramFolderAway();

    EXPECT_THAT(AskAll(L"X", buffer, &length), testing::Each(PGSP_ERR_FOLDER_NOT_FOUND));
    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"X", 0, buffer, &length, buffer, &length), 8517);

    EXPECT_STREQ(buffer, L"before");
    EXPECT_EQ(length, 300U);
}

TEST_F(BoardArguments, LeadNowhereWithAnEmptyProgramFolder)
{
    SetMachineText(LocationsKey, L"Corvane_Oam", L"");

    EXPECT_THAT(AskAll(L"X", buffer, &length), testing::Each(PGSP_ERR_FOLDER_NOT_FOUND));
}

TEST_F(BoardArguments, NameABoardThatHasToBeThereExceptForItsCollections)
{
    EXPECT_THAT(AskAll(L"gone", buffer, &length),
                testing::ElementsAre(PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_CANT_LOAD_XML_FILE,
                                     PGSP_ERR_CANT_LOAD_XML_FILE, PGSP_ERR_INVALID_PARAMETERS, PGSP_OK,
                                     PGSP_OK));
}

TEST_F(BoardArguments, OfAnEnumerationWithoutAnOutputAreRefused)
{
    WriteBoard(L"X", XmlContent().Element(L"Install", XmlContent().Text(L"a", L"1")));

    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"X", 0, nullptr, &length, buffer, &length), 87);
    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"X", 0, buffer, nullptr, buffer, &length), 87);
    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"X", 0, buffer, &length, nullptr, &length), 87);
    EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(L"X", 0, buffer, &length, buffer, nullptr), 87);
}

TEST_F(BoardArguments, OfASectionOrTheDefaultsHaveACodeOfTheirOwnForAMissingLength)
{
    for (const wchar_t* const board : {L"X\\a", L"X\\ConstraintsWithDefault"})
    {
        EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(board, 0, buffer, nullptr, buffer, &length), -1);
        EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(board, 0, buffer, &length, buffer, nullptr), -1);
        EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(board, 0, nullptr, nullptr, nullptr, nullptr), -1);
        EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(board, 0, nullptr, &length, buffer, &length), 87);
        EXPECT_EQ(library.PGSP_BoardGetEnumValueBL(board, 0, buffer, &length, nullptr, &length), 87);
    }
}

TEST_F(BoardArguments, OfLengthZeroAreRefusedForABoardAndTooShortForItsSections)
{
    const XmlContent section = XmlContent().ParamSection(L"a", XmlContent().Element(L"default", L"1"));
    WriteBoard(L"X", XmlContent().Element(L"Constraints", section));

    EXPECT_EQ(AskPair(L"X", 0, 300), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(AskPair(L"X", 300, 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(AskPair(L"X\\a", 0, 300), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(AskPair(L"X\\a", 300, 0), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(AskPair(L"X\\ConstraintsWithDefault", 0, 300), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(AskPair(L"X\\ConstraintsWithDefault", 300, 0), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(BoardArguments, WithoutNamesAreRefusedUnlessTheirLengthIsZero)
{
    WriteBoard(L"X", {});

    EXPECT_EQ(library.PGSP_BoardGetValueListBL(L"X", nullptr, 1, buffer, &length), 87);
    EXPECT_EQ(library.PGSP_BoardGetValueListBL(L"X", nullptr, 0, buffer, &length), PGSP_OK);

    EXPECT_EQ(length, 1U);
}

TEST_F(BoardArguments, WithoutACollectionAreAnEmptyList)
{
    WriteBoard(L"X", {});
    ListBuffer values(300);

    EXPECT_EQ(library.PGSP_BoardGetValueCollectionBL(nullptr, L"X", values.data(), &values.length), PGSP_OK);

    EXPECT_EQ(values.written(), Packed({}));
    EXPECT_EQ(values.length, 1U);
}

} // namespace
} // namespace norvepa::test
