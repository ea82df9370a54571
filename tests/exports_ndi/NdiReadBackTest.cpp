#include "NdiScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::Pair;

// What has been set, as it is read and listed afterwards.
class NdiReadBack : public NdiScene
{
protected:
    NdiReadBack() { Write(Identity({}, {})); }
};

TEST_F(NdiReadBack, OfALinkIsTheLinkOrTheTextItLeadsTo)
{
    UseOurTexts();

    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,ShowPage"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"DescText", L"AuentalTexte.dll,1001"), PGSP_OK);
    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
    EXPECT_EQ(Value(L"DescText"), L"Steam generators 1 and 2");

    EXPECT_EQ(SetNdi(L"DescText", L"1005"), PGSP_OK);
    EXPECT_EQ(Value(L"DescText"), L"Pulp press 3");
    EXPECT_THAT(AllNdi(), ElementsAre(Pair(L"PropSheet", L"Seiten.dll,ShowPage")));
}

// The engine saves what is empty as one tag, which a reading takes for none; a listing doesn't.
TEST_F(NdiReadBack, OfAnEmptyValueFindsNone)
{
    EXPECT_EQ(SetNdi(L"Ort", L""), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L""), PGSP_OK);

    EXPECT_EQ(Value(L"Ort"), L"(result 8513)");
    EXPECT_EQ(Value(L"PropSheet"), L"(result 8513)");
    EXPECT_THAT(AllNdi(), ElementsAre(Pair(L"Ort", L""), Pair(L"PropSheet", L"")));
}

TEST_F(NdiReadBack, OfALinkThatLacksOneOfItsPartsFindsNone)
{
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"Diagnosis", L",Diagnose"), PGSP_OK);

    EXPECT_EQ(Value(L"PropSheet"), L"(result 8513)");
    EXPECT_EQ(Value(L"Diagnosis"), L"(result 8513)");
    EXPECT_THAT(AllNdi(), ElementsAre(Pair(L"PropSheet", L"Seiten.dll,"), Pair(L"Diagnosis", L"")));
}

TEST_F(NdiReadBack, OfAnEmptyValueThatGetsATextIsTheText)
{
    EXPECT_EQ(SetNdi(L"Ort", L""), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,"), PGSP_OK);

    EXPECT_EQ(SetNdi(L"Ort", L"Halle"), PGSP_OK);
    EXPECT_EQ(SetNdi(L"PropSheet", L"Seiten.dll,ShowPage"), PGSP_OK);

    EXPECT_EQ(Value(L"Ort"), L"Halle");
    EXPECT_EQ(Value(L"PropSheet"), L"Seiten.dll,ShowPage");
}

} // namespace
} // namespace norvepa::test
