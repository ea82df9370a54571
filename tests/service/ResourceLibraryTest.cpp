#include "service/norvmfc/ResourceLibrary.h"

#include "support/ProgramStart.h"
#include "support/TemporaryFolder.h"
#include "support/TextLibrary.h"

#include <gmock/gmock.h>
#include <limits>
#include <memory>
#include <string>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

class ResourceLibraryTest : public testing::Test
{
protected:
    // The library of these texts, loaded.
    [[nodiscard]] ResourceLibrary Loaded(const TextLibrary& texts) const
    {
        WriteBytes(m_path, texts.file());
        ResourceLibrary library(m_path);
        EXPECT_TRUE(library);
        return library;
    }

    [[nodiscard]] const std::wstring& path() const { return m_path; }
    [[nodiscard]] std::wstring Beside(const std::wstring& name) const { return m_folder / name; }

private:
    TemporaryFolder m_folder;
    std::wstring m_path = m_folder / L"Texte.dll";
};

bool CanBeWritten(const std::wstring& path)
{
    constexpr DWORD anySharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const win::Handle file(
        CreateFileW(path.c_str(), GENERIC_WRITE, anySharing, nullptr, OPEN_EXISTING, 0, nullptr));
    return static_cast<bool>(file);
}

bool HasLivelyLibraryRun()
{
    return GetEnvironmentVariableW(L"NORV_TEST_LIVELY", nullptr, 0) != 0;
}

TEST_F(ResourceLibraryTest, HoldsStringsByTheirNumbers)
{
    const ResourceLibrary library = Loaded(TextLibrary()
                                               .Text(0, L"first")
                                               .Text(1, L"second")
                                               .Text(15, L"last of a block")
                                               .Text(16, L"first of a block")
                                               .Text(1003, L"R\u00FCbenw\u00E4sche")
                                               .Text(65535, L"last"));

    EXPECT_EQ(library.TextOf(0), L"first");
    EXPECT_EQ(library.TextOf(1), L"second");
    EXPECT_EQ(library.TextOf(15), L"last of a block");
    EXPECT_EQ(library.TextOf(16), L"first of a block");
    EXPECT_EQ(library.TextOf(1003), L"R\u00FCbenw\u00E4sche");
    EXPECT_EQ(library.TextOf(65535), L"last");
}

TEST_F(ResourceLibraryTest, HasNothingUnderOtherNumbers)
{
    const ResourceLibrary library = Loaded(TextLibrary().Text(0, L"first").Text(16, L"of a block"));

    EXPECT_EQ(library.TextOf(1), L"") << "of a block that is there";
    EXPECT_EQ(library.TextOf(15), L"");
    EXPECT_EQ(library.TextOf(17), L"");
    EXPECT_EQ(library.TextOf(32), L"") << "of a block that isn't";
    EXPECT_EQ(library.TextOf(65535), L"");
}

TEST_F(ResourceLibraryTest, HasNothingUnderNumbersThatStringsDoNotHave)
{
    TextLibrary texts;
    for (unsigned edge = 0; edge < 16; ++edge)
    {
        texts.Text(edge, L"low").Text(65520 + edge, L"high");
    }
    const ResourceLibrary library = Loaded(texts);

    for (const std::int64_t number :
         {std::int64_t{-1}, std::int64_t{-16}, std::int64_t{65536}, std::int64_t{0xFFFFFFFF},
          std::int64_t{0x100000000}, std::numeric_limits<std::int64_t>::min(),
          std::numeric_limits<std::int64_t>::max()})
    {
        EXPECT_EQ(library.TextOf(number), L"") << number;
    }
}

TEST_F(ResourceLibraryTest, HoldsStringsOfAnyLength)
{
    const std::wstring longest(65535, L'\u00FC');
    const ResourceLibrary library =
        Loaded(TextLibrary().Text(2, L"x").Text(3, longest).Text(4, L"\U0001F3ED behind it"));

    EXPECT_EQ(library.TextOf(2), L"x");
    EXPECT_EQ(library.TextOf(3), longest);
    EXPECT_EQ(library.TextOf(4), L"\U0001F3ED behind it");
}

TEST_F(ResourceLibraryTest, OfLanguagesThatAreNotTheUsersHoldsItsStringsAllTheSame)
{
    const std::wstring samples = FromUtf8(NORV_SAMPLE_RESOURCES);

    EXPECT_EQ(ResourceLibrary(samples + L"\\de\\AuentalTexte.dll").TextOf(1002),
              L"R\u00FCbenw\u00E4sche bis Schnitzelmaschine");
    EXPECT_EQ(ResourceLibrary(samples + L"\\en\\AuentalTexte.dll").TextOf(1002),
              L"Beet washer to beet slicer");
}

TEST_F(ResourceLibraryTest, WithABlockThatBreaksOffHoldsWhatStandsAheadOfThat)
{
    const ResourceLibrary library =
        Loaded(TextLibrary().Block(1, "\2\0a\0b\0\1\0c\0"sv).Text(16, L"of the next block"));

    EXPECT_EQ(library.TextOf(0), L"ab");
    EXPECT_EQ(library.TextOf(1), L"c");
    EXPECT_EQ(library.TextOf(2), L"");
    EXPECT_EQ(library.TextOf(15), L"");
    EXPECT_EQ(library.TextOf(16), L"of the next block");
}

