#include "NdiScene.h"
#include "support/UserLanguage.h"

#include <utility>

namespace norvepa::test
{
namespace
{

// The text that a link leads to, where neither a parameter nor a link to a page is called so.
class NdiGetText : public NdiScene
{
protected:
    NdiGetText()
    {
        UseOurTexts();
        Write(Links(XmlContent().Resource(
            {.name = L"Notiz", .assembly = L"AuentalTexte.dll", .path = L"", .resourceId = L"1005"})));
    }
};

TEST_F(NdiGetText, IsInTheUsersLanguage)
{
    for (const auto& [locale, text] :
         {std::pair(L"de-AT", L"Schnitzelpresse 3"), std::pair(L"en-GB", L"Pulp press 3")})
    {
        const UserLanguage language(locale, library.module());

        EXPECT_EQ(Value(L"Notiz"), text);
        EXPECT_EQ(Value(L"NOTIZ"), text);
    }
}

TEST_F(NdiGetText, IsInEnglishForAUserInWhoseLanguageThereIsNoLibrary)
{
    const UserLanguage french(L"fr-FR", library.module());

    EXPECT_EQ(Value(L"Notiz"), L"Pulp press 3");
}

TEST_F(NdiGetText, IsOfTheSectionThatTheFlagChooses)
{
    const auto text = [](std::wstring_view number) {
        return XmlContent().Resource(
            {.name = L"Notiz", .assembly = L"AuentalTexte.dll", .resourceId = number});
    };
    Write(XmlContent().Element(L"UserInterface", text(L"1003")).Element(L"UserInterface64", text(L"1004")));

    EXPECT_EQ(Value(L"Notiz", In64), L"Aeration and final clarification");
    EXPECT_EQ(Value(L"Notiz", In32), L"Crystallizers 1 to 4");
}

TEST_F(NdiGetText, NeedsOneCharacterMoreThanItHas)
{
    OutputBuffer enough(13);

    EXPECT_EQ(GetNdi(L"Notiz", enough), PGSP_OK);
    for (const std::uint32_t capacity : {12U, 1U, 0U})
    {
        OutputBuffer value(capacity);
        EXPECT_EQ(GetNdi(L"Notiz", value), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;
        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 12U);
    }

    EXPECT_EQ(enough.text(), L"Pulp press 3");
    EXPECT_EQ(enough.length, 12U);
}

TEST_F(NdiGetText, ThatIsNotThereTellsWhy)
{
    Write(Links(XmlContent()
                    .Resource({.name = L"no library", .assembly = L"gone.dll", .resourceId = L"1005"})
                    .Resource({.name = L"no number", .assembly = L"AuentalTexte.dll", .resourceId = L"9"})));
    OutputBuffer value(20);

    EXPECT_EQ(GetNdi(L"no library", value), PGSP_ERR_CANT_LOAD_DLL);
    EXPECT_EQ(GetNdi(L"no number", value), PGSP_ERR_CANT_LOAD_RESOURCE);
    EXPECT_EQ(GetNdi(L"no text", value), PGSP_ERR_PARAM_NOT_FOUND);

    ExpectUntouched(value, 20);
}

TEST_F(NdiGetText, NeedsTheProgramFolderWhichLinksAndParametersDoNot)
{
    Write(Identity(XmlContent().Text(L"Ort", L"Halle"), XmlContent().ParameterAssemblyLink(PropSheet)));
    store.TakeProgramFolderAway();
    OutputBuffer value(20);

    EXPECT_EQ(Value(L"Ort"), L"Halle");
    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
    EXPECT_EQ(GetNdi(L"Notiz", value), PGSP_ERR_FOLDER_NOT_FOUND);

    ExpectUntouched(value, 20);
}

} // namespace
} // namespace norvepa::test
