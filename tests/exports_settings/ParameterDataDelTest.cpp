#include "ParameterDataScene.h"

namespace norvepa::test
{
namespace
{

using ParameterDataDel = ParameterDataScene;

TEST_F(ParameterDataDel, RemovesAParameterOfAnyKindAtAnyDepthInAnyCase)
{
    WriteOurs(XmlContent()
                  .Int(L"Stufe", L"3")
                  .Element(L"Gruppe", XmlContent().Bool(L"Aktiv", L"true").Text(L"Ort", L"Halle"))
                  .Text(L"Gr\u00F6\u00DFe", L"5"));

    EXPECT_EQ(DelData(L"STUFE"), PGSP_OK);
    EXPECT_EQ(DelData(L"aktiv"), PGSP_OK);
    EXPECT_EQ(DelData(L"GR\u00D6\u00DFE"), PGSP_OK);

    ExpectOurs(XmlContent().Element(L"Gruppe", XmlContent().Text(L"Ort", L"Halle")));
    EXPECT_THAT(FileNames(inData(L"data")), testing::ElementsAre(L"LogDevices", L"LogNames", L"werte.xml"));
}

TEST_F(ParameterDataDel, RemovesTheFirstOfItsNameWhateverItsType)
{
    WriteOurs(XmlContent().Bool(L"Stufe", L"true").Int(L"stufe", L"3"));

    EXPECT_EQ(DelData(L"stufe"), PGSP_OK);

    ExpectOurs(XmlContent().Int(L"stufe", L"3"));
}

TEST_F(ParameterDataDel, CanNotRemoveWhatIsNotThere)
{
    WriteOurs(XmlContent().Int(L"Stufe", L"3").Entry(L"Resource", L"Druck", L"1"));

    ExpectDelDataChangesNothing(L"Druck", PGSP_ERR_CANT_SET_VALUE);
    ExpectDelDataChangesNothing(L"3", PGSP_ERR_CANT_SET_VALUE);
}

// No schema is asked, unlike for what is removed from log devices and log names.
TEST_F(ParameterDataDel, NeedsNoProgramFolder)
{
    WriteOurs(XmlContent().Int(L"Stufe", L"3"));
    store.TakeProgramFolderAway();

    EXPECT_EQ(DelData(L"Stufe"), PGSP_OK);

    ExpectOurs({});
}

} // namespace
} // namespace norvepa::test
