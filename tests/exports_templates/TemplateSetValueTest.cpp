#include "TemplateSetScene.h"
#include "support/FreshThread.h"

namespace norvepa::test
{
namespace
{

class TemplateSetValue : public TemplateSetScene
{
protected:
    // A file of one parameter, "a", and what it holds now.
    void WriteOne(const std::wstring& path) const
    {
        WriteBytes(path, LogDeviceFile(XmlContent().Element(L"Ndi", XmlContent().Text(L"a", L"1"))));
    }
    [[nodiscard]] static bool IsSet(const std::wstring& path)
    {
        return ReadBytes(path).find("<Value>2</Value>") != std::string::npos;
    }
};

TEST_F(TemplateSetValue, ChangesTheParameterAndNothingElse)
{
    EXPECT_EQ(SetBoard(L"2"), PGSP_OK);

    ExpectSaved(L"2");
    EXPECT_THAT(FileNames(roots.program() + L"\\meta\\Boards"), testing::ElementsAre(BoardPrefix + L"X.xml"));
}

TEST_F(TemplateSetValue, KnowsTheParameterInAnyCase)
{
    EXPECT_EQ(Set(L"Boards", L"X", L"A", L"\u00DCber 2"), PGSP_OK);

    ExpectSaved(L"\u00DCber 2");
}

TEST_F(TemplateSetValue, MayBeEmptyOrOfAnotherKind)
{
    EXPECT_EQ(SetBoard(L""), PGSP_OK);
    ExpectSaved(L"");
    EXPECT_EQ(SetBoard(L"TRUE"), PGSP_OK);
    ExpectSaved(L"true");
    EXPECT_EQ(SetBoard(L"-12"), PGSP_OK);
    ExpectSaved(L"-12");
}

TEST_F(TemplateSetValue, IsForEveryFolder)
{
    const Strings files{roots.protocol(L"X"), roots.deviceTemplate(L"X"), PathOf(L"Own", L"X"),
                        PathOf(L"Own\\Deep", L"X")};
    for (const std::wstring& file : files)
    {
        WriteOne(file);
    }

    EXPECT_EQ(Set(L"Protocols", L"X", L"a", L"2"), PGSP_OK);
    EXPECT_EQ(Set(L"DefaultLogDevices", L"X", L"a", L"2"), PGSP_OK);
    EXPECT_EQ(Set(L"Own", L"X", L"a", L"2"), PGSP_OK);
    EXPECT_EQ(Set(L"Own\\Deep", L"X", L"a", L"2"), PGSP_OK);

    EXPECT_THAT(files, testing::Each(testing::Truly(IsSet)));
}

TEST_F(TemplateSetValue, WithoutAFolderIsForAFileBesideTheFolders)
{
    const std::wstring file = roots.program() + L"\\meta\\X.xml";
    for (const wchar_t* const folder : {static_cast<const wchar_t*>(nullptr), L""})
    {
        WriteOne(file);

        EXPECT_EQ(library.PGSP_TemplateSetValueBL(folder, L"X", L"a", L"2"), PGSP_OK);

        EXPECT_TRUE(IsSet(file));
    }
}

TEST_F(TemplateSetValue, WithoutAFileIsForThatOfThePrefixOrTheFolder)
{
    struct Case
    {
        const wchar_t* folder;
        std::wstring file;
    };
    const Case cases[] = {{L"Boards", roots.board(L"")},
                          {L"Protocols", roots.protocol(L"")},
                          {L"DefaultLogDevices", roots.deviceTemplate(L"")},
                          {L"Own", roots.program() + L"\\meta\\Own.xml"},
                          {nullptr, roots.program() + L"\\meta.xml"}};
    for (const auto& [folder, file] : cases)
    {
        EXPECT_EQ(library.PGSP_TemplateSetValueBL(folder, nullptr, L"a", L"2"), PGSP_ERR_FILE_NOT_FOUND);
        for (const wchar_t* const name : {static_cast<const wchar_t*>(nullptr), L""})
        {
            WriteOne(file);

            EXPECT_EQ(library.PGSP_TemplateSetValueBL(folder, name, L"a", L"2"), PGSP_OK);

            EXPECT_TRUE(IsSet(file)) << ToUtf8(file);
        }
    }
}

TEST_F(TemplateSetValue, ThatTheFileHoldsAlreadyIsASuccessAndLeavesTheFileAlone)
{
    WriteBoard(L"X", BoardWith(L"Wert \u00C4"));
    const std::string before = Bytes();

    EXPECT_EQ(SetBoard(L"Wert \u00C4"), PGSP_OK);
    EXPECT_EQ(SetBoard(L"WERT \u00E4"), PGSP_OK);

    EXPECT_EQ(Bytes(), before);
}

TEST_F(TemplateSetValue, IsSeenAtOnceByWhoReadsValues)
{
    WriteTemplate(L"X", XmlContent().Element(L"Ndi", XmlContent().Text(L"a", L"1")));
    ASSERT_EQ(BoardValue(L"X", L"a"), L"1");
    ASSERT_EQ(DeviceValue(L"X", L"a"), L"1");

    ASSERT_EQ(SetBoard(L"2"), PGSP_OK);
    ASSERT_EQ(Set(L"DefaultLogDevices", L"X", L"a", L"2"), PGSP_OK);

    EXPECT_EQ(BoardValue(L"X", L"a"), L"2");
    EXPECT_EQ(DeviceValue(L"X", L"a"), L"2");
}

TEST_F(TemplateSetValue, IsNotSeenInWhatTheLibraryKnowsOfTheFileAlready)
{
    WriteTemplate(L"X", XmlContent().Element(L"LocalSettings", XmlContent().Text(L"a", L"1")));
    ASSERT_EQ(DevicePair(L"X", 0), L"a=1");

    ASSERT_EQ(Set(L"DefaultLogDevices", L"X", L"a", L"2"), PGSP_OK);

    EXPECT_EQ(DevicePair(L"X", 0), L"a=1");
}

TEST_F(TemplateSetValue, NeedsNoComOnTheThread)
{
    OnFreshThread([&] { EXPECT_EQ(SetBoard(L"2"), PGSP_OK); });

    ExpectSaved(L"2");
}

} // namespace
} // namespace norvepa::test
