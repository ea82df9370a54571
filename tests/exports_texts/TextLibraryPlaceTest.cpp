#include "TextScene.h"
#include "support/CurrentFolder.h"
#include "support/UserLanguage.h"

#include <windows.h>

#include <filesystem>
#include <vector>

namespace norvepa::test
{
namespace
{

constexpr std::size_t LongestPath = 260; // of a library's file, in characters

class TextLibraryPlace : public TextScene
{
protected:
    ~TextLibraryPlace() override
    {
        for (const std::wstring& name : m_variables)
        {
            SetEnvironmentVariableW(name.c_str(), nullptr);
        }
    }

    void SetVariable(const std::wstring& name, const std::wstring& value)
    {
        m_variables.push_back(name);
        SetEnvironmentVariableW(name.c_str(), value.c_str());
    }

    // What number 1000 is in the library that a path leads to.
    [[nodiscard]] std::wstring TitleBy(const std::wstring& path, const wchar_t* language = L"de") const
    {
        WriteDevice(TitleLink(L"1000", path));
        return Title(language);
    }

    // A folder in this test's own of so many characters, whose libraries, if they can be loaded, have a text.
    [[nodiscard]] std::wstring RootOf(std::size_t length) const
    {
        std::wstring root = roots.folder() / L"long";
        while (root.size() + 100 < length)
        {
            root += L"\\" + std::wstring(60, L'f');
        }
        root += L"\\" + std::wstring(length - root.size() - 1, L'f');
        for (const wchar_t* const language : {L"de", L"en"})
        {
            WriteBytes(root + L"\\" + language + L"\\" + TexteDll,
                       TextLibrary().Text(1000, L"far away").file());
        }
        return root;
    }

