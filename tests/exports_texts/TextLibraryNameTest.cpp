#include "TextScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

const std::wstring NoLibrary = Failed(PGSP_ERR_CANT_LOAD_DLL);

// What a link calls its library.
class TextLibraryName : public TextScene
{
protected:
    // What number 1000 is in the library of this name.
    [[nodiscard]] std::wstring TitleOf(std::wstring_view assembly) const
    {
        WriteDevice({.name = L"Title", .assembly = assembly, .path = L"", .resourceId = L"1000"});
        return Title();
    }
};

TEST_F(TextLibraryName, WithABackslashLeadsNowhere)
{
    WriteBytes(bin() + L"\\de\\sub\\" + TexteDll, TextLibrary().Text(1000, L"below").file());
    for (const wchar_t* const assembly :
         {L"sub\\Texte.dll", L"..\\de\\Texte.dll", L"\\Texte.dll", L"Texte.dll\\", L"\\"})
    {
        EXPECT_EQ(TitleOf(assembly), NoLibrary) << ToUtf8(assembly);
    }
}

TEST_F(TextLibraryName, ThatIsMissingDoesNotLeadToALibraryNamedLikeTheFolder)
{
    for (const wchar_t* const language : {L"de", L"en"})
    {
        std::filesystem::remove_all(bin() + L"\\" + language);
        WriteBytes(bin() + L"\\" + language + L".dll", TextLibrary().Text(1000, L"not meant").file());
    }
    EXPECT_EQ(TitleOf(L""), NoLibrary);
}

TEST_F(TextLibraryName, ThatIsMissingLeadsNowhereThoughLibrariesAreNamedLikeFolders)
{
    for (const wchar_t* const language : {L"de", L"en"})
    {
        WriteBytes(bin() + L"\\" + language + L".dll", TextLibrary().Text(1000, L"not meant").file());
        WriteBytes(bin() + L"\\" + language + L"\\.dll", TextLibrary().Text(1000, L"not meant").file());
    }
    for (const wchar_t* const assembly : {L"", L"sub\\Texte.dll"})
    {
        EXPECT_EQ(TitleOf(assembly), NoLibrary) << ToUtf8(assembly);
    }

    WriteDevice({.name = L"Title", .path = L"", .resourceId = L"1000"});
    EXPECT_EQ(Title(), NoLibrary);
}

// Of the two signs that separate folders only the backslash is refused.
TEST_F(TextLibraryName, WithASlashLeadsToAnotherFolder)
{
    WriteBytes(bin() + L"\\de\\sub\\" + TexteDll, TextLibrary().Text(1000, L"below").file());

    EXPECT_EQ(TitleOf(L"sub/Texte.dll"), L"below");
    EXPECT_EQ(TitleOf(L"../en/Texte.dll"), L"boiler");
}

// Which the system adds.
TEST_F(TextLibraryName, WithoutAnExtensionIsThatOfALibrary)
{
    EXPECT_EQ(TitleOf(L"Texte"), L"Kessel");
    EXPECT_EQ(TitleOf(L"texte.DLL"), L"Kessel");
    EXPECT_EQ(TitleOf(L"Texte.mui"), NoLibrary);
}

TEST_F(TextLibraryName, MayHaveAnyExtension)
{
    WriteBytes(bin() + L"\\de\\Texte.mui", TextLibrary().Text(1000, L"of another kind").file());

    EXPECT_EQ(TitleOf(L"Texte.mui"), L"of another kind");
}

} // namespace
} // namespace norvepa::test
