#include "NdiScene.h"

namespace norvepa::test
{
namespace
{

// The section that a link goes to.
using NdiLinkSection = NdiScene;

TEST_F(NdiLinkSection, IsChosenByTheFlag)
{
    const XmlContent links = XmlContent().Resource(DescText).ParameterAssemblyLink(PropSheet);
    for (const std::int32_t flag : {0, 1, 2, -1, INT32_MIN})
    {
        Write(Links({}, In32).Raw(Links({}, In64).utf8()));

        EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,7", flag), PGSP_OK);
        EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,ShowPage", flag), PGSP_OK);

        ExpectSaved(flag == 0 ? Links({}, In32).Raw(Links(links, In64).utf8())
                              : Links(links, In32).Raw(Links({}, In64).utf8()));
    }
}

TEST_F(NdiLinkSection, IsMadeBehindAllElseWhereItIsMissing)
{
    Write(Links({}, In32).Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle")));
    EXPECT_EQ(SetNdi(L"DescText", L"Texte.dll,7", In64), PGSP_OK);
    ExpectSaved(Links({}, In32)
                    .Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle"))
                    .Element(L"UserInterface64", XmlContent().Resource(DescText)));

    Write(Links({}, In64).Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle")));
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,ShowPage", In32), PGSP_OK);
    ExpectSaved(Links({}, In64)
                    .Element(L"LocalSettings", XmlContent().Text(L"Ort", L"Halle"))
                    .Element(L"UserInterface", XmlContent().ParameterAssemblyLink(PropSheet)));
}

TEST_F(NdiLinkSection, IsMadeForABareNumberToo)
{
    Write({});

    EXPECT_EQ(SetNdi(L"DescDefault", L"8"), PGSP_OK);

    ExpectSaved(Links(XmlContent().Resource({.name = L"DescDefault", .resourceId = L"8"})));
}

TEST_F(NdiLinkSection, IsNotMadeForALinkThatIsRefused)
{
    Write({});

    ExpectSetNdiChangesNothing(L"DescText", L"<,7", PGSP_ERR_INVALID_PARAMETERS);
    ExpectSetNdiChangesNothing(L"PropSheet", L"a,\x01", PGSP_ERR_CANT_SET_VALUE);
}

} // namespace
} // namespace norvepa::test
