#include "ServiceTraceScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using InternalReadTrace = ServiceTraceScene;

TEST_F(InternalReadTrace, OfAReadByTheCatalogueTellsArgumentsAndValue)
{
    Trace();
    std::wstring value;

    EXPECT_EQ(LogDeviceGetValue(L"Presse", L"CP_TYPE", &value), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceGetValue"), ElementsAre("entry: >> LogDevice = Presse, Parameter = CP_TYPE",
                                                          "exit: << return lRet = 0, Value = MPI"));
}

TEST_F(InternalReadTrace, OfADefaultTellsTheCodeOfTheRead)
{
    store.WriteBoard(Catalogue().Parameter(L"Stufe", {{L"default", L"4"}}));
    Trace();
    std::wstring value;

    EXPECT_EQ(LogDeviceGetValue(L"Presse", L"Stufe", &value), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe",
                            "information: Use default value, Parameter was not found lRet = 8513",
                            "exit: << return lRet = 0, Value = 4"));
}

TEST_F(InternalReadTrace, OfADefaultThatIsMissingSaysSo)
{
    Trace();
    std::wstring value;

    EXPECT_EQ(LogDeviceGetValue(L"gone", L"Stufe", &value), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = gone, Parameter = Stufe",
                            "information: Use default value, Parameter was not found lRet = 8508",
                            "exit: << return PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND"));
}

TEST_F(InternalReadTrace, OfAReadByTheCatalogueWithoutTheDataFolderHasNoExit)
{
    store.TakeDataFolderAway();
    Trace();
    std::wstring value;

    EXPECT_EQ(LogDeviceGetValue(L"Presse", L"Stufe", &value), PGSP_OK);

    EXPECT_THAT(LinesOf("LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Stufe", NoDataFolder));
}

TEST_F(InternalReadTrace, LooksSectionMapAndDefaultUpInThisOrder)
{
    Trace();
    std::wstring value;

    EXPECT_EQ(LogDeviceGetValue(L"Presse", L"Stufe", &value), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);

    std::vector<std::string> entries;
    for (const std::string& line : LinesOf("LogDeviceGetConstraint"))
    {
        if (line.starts_with("entry"))
        {
            entries.push_back(line.substr(line.rfind(' ') + 1));
        }
    }
    EXPECT_THAT(entries, ElementsAre("section", "map", "default"));
}

TEST_F(InternalReadTrace, OfASearchTellsArgumentsAndValueAndAsksNoCatalogue)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"Bindings", XmlContent().Text(L"Ort", L"Halle 2")));
    Trace();
    std::wstring value;

    EXPECT_EQ(PGSP_LogDeviceGetValue(L"Presse", L"Ort", &value), PGSP_OK);
    EXPECT_EQ(PGSP_LogDeviceGetValue(L"gone", L"Ort", &value), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort",
                            "exit: << return lRet = 0, Value = Halle 2",
                            "entry: >> LogDevice = gone, Parameter = Ort",
                            "exit: << return lRet = 8508, Value = "));
    EXPECT_THAT(LinesOf("LogDeviceGetConstraint"), IsEmpty());
}

TEST_F(InternalReadTrace, OfASearchWithoutTheDataFolderNamesIt)
{
    store.TakeDataFolderAway();
    Trace();
    std::wstring value;

    EXPECT_EQ(PGSP_LogDeviceGetValue(L"Presse", L"Ort", &value), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = Presse, Parameter = Ort", NoDataFolder,
                            "exit: << return lRet = 8517"));
}

TEST_F(InternalReadTrace, OfMissingArgumentsBeginsWithThem)
{
    Trace();

    EXPECT_EQ(LogDeviceGetValue(nullptr, L"", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(PGSP_LogDeviceGetValue(nullptr, L"", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(LinesOf("LogDeviceGetValue"), ElementsAre("entry: >> LogDevice = , Parameter = ", Refusal));
    EXPECT_THAT(LinesOf("PGSP_LogDeviceGetValue"),
                ElementsAre("entry: >> LogDevice = , Parameter = ", Refusal));
}

TEST_F(InternalReadTrace, OfAnNdiValueIsNone)
{
    store.WriteDevice(L"Presse", XmlContent().Element(L"Ndi", XmlContent().Text(L"Modul", L"norvndi")));
    Trace();
    std::wstring value;

    EXPECT_EQ(LogDeviceGetNdiValue(L"Presse", L"Modul", &value), PGSP_OK);
    EXPECT_EQ(LogDeviceGetNdiValue(L"Presse", L"", &value), PGSP_ERR_INVALID_PARAMETERS);
    store.TakeDataFolderAway();
    EXPECT_EQ(LogDeviceGetNdiValue(L"Presse", L"Modul", &value), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(Lines(), IsEmpty());
}

} // namespace
} // namespace norvepa::test