    // The same with libraries whose path has so many characters.
    [[nodiscard]] std::wstring RootOfLibrariesOf(std::size_t length) const
    {
        return RootOf(length - std::wstring(L"\\de\\").size() - TexteDll.size());
    }

private:
    std::vector<std::wstring> m_variables;
};

const std::wstring NoLibrary = Failed(PGSP_ERR_CANT_LOAD_DLL);

TEST_F(TextLibraryPlace, IsTheProgramFoldersBinWithoutAPath)
{
    EXPECT_EQ(TitleBy(L""), L"Kessel");

    WriteDevice({.name = L"Title", .assembly = TexteDll, .resourceId = L"1000"});
    EXPECT_EQ(Title(), L"Kessel");
}

TEST_F(TextLibraryPlace, IsBinForTheCommonPathWhateverStandsAroundIt)
{
    SetVariable(L"NORV_TEST_TEXTS", elsewhere());

    EXPECT_EQ(TitleBy(L"%commonpath%"), L"Kessel");
    EXPECT_EQ(TitleBy(L"%commonpath%\\gone\\further"), L"Kessel");
    EXPECT_EQ(TitleBy(elsewhere() + L"\\%commonpath%"), L"Kessel");
    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%\\%commonpath%"), L"Kessel");
    EXPECT_EQ(TitleBy(L"%commonpath%%NORV_TEST_TEXTS%"), L"Kessel");
}

TEST_F(TextLibraryPlace, IsBinForTheCommonPathThoughAVariableIsCalledSo)
{
    SetVariable(L"commonpath", elsewhere());

    EXPECT_EQ(TitleBy(L"%commonpath%"), L"Kessel");
}

TEST_F(TextLibraryPlace, IsNotBinForACommonPathInCapitals)
{
    EXPECT_EQ(TitleBy(L"%COMMONPATH%"), NoLibrary);
    EXPECT_EQ(TitleBy(L"%CommonPath%"), NoLibrary);
    SetVariable(L"COMMONPATH", elsewhere());

    EXPECT_EQ(TitleBy(L"%COMMONPATH%"), L"Kessel nebenan");
    EXPECT_EQ(TitleBy(L"%CommonPath%"), L"Kessel nebenan");
}

TEST_F(TextLibraryPlace, IsWhereItsVariablesLead)
{
    SetVariable(L"NORV_TEST_TEXTS", elsewhere());
    SetVariable(L"NORV_TEST_FOLDER", roots.folder().path());
    SetVariable(L"NORV_TEST_NAME", L"else");

    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%"), L"Kessel nebenan");
    EXPECT_EQ(TitleBy(L"%norv_test_texts%"), L"Kessel nebenan");
    EXPECT_EQ(TitleBy(L"%NORV_TEST_FOLDER%\\else"), L"Kessel nebenan");
    EXPECT_EQ(TitleBy(L"%NORV_TEST_FOLDER%\\%NORV_TEST_NAME%"), L"Kessel nebenan");
    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%", L"fr"), L"boiler next door");
}

TEST_F(TextLibraryPlace, IsNowhereForVariablesThatAreNotThere)
{
    EXPECT_EQ(TitleBy(L"%NORV_TEST_GONE%"), NoLibrary);
    EXPECT_EQ(TitleBy(L"%NORV_TEST_GONE%\\bin"), NoLibrary);
}

// It leads where a path without a root leads: below the current folder.
TEST_F(TextLibraryPlace, IsTheCurrentFolderForVariablesThatLeadToNothing)
{
    const CurrentFolder current;
    SetVariable(L"NORV_TEST_TEXTS", L"");
    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%"), NoLibrary);
    WriteBytes(current / (L"en\\" + TexteDll), TextLibrary().Text(1000, L"right here").file());
    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%"), L"right here");
    WriteBytes(current / (L"de\\" + TexteDll), TextLibrary().Text(1000, L"gleich hier").file());

    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%"), L"gleich hier");
}

TEST_F(TextLibraryPlace, MayHoldAPercentSignOfItsOwn)
{
    const std::wstring root = roots.folder() / L"50% off";
    WriteBytes(root + L"\\de\\" + TexteDll, TextLibrary().Text(1000, L"reduced").file());

    EXPECT_EQ(TitleBy(root), L"reduced");
}

TEST_F(TextLibraryPlace, IsBinWhenWhatVariablesMakeIsTooLong)
{
    SetVariable(L"NORV_TEST_TEXTS", std::wstring(LongestPath, L'x'));
    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%"), L"Kessel");
    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%", L"fr"), L"boiler");

    SetVariable(L"NORV_TEST_TEXTS", std::wstring(10'000, L'x'));
    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%"), L"Kessel");
}

TEST_F(TextLibraryPlace, IsNotBinWhenWhatVariablesMakeFitsBarely)
{
    SetVariable(L"NORV_TEST_TEXTS", std::wstring(LongestPath - 1, L'x'));

    EXPECT_EQ(TitleBy(L"%NORV_TEST_TEXTS%"), NoLibrary);
}

TEST_F(TextLibraryPlace, IsAPathWithoutVariablesAsItStands)
{
    EXPECT_EQ(TitleBy(elsewhere()), L"Kessel nebenan");
    EXPECT_EQ(TitleBy(elsewhere() + L"\\"), L"Kessel nebenan");
    EXPECT_EQ(TitleBy(elsewhere() + L"\\..\\else"), L"Kessel nebenan");
}

TEST_F(TextLibraryPlace, IsTheSameForEnglishWhenALanguageIsMissing)
{
    EXPECT_EQ(TitleBy(elsewhere(), L"fr"), L"boiler next door");
    std::filesystem::remove_all(elsewhere() + L"\\en");

    EXPECT_EQ(TitleBy(elsewhere(), L"fr"), NoLibrary);
    EXPECT_EQ(TitleBy(roots.folder() / L"gone"), NoLibrary);
}

TEST_F(TextLibraryPlace, MayBeAsFarAwayAsAPathReaches)
{
    EXPECT_EQ(TitleBy(RootOfLibrariesOf(LongestPath - 1)), L"far away");
}

TEST_F(TextLibraryPlace, FurtherAwayThanAPathReachesIsNowhere)
{
    EXPECT_EQ(TitleBy(RootOfLibrariesOf(LongestPath + 1)), NoLibrary);
    EXPECT_EQ(TitleBy(RootOfLibrariesOf(LongestPath + 100)), NoLibrary);
    EXPECT_EQ(TitleBy(std::wstring(100'000, L'x')), NoLibrary);
}

TEST_F(TextLibraryPlace, OfEnglishIsMeasuredOnItsOwn)
{
    const UserLanguage unknown(L"", library.module()); // so that the first path lacks a folder
    constexpr std::size_t behindRoot = std::size(L"\\en\\") - 1;
    const std::wstring within = RootOf(LongestPath - 1 - behindRoot - TexteDll.size());
    const std::wstring beyond = RootOf(LongestPath + 1 - behindRoot - TexteDll.size());

    EXPECT_EQ(TitleBy(within, nullptr), L"far away");
    EXPECT_EQ(TitleBy(beyond, nullptr), NoLibrary);
}

} // namespace
} // namespace norvepa::test
