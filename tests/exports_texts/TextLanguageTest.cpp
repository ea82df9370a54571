#include "TextScene.h"
#include "support/UserLanguage.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using TextLanguage = TextScene;

TEST_F(TextLanguage, IsTheOneThatIsAskedFor)
{
    EXPECT_EQ(Title(L"de"), L"Kessel");
    EXPECT_EQ(Title(L"en"), L"boiler");
}

TEST_F(TextLanguage, MayBeInCapitals)
{
    EXPECT_EQ(Title(L"DE"), L"Kessel");
    EXPECT_EQ(Title(L"dE"), L"Kessel");
}

TEST_F(TextLanguage, IsTheUsersOwnForAnythingButTwoLetters)
{
    const UserLanguage user(L"de-DE", library.module());

    EXPECT_EQ(Title(nullptr), L"Kessel");
    EXPECT_EQ(Title(L""), L"Kessel");
    EXPECT_EQ(Title(L"e"), L"Kessel");
    EXPECT_EQ(Title(L"eng"), L"Kessel");
    EXPECT_EQ(Title(L"en-US"), L"Kessel");
    EXPECT_EQ(Title(std::wstring(1000, L'e').c_str()), L"Kessel");
    EXPECT_EQ(Title(L"en"), L"boiler");
}

TEST_F(TextLanguage, OfTheUserIsAWordOfTwoSmallLettersWhateverHisLocaleIsCalled)
{
    WriteBytes(bin() + L"\\gs\\" + TexteDll, TextLibrary().Text(1000, L"Chessel").file());
    for (const wchar_t* const locale : {L"gsw-LI", L"gs", L"GS-Latn-CH", L"gs-5678-012345"})
    {
        const UserLanguage user(locale, library.module());

        EXPECT_EQ(Title(nullptr), L"Chessel") << ToUtf8(locale);
    }
}

TEST_F(TextLanguage, ThatTheSystemCanNotTellIsEnglish)
{
    for (const wchar_t* const locale : {L"", L"de-of-a-name-that-is-longer-than-they-come"})
    {
        const UserLanguage user(locale, library.module());

        EXPECT_EQ(Title(nullptr), L"boiler") << ToUtf8(locale);
    }
}

TEST_F(TextLanguage, WithoutAFolderIsEnglish)
{
    EXPECT_EQ(Title(L"fr"), L"boiler");
    std::filesystem::remove_all(bin() + L"\\de");

    EXPECT_EQ(Title(L"de"), L"boiler");
}

TEST_F(TextLanguage, WithoutALibraryInItsFolderIsEnglish)
{
    std::filesystem::remove(bin() + L"\\de\\" + TexteDll);

    EXPECT_EQ(Title(L"de"), L"boiler");
}

TEST_F(TextLanguage, WhoseLibraryIsDamagedIsEnglish)
{
    WriteBytes(bin() + L"\\de\\" + TexteDll, "not a library");

    EXPECT_EQ(Title(L"de"), L"boiler");
}

TEST_F(TextLanguage, IsNotReplacedByEnglishForASingleText)
{
    WriteDevice(TitleLink(L"1004"));

    EXPECT_EQ(Title(L"en"), L"English only");
    EXPECT_EQ(Title(L"de"), Failed(PGSP_ERR_CANT_LOAD_RESOURCE));
}

TEST_F(TextLanguage, EnglishIsNotReplacedByAnotherEither)
{
    WriteDevice(TitleLink(L"1002"));

    EXPECT_EQ(Title(L"de"), L"nur auf Deutsch");
    EXPECT_EQ(Title(L"en"), Failed(PGSP_ERR_CANT_LOAD_RESOURCE));
    EXPECT_EQ(Title(L"fr"), Failed(PGSP_ERR_CANT_LOAD_RESOURCE));
}

TEST_F(TextLanguage, WithoutEnglishLeadsNowhereUnlessItIsThere)
{
    std::filesystem::remove_all(bin() + L"\\en");

    EXPECT_EQ(Title(L"de"), L"Kessel");
    EXPECT_EQ(Title(L"en"), Failed(PGSP_ERR_CANT_LOAD_DLL));
    EXPECT_EQ(Title(L"fr"), Failed(PGSP_ERR_CANT_LOAD_DLL));
}

TEST_F(TextLanguage, IsTakenByItsLengthAndNotByItsLetters)
{
    WriteBytes(bin() + L"\\4_\\" + TexteDll, TextLibrary().Text(1000, L"of a stranger").file());
    WriteBytes(bin() + L"\\\u00FC\u0436\\" + TexteDll, TextLibrary().Text(1000, L"of two").file());

    EXPECT_EQ(Title(L"4_"), L"of a stranger");
    EXPECT_EQ(Title(L"\u00DC\u0416"), L"of two");
}

TEST_F(TextLanguage, MayLeadToAnotherFolder)
{
    WriteBytes(roots.program() + L"\\" + TexteDll, TextLibrary().Text(1000, L"above").file());
    WriteBytes(bin() + L"\\" + TexteDll, TextLibrary().Text(1000, L"beside").file());
    WriteBytes(bin() + L"\\a\\" + TexteDll, TextLibrary().Text(1000, L"of one letter").file());

    EXPECT_EQ(Title(L".."), L"above");
    EXPECT_EQ(Title(L".\\"), L"beside");
    EXPECT_EQ(Title(L"a\\"), L"of one letter");
    EXPECT_EQ(Title(L"A/"), L"of one letter");
    EXPECT_EQ(Title(L"b\\"), L"boiler");
    EXPECT_EQ(Title(L"?*"), L"boiler");
}

TEST_F(TextLanguage, IsTheUsersOwnForEverybodyWhoNamesNone)
{
    WriteBytes(roots.logName(L"X"), XmlFile(L"LogName", {}, Links(TitleLink(L"1000"))));
    WriteBytes(roots.board(L"X"), BoardFile(Links(TitleLink(L"1000"))));
    WriteBytes(roots.protocol(L"X"), ProtocolFile(Links(TitleLink(L"1000"))));
    const UserLanguage user(L"de-DE", library.module());

    EXPECT_EQ(TextOf([&](wchar_t* text, std::uint32_t* length) {
                  return library.PGSP_LogNameGetResourceStringBL(L"X", L"Title", nullptr, text, length, 1);
              }),
              L"Kessel");
    EXPECT_EQ(TextOf([&](wchar_t* text, std::uint32_t* length) {
                  return library.PGSP_BoardGetResourceStringBL(L"X", L"Title", nullptr, text, length, 1);
              }),
              L"Kessel");
    EXPECT_EQ(TextOf([&](wchar_t* text, std::uint32_t* length) {
                  return library.PGSP_TemplateGetResourceStringBL(L"Protocols", L"X", L"Title", nullptr, text,
                                                                  length, 1);
              }),
              L"Kessel");
}

} // namespace
} // namespace norvepa::test