TEST_F(ResourceLibraryTest, WithACountBeyondItsBlockHoldsNothingFromThereOn)
{
    const ResourceLibrary library = Loaded(TextLibrary()
                                               .Block(1, "\1\0a\0\5\0b\0c\0"sv)
                                               .Block(2, "\xFF\xFFx\0"sv)
                                               .Text(32, L"of the next block"));

    EXPECT_EQ(library.TextOf(0), L"a");
    EXPECT_EQ(library.TextOf(1), L"");
    EXPECT_EQ(library.TextOf(2), L"");
    EXPECT_EQ(library.TextOf(16), L"");
    EXPECT_EQ(library.TextOf(31), L"");
    EXPECT_EQ(library.TextOf(32), L"of the next block");
}

TEST_F(ResourceLibraryTest, WithABlockThatEndsWithinACharacterHoldsNoneOfIt)
{
    const ResourceLibrary library =
        Loaded(TextLibrary().Block(1, "\1"sv).Block(2, "\1\0a"sv).Block(3, "\1\0a\0\1"sv).Block(4, ""sv));

    EXPECT_EQ(library.TextOf(0), L"");
    EXPECT_EQ(library.TextOf(16), L"");
    EXPECT_EQ(library.TextOf(32), L"a");
    EXPECT_EQ(library.TextOf(33), L"");
    EXPECT_EQ(library.TextOf(48), L"");
}

TEST_F(ResourceLibraryTest, WithABlockToldToLieBeyondTheLibraryHoldsNothingOfIt)
{
    constexpr std::uint32_t behindSection = 0x2000;
    const ResourceLibrary library = Loaded(TextLibrary()
                                               .BlockAt(1, behindSection, 100)
                                               .BlockAt(2, 0x7FFFFFF0, 100)
                                               .BlockAt(3, 0xFFFFFFF0, 100)
                                               .BlockAt(4, behindSection - 2, 100)
                                               .BlockAt(5, behindSection - 1, 0xFFFFFFFF)
                                               .Text(80, L"in its place"));

    EXPECT_EQ(library.TextOf(0), L"");
    EXPECT_EQ(library.TextOf(16), L"");
    EXPECT_EQ(library.TextOf(32), L"");
    EXPECT_EQ(library.TextOf(48), L"");
    EXPECT_EQ(library.TextOf(63), L"");
    EXPECT_EQ(library.TextOf(64), L"");
    EXPECT_EQ(library.TextOf(80), L"in its place");
}

TEST_F(ResourceLibraryTest, WithABlockToldToBeLongerThanTheLibraryHoldsWhatThereIs)
{
    const ResourceLibrary library = Loaded(TextLibrary().BlockAt(1, 0, 0xFFFFFFFF).BlockAt(2, 0, 1));

    EXPECT_EQ(library.TextOf(0), L"") << "the file's first word counts more than its first page";
    EXPECT_EQ(library.TextOf(15), L"");
    EXPECT_EQ(library.TextOf(16), L"");
}

TEST_F(ResourceLibraryTest, WithoutStringsIsALibraryAllTheSame)
{
    EXPECT_EQ(Loaded(TextLibrary()).TextOf(0), L"");
}

TEST_F(ResourceLibraryTest, WithoutResourcesIsALibraryAllTheSame)
{
    const ResourceLibrary library(BesideThisProgram(L"trace_engine_whole.dll"));

    EXPECT_TRUE(library);
    EXPECT_EQ(library.error(), 0U);
    EXPECT_EQ(library.TextOf(0), L"");
}

TEST_F(ResourceLibraryTest, ThatIsNotThereTellsSo)
{
    const ResourceLibrary library(Beside(L"gone.dll"));

    EXPECT_FALSE(library);
    EXPECT_THAT(library.error(),
                testing::AnyOf(ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_MOD_NOT_FOUND));
}

TEST_F(ResourceLibraryTest, ThatIsNoLibraryTellsSo)
{
    WriteBytes(path(), "not a library");

    const ResourceLibrary library(path());

    EXPECT_FALSE(library);
    EXPECT_NE(library.error(), 0U);
}

TEST_F(ResourceLibraryTest, WithoutANameIsNone)
{
    const ResourceLibrary library(L"");

    EXPECT_FALSE(library);
    EXPECT_NE(library.error(), 0U);
}

TEST_F(ResourceLibraryTest, LetsNobodyWriteOrDeleteTheFileUntilItGoes)
{
    auto library = std::make_unique<ResourceLibrary>(Loaded(TextLibrary().Text(7, L"seven")));
    EXPECT_FALSE(CanBeWritten(path()));
    EXPECT_FALSE(DeleteFileW(path().c_str()));

    library.reset();

    EXPECT_TRUE(CanBeWritten(path()));
    EXPECT_TRUE(DeleteFileW(path().c_str()));
    EXPECT_FALSE(Exists(path()));
}

TEST_F(ResourceLibraryTest, RunsNoCodeOfTheFile)
{
    SetEnvironmentVariableW(L"NORV_TEST_LIVELY", nullptr);
    const std::wstring lively = BesideThisProgram(L"lively_texts.dll");

    EXPECT_EQ(ResourceLibrary(lively).TextOf(1000), L"lively");

    EXPECT_FALSE(HasLivelyLibraryRun());
    const win::Library asProgram(LoadLibraryW(lively.c_str()));
    EXPECT_TRUE(HasLivelyLibraryRun()) << "the library has no code to run";
}

} // namespace
} // namespace norvepa::test
