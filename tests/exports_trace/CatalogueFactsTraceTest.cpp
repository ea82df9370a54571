#include "CatalogueTraceScene.h"
#include "support/DeviceStore.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// On a log device "Presse" with a board "Y" and a protocol "Y".
class CatalogueFactsTrace : public CatalogueTraceScene
{
protected:
    CatalogueFactsTrace()
    {
        store.WriteDevice(L"Presse", {}, L"*Y", L"Y");
        WriteBytes(roots.board(L"Y"),
                   BoardFile(XmlContent()
                                 .Element(L"Install", XmlContent().Text(L"Asic_Type", L"ASPC2"))
                                 .Element(L"Constraints", XmlContent().ParamSection(
                                                              L"b", XmlContent().Element(L"max", L"9"))),
                             L"Y"));
        const XmlContent value = XmlContent().ParamSection(L"1", XmlContent().Element(L"ParamDesc", L"DP"));
        WriteBytes(roots.protocol(L"Y"),
                   ProtocolFile(XmlContent().Element(
                       L"Constraints",
                       XmlContent()
                           .ParamSection(L"p", XmlContent().Element(L"max", L"7"))
                           .ParamSection(L"busparam", XmlContent().Element(L"ValueCollection", value)))));
    }

    [[nodiscard]] std::int32_t Asic(const wchar_t* device)
    {
        return library().LogDeviceGetAsicTypeBL(device, buffer, &length);
    }

    [[nodiscard]] std::int32_t Description(const wchar_t* device, const wchar_t* parameter)
    {
        return library().LogDeviceGetParamDescBL(device, parameter, L"max", buffer, &length);
    }

    const DeviceStore store{roots};
};

TEST_F(CatalogueFactsTrace, OfAnAsicTellsIt)
{
    Load();

    EXPECT_EQ(Asic(L"Presse"), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceGetAsicTypeBL"),
                ElementsAre("entry: >> LogDevice = Presse", "exit: << return PGSP_OK. ASIC = ASPC2"));
    EXPECT_THAT(LinesOf("PGSP_BoardGetValueBL"),
                ElementsAre("entry: >> DeviceID = Automation-OnlineAccess-BT-Y, Parameter = Asic_Type",
                            "information: Value = ASPC2, dwValue = 5", "exit: << return lRet = 0"));
}

TEST_F(CatalogueFactsTrace, OfAnAsicThatIsNotToldHasNoExit)
{
    store.WriteDevice(L"Ofen", {}, L"X");
    Load();

    EXPECT_EQ(Asic(L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Asic(L"Ofen"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceGetAsicTypeBL"),
                ElementsAre("entry: >> LogDevice = gone", "entry: >> LogDevice = Ofen"));
}

TEST_F(CatalogueFactsTrace, OfADescriptionTellsItFromTheBoard)
{
    Load();

    EXPECT_EQ(Description(L"Presse", L"b"), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"LogDeviceGetParamDescBL: ", "PGSP_TemplateGetConstraintBL: "}),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = b, ParamDesc = max",
                            "entry: >> FolderName = Boards, fileName = Automation-OnlineAccess-BT-Y, "
                            "Parameter = b, Constraint = max",
                            "information: Value = 9, dwValue = 1", "exit: << return lRet = 0",
                            "exit: << return PGSP_OK, Value = 9"));
}

TEST_F(CatalogueFactsTrace, OfADescriptionAsksTheProtocolBehindTheBoard)
{
    Load();

    EXPECT_EQ(Description(L"Presse", L"p"), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"LogDeviceGetParamDescBL: ", "PGSP_TemplateGetConstraintBL: "}),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = p, ParamDesc = max",
                            "entry: >> FolderName = Boards, fileName = Automation-OnlineAccess-BT-Y, "
                            "Parameter = p, Constraint = max",
                            "exit: << return lRet = 8513",
                            "entry: >> FolderName = Protocols, fileName = Automation-OnlineAccess-PT-Y, "
                            "Parameter = p, Constraint = max",
                            "information: Value = 7, dwValue = 1", "exit: << return lRet = 0",
                            "exit: << return PGSP_OK, Value = 7"));
}

