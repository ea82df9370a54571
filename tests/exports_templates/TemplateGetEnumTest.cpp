#include "TemplateScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class TemplateGetEnum : public TemplateScene
{
protected:
    [[nodiscard]] Strings All(const std::wstring& folder) const
    {
        Strings names;
        std::wstring name = FileName(folder, 0);
        while (name != Failed(PGSP_ERR_NO_MORE_ITEMS))
        {
            names.push_back(name);
            name = FileName(folder, static_cast<std::uint32_t>(names.size()));
        }
        return names;
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* folder, wchar_t* name, std::uint32_t* length) const
    {
        return library.PGSP_TemplateGetEnumBL(folder, 0, name, length);
    }
};

TEST_F(TemplateGetEnum, GoesThroughTheFilesOfAFolderWithTheirPrefixes)
{
    WriteBoard(L"a", {});
    WriteBoard(L"b", {});
    WriteProtocol(L"c", {});
    WriteTemplate(L"d", {});
    WriteIn(L"Own", L"e", {});
    WriteIn(L"Own\\Deep", L"f", {});

    EXPECT_THAT(All(L"Boards"), UnorderedElementsAre(BoardPrefix + L"a", BoardPrefix + L"b"));
    EXPECT_THAT(All(L"PROTOCOLS"), ElementsAre(ProtocolPrefix + L"c"));
    EXPECT_THAT(All(L"defaultlogdevices"), ElementsAre(TemplatePrefix + L"d"));
    EXPECT_THAT(All(L"Own"), ElementsAre(L"e"));
    EXPECT_THAT(All(L"Own\\Deep"), ElementsAre(L"f"));
}

TEST_F(TemplateGetEnum, TellsTheFileOfABoardAndNotItsDeviceId)
{
    WriteBytes(roots.board(L"X"), BoardFile({}, L"Karte 1"));

    EXPECT_THAT(All(L"Boards"), ElementsAre(BoardPrefix + L"X"));
}

TEST_F(TemplateGetEnum, TellsNamesAsPeopleWriteThem)
{
    WriteBoard(L"50#25 \u00DCber(nmbr)1", {});

    EXPECT_THAT(All(L"Boards"), ElementsAre(BoardPrefix + L"50% \u00DCber#1"));
}

TEST_F(TemplateGetEnum, TellsOfNothingButXmlFiles)
{
    WriteIn(L"Own", L"a", {});
    WriteBytes(roots.program() + L"\\meta\\Own\\Notes.txt", "");

    EXPECT_THAT(All(L"Own"), ElementsAre(L"a"));
}

TEST_F(TemplateGetEnum, EndsBehindTheLastFile)
{
    WriteTemplate(L"a", {});

    EXPECT_EQ(FileName(L"DefaultLogDevices", 1), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(FileName(L"DefaultLogDevices", 0xFFFFFFFF), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(FileName(L"DefaultLogDevices", 0), TemplatePrefix + L"a");
}

TEST_F(TemplateGetEnum, EndsAtOnceInAFolderThatIsEmptyOrNotThere)
{
    EXPECT_EQ(FileName(L"Boards", 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
    EXPECT_EQ(FileName(L"gone", 0), Failed(PGSP_ERR_NO_MORE_ITEMS));
}

TEST_F(TemplateGetEnum, StaysAsItWasFirstTaken)
{
    WriteTemplate(L"a", {});
    ASSERT_THAT(All(L"DefaultLogDevices"), ElementsAre(TemplatePrefix + L"a"));

    WriteTemplate(L"b", {});
    library.NorvepaBl64x_deinit();

    EXPECT_THAT(All(L"DefaultLogDevices"), ElementsAre(TemplatePrefix + L"a"));
}

TEST_F(TemplateGetEnum, FillsABufferOfOneCharacterMore)
{
    WriteIn(L"Own", L"abc", {});
    OutputBuffer exact(3);
    OutputBuffer oneMore(4);

    EXPECT_EQ(Ask(L"Own", exact.data(), &exact.length), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Ask(L"Own", oneMore.data(), &oneMore.length), PGSP_OK);

    EXPECT_TRUE(exact.isUntouched());
    EXPECT_EQ(exact.length, 3U);
    EXPECT_EQ(oneMore.text(), L"abc");
    EXPECT_EQ(oneMore.length, 3U);
}

TEST_F(TemplateGetEnum, RefusesALengthOfZero)
{
    WriteIn(L"Own", L"abc", {});
    OutputBuffer name(0);

    EXPECT_EQ(Ask(L"Own", name.data(), &name.length), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 0U);
}

TEST_F(TemplateGetEnum, RefusesAMissingFolderAheadOfTheRoot)
{
    OutputBuffer name(20);
    EXPECT_EQ(Ask(nullptr, name.data(), &name.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"", name.data(), &name.length), PGSP_ERR_INVALID_PARAMETERS);

    TakeProgramFolderAway();
    EXPECT_EQ(Ask(nullptr, name.data(), &name.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"", name.data(), &name.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Boards", name.data(), &name.length), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 20U);
}

TEST_F(TemplateGetEnum, RefusesMissingOutputsOnlyBehindTheRoot)
{
    WriteIn(L"Own", L"abc", {});
    OutputBuffer name(20);
    EXPECT_EQ(Ask(L"Own", nullptr, &name.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Own", name.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Own", nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    TakeProgramFolderAway();
    EXPECT_EQ(Ask(L"Own", nullptr, &name.length), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Ask(L"Own", name.data(), nullptr), PGSP_ERR_FOLDER_NOT_FOUND);
    EXPECT_EQ(Ask(L"Own", nullptr, nullptr), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 20U);
}

} // namespace
} // namespace norvepa::test
