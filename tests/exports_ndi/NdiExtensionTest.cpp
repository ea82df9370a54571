#include "NdiScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::Pair;

// A log device that is called by the name of its file. What reads it adds the extension once more when it
// looks for links, and is told with the order of its search.
class NdiExtension : public NdiScene
{
protected:
    NdiExtension()
    {
        store.UseOurSchemas();
        Write(Valid(Identity(XmlContent().Text(L"Ort", L"Halle"),
                             XmlContent().ParameterAssemblyLink(PropSheet).Resource(DescText))));
    }

    [[nodiscard]] std::int32_t SetByFile(const wchar_t* parameter, const wchar_t* value) const
    {
        return library.PGSP_LogDeviceSetNdiBL(L"Presse.xml", parameter, value, In64);
    }
    [[nodiscard]] std::int32_t DelByFile(const wchar_t* parameter) const
    {
        return library.PGSP_LogDeviceDelNdiBL(L"Presse.xml", parameter, In64);
    }
};

TEST_F(NdiExtension, IsNoHindranceToASet)
{
    EXPECT_EQ(SetByFile(L"Ort", L"Hof"), PGSP_OK);
    EXPECT_EQ(SetByFile(L"PropSheet", L"Seiten.dll,Other"), PGSP_OK);
    EXPECT_EQ(SetByFile(L"DescText", L"8"), PGSP_OK);

    Link page = PropSheet;
    page.function = L"Other";
    Link text = DescText;
    text.resourceId = L"8";
    ExpectSaved(Valid(Identity(XmlContent().Text(L"Ort", L"Hof"),
                               XmlContent().ParameterAssemblyLink(page).Resource(text))));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(NdiExtension, IsNoHindranceToADeletion)
{
    EXPECT_EQ(DelByFile(L"Ort"), PGSP_OK);
    EXPECT_EQ(DelByFile(L"PropSheet"), PGSP_OK);
    EXPECT_EQ(DelByFile(L"DescText"), PGSP_ERR_PARAM_NOT_FOUND);

    ExpectSaved(Valid(Identity({}, XmlContent().Resource(DescText))));
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(NdiExtension, IsNoHindranceToAListing)
{
    EXPECT_THAT(AllNdiOf(L"Presse.xml"),
                ElementsAre(Pair(L"Ort", L"Halle"), Pair(L"PropSheet", L"Seiten.dll,ShowPage")));
}

TEST_F(NdiExtension, IsToldToThoseWhoWaitForThatNameAlone)
{
    const NamedEvent byName;
    const NamedEvent byFile;
    Register(byName, L"Presse");
    Register(byFile, L"Presse.xml");

    ASSERT_EQ(SetByFile(L"Ort", L"Hof"), PGSP_OK);

    EXPECT_TRUE(IsTold(byFile));
    EXPECT_FALSE(IsTold(byName));
}

} // namespace
} // namespace norvepa::test
