#include "TextScene.h"

#include <vector>

namespace norvepa::test
{
namespace
{

class TextOutput : public TextScene
{
protected:
    TextOutput()
    {
        WriteBytes(roots.logName(L"Pumpe"), XmlFile(L"LogName", {}, Links(TitleLink(L"1000"))));
        WriteBytes(roots.board(L"X"), BoardFile(Links(TitleLink(L"1000"))));
        WriteBytes(roots.deviceTemplate(L"X"), LogDeviceFile(Links(TitleLink(L"1000"))));
    }

    // The same text, number 1000, asked of all four exports.
    [[nodiscard]] std::vector<std::int32_t> AskAll(wchar_t* value, std::uint32_t* length) const
    {
        return {library.PGSP_LogDeviceGetResourceStringBL(L"Presse", L"Title", L"de", value, length, 1),
                library.PGSP_LogNameGetResourceStringBL(L"Pumpe", L"Title", L"de", value, length, 1),
                library.PGSP_BoardGetResourceStringBL(L"X", L"Title", L"de", value, length, 1),
                library.PGSP_TemplateGetResourceStringBL(L"DefaultLogDevices", L"X", L"Title", L"de", value,
                                                         length, 1)};
    }

    // As number 1000.
    void WriteGermanText(std::wstring_view text) const
    {
        WriteBytes(bin() + L"\\de\\" + TexteDll, TextLibrary().Text(1000, text).file());
    }

    // Asked of the log device, of which a test may take something away.
    [[nodiscard]] std::int32_t Ask(wchar_t* value, std::uint32_t* length,
                                   const wchar_t* device = L"Presse") const
    {
        return library.PGSP_LogDeviceGetResourceStringBL(device, L"Title", L"de", value, length, 1);
    }
};

TEST_F(TextOutput, FillsABufferOfOneCharacterMore)
{
    OutputBuffer text(7);

    EXPECT_EQ(Ask(text.data(), &text.length), PGSP_OK);

    EXPECT_EQ(text.text(), L"Kessel");
    EXPECT_EQ(text.length, 6U);
}

TEST_F(TextOutput, OfATextThatDoesNotFitIsItsLengthAlone)
{
    for (const std::uint32_t capacity : {0U, 1U, 5U, 6U})
    {
        OutputBuffer text(capacity);

        EXPECT_EQ(Ask(text.data(), &text.length), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(text.isUntouched());
        EXPECT_EQ(text.length, 6U);
    }
}

TEST_F(TextOutput, OfALongTextIsWhole)
{
    const std::wstring story(65535, L'\u00FC');
    WriteGermanText(story);
    OutputBuffer tooShort(65535);
    OutputBuffer longEnough(65536);

    EXPECT_EQ(Ask(tooShort.data(), &tooShort.length), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(longEnough.data(), &longEnough.length), PGSP_OK);

    EXPECT_TRUE(tooShort.isUntouched());
    EXPECT_EQ(tooShort.length, 65535U);
    EXPECT_EQ(longEnough.text(), story);
    EXPECT_EQ(longEnough.length, 65535U);
}

TEST_F(TextOutput, OfATextThatHoldsATerminatorEndsThereAndHasTheLengthOfTheWhole)
{
    WriteGermanText({L"Kes\0sel", 7});
    OutputBuffer tooShort(7);
    OutputBuffer longEnough(8);

    EXPECT_EQ(Ask(tooShort.data(), &tooShort.length), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(longEnough.data(), &longEnough.length), PGSP_OK);

    EXPECT_TRUE(tooShort.isUntouched());
    EXPECT_EQ(tooShort.length, 7U);
    EXPECT_EQ(longEnough.text(), L"Kes");
    EXPECT_EQ(longEnough.length, 7U);
}

TEST_F(TextOutput, OfATextThatIsATerminatorAloneIsEmpty)
{
    WriteGermanText({L"\0", 1});
    OutputBuffer text(2);

    EXPECT_EQ(Ask(text.data(), &text.length), PGSP_OK);

    EXPECT_EQ(text.text(), L"");
    EXPECT_EQ(text.length, 1U);
}

TEST_F(TextOutput, IsTheSameForAllThatHaveTexts)
{
    EXPECT_EQ(DeviceText(L"Presse"), L"Kessel");
    EXPECT_EQ(NameText(L"Pumpe"), L"Kessel");
    EXPECT_EQ(BoardText(L"X"), L"Kessel");
    EXPECT_EQ(TemplateText(L"DefaultLogDevices", L"X"), L"Kessel");
}

TEST_F(TextOutput, IsTooShortForAllThatHaveTexts)
{
    wchar_t text[20] = L"before";
    std::uint32_t length = 6;

    EXPECT_THAT(AskAll(text, &length), testing::Each(PGSP_ERR_BUFFER_TOO_SHORT));

    EXPECT_STREQ(text, L"before");
    EXPECT_EQ(length, 6U);
}

TEST_F(TextOutput, WithoutALengthIsRefusedWhenThereIsAText)
{
    wchar_t text[20] = L"before";

    EXPECT_THAT(AskAll(text, nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));
    EXPECT_THAT(AskAll(nullptr, nullptr), testing::Each(PGSP_ERR_INVALID_PARAMETERS));

    EXPECT_STREQ(text, L"before");
}

TEST_F(TextOutput, ThatIsNotThereTakesNothingWhenItIsToldToHaveRoom)
{
    for (const std::uint32_t capacity : {7U, 20U})
    {
        std::uint32_t length = capacity;

        EXPECT_THAT(AskAll(nullptr, &length), testing::Each(PGSP_OK));

        EXPECT_EQ(length, capacity);
    }
}

TEST_F(TextOutput, ThatIsNotThereLearnsTheLengthWhenItIsToldToBeTooShort)
{
    for (const std::uint32_t capacity : {0U, 1U, 6U})
    {
        std::uint32_t length = capacity;

        EXPECT_EQ(Ask(nullptr, &length), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_EQ(length, 6U);
    }
}

TEST_F(TextOutput, IsNotAskedForAsLongAsThereIsNoText)
{
    EXPECT_EQ(Ask(nullptr, nullptr, L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    store.WriteDevice(L"Presse", {});
    EXPECT_EQ(Ask(nullptr, nullptr), PGSP_ERR_PARAM_NOT_FOUND);
    WriteDevice(TitleLink(L"1000", roots.folder() / L"gone"));
    EXPECT_EQ(Ask(nullptr, nullptr), PGSP_ERR_CANT_LOAD_DLL);
    WriteDevice(TitleLink(L"9999"));
    EXPECT_EQ(Ask(nullptr, nullptr), PGSP_ERR_CANT_LOAD_RESOURCE);
    store.TakeProgramFolderAway();
    EXPECT_EQ(Ask(nullptr, nullptr), PGSP_ERR_FOLDER_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