TEST_F(CatalogueFactsTrace, OfADescriptionOfAValueAsksForItByItsPath)
{
    Load();

    EXPECT_EQ(Description(L"Presse", L"busparam\\1"), PGSP_OK);

    EXPECT_THAT(LinesTaggedAnyOf({"LogDeviceGetParamDescBL: ", "PGSP_GetParamDescBL: "}),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = busparam\\1, ParamDesc = max",
                            "entry: >> Profile = Automation-OnlineAccess-PT-Y, ParamValue = busparam\\1",
                            "information: ParamDesc = DP, dwParamDesc = 2", "exit: << return lRet = 0",
                            "exit: << return PGSP_OK, Value = DP"));
}

TEST_F(CatalogueFactsTrace, OfADescriptionThatIsNotThereTellsItsCode)
{
    Load();

    EXPECT_EQ(Description(L"Presse", L"gone"), PGSP_ERR_PARAM_DESC_NOT_FOUND);
    EXPECT_EQ(Description(L"gone", L"b"), PGSP_ERR_LOG_DEVICE_NOT_EXISTS);

    EXPECT_THAT(
        LinesOf("LogDeviceGetParamDescBL"),
        ElementsAre("entry: >> LogDevice = Presse, Parameter = gone, ParamDesc = max", "exit: << return 8044",
                    "entry: >> LogDevice = gone, Parameter = b, ParamDesc = max", "exit: << return 8012"));
}

TEST_F(CatalogueFactsTrace, OfBadArgumentsBeginsWithTheEntry)
{
    Load();

    EXPECT_EQ(Asic(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Description(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    length = 0;
    EXPECT_EQ(Description(L"Presse", L"b"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceGetAsicTypeBL"), ElementsAre("entry: >> LogDevice = ", Refusal));
    EXPECT_THAT(LinesOf("LogDeviceGetParamDescBL"),
                ElementsAre("entry: >> LogDevice = , Parameter = , ParamDesc = max", Refusal,
                            "entry: >> LogDevice = Presse, Parameter = b, ParamDesc = max", Refusal));
}

class DelVmdIdTrace : public LogNameTraceScene
{
protected:
    const DeviceStore store{roots};
};

TEST_F(DelVmdIdTrace, IsArgumentAndResultWithoutANotification)
{
    store.WriteDevice(L"PC internal", {});
    Load();

    EXPECT_EQ(library().LogDeviceDelVmdIdBL(L"PC internal"), PGSP_OK);
    EXPECT_EQ(library().LogDeviceDelVmdIdBL(L"PC internal"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(LinesOf("LogDeviceDelVmdIdBL"),
                ElementsAre("entry: >> LogDevice = PC internal", "exit: << return lRet = 0",
                            "entry: >> LogDevice = PC internal", "exit: << return lRet = 8511"));
    EXPECT_THAT(LinesOf("SendNotificationBL"), IsEmpty());
}

TEST_F(DelVmdIdTrace, OfAnyOtherNameIsTheRefusal)
{
    Load();

    EXPECT_EQ(library().LogDeviceDelVmdIdBL(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceDelVmdIdBL(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().LogDeviceDelVmdIdBL(L"pc internal"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceDelVmdIdBL"),
                ElementsAre("entry: >> LogDevice = ", Refusal, "entry: >> LogDevice = ", Refusal,
                            "entry: >> LogDevice = pc internal", Refusal));
}

TEST_F(DelVmdIdTrace, OfAPathThatIsTooLongTellsTheStoresCode)
{
    Load();
    const std::wstring identity = L"PC internal" + std::wstring(249, L'n');

    EXPECT_EQ(library().LogDeviceDelVmdIdBL(identity.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(LinesOf("LogDeviceDelVmdIdBL"),
                ElementsAre(testing::StartsWith("entry: >> LogDevice = PC internalnnn"),
                            "exit: << return lRet = 234"));
}

TEST_F(DelVmdIdTrace, WithoutTheDataFolderNamesIt)
{
    TakeDataFolderAway();
    Load();

    EXPECT_EQ(library().LogDeviceDelVmdIdBL(L"PC internal"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceDelVmdIdBL"),
                ElementsAre("entry: >> LogDevice = PC internal", NoFolder, "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test
