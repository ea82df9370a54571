#include "DriverReadScene.h"
#include "support/FreshThread.h"
#include "support/ImportHook.h"

#include <windows.h>

#include <filesystem>

namespace norvepa::test
{
namespace
{

// All leave the outputs alone, which is seen by ResultOf. Each is told although what follows would fail too.
class DriverReadFailures : public DriverReadScene
{
protected:
    void RemoveSchema() const { std::filesystem::remove(schemaFile()); }
};

TEST_F(DriverReadFailures, TooLongANameComesFirst)
{
    store.TakeDataFolderAway();

    OnFreshThread([&] { EXPECT_EQ(ResultOf(std::wstring(260, L'x')), PGSP_ERR_BUFFER_TOO_SHORT); });
}

TEST_F(DriverReadFailures, WithoutADataFolderNoEngineIsNeeded)
{
    RemoveSchema();
    store.TakeDataFolderAway();

    OnFreshThread([&] { EXPECT_EQ(ResultOf(), PGSP_ERR_FOLDER_NOT_FOUND); });
}

TEST_F(DriverReadFailures, WithoutAProgramFolderNoEngineIsNeeded)
{
    store.TakeProgramFolderAway();

    OnFreshThread([&] { EXPECT_EQ(ResultOf(), PGSP_ERR_FOLDER_NOT_FOUND); });
}

TEST_F(DriverReadFailures, WithoutComThereIsNoEngineWhateverTheFilesAre)
{
    RemoveSchema();

    OnFreshThread([&] {
        EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(DriverReadFailures, WithoutComThereIsNoEngineForAGoodDeviceEither)
{
    Write(Holding(L"v"));

    OnFreshThread([&] { EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_CREATE_XML_ENGINE); });
}

TEST_F(DriverReadFailures, TheSchemaIsMissedAheadOfTheFile)
{
    RemoveSchema();

    EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_SCHEMA);
}

TEST_F(DriverReadFailures, TheSchemaIsMissedForAGoodDeviceToo)
{
    RemoveSchema();
    Write(Holding(L"v"));

    EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_SCHEMA);
}

TEST_F(DriverReadFailures, ABrokenSchemaIsToldAheadOfTheFile)
{
    for (const std::string_view broken : {"", "<xs:schema", "no document"})
    {
        WriteBytes(schemaFile(), broken);

        EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_SCHEMA) << broken;
    }
}

// It can be loaded, after all.
TEST_F(DriverReadFailures, ASchemaThatIsNoneFitsNoDevice)
{
    WriteBytes(schemaFile(), "<schema/>");
    EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_XML_FILE);
    Write(Holding(L"v"));

    EXPECT_EQ(ResultOf(), PGSP_ERR_INVALID_FILE);
}

TEST_F(DriverReadFailures, AMissingFileCanNotBeLoaded)
{
    EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(DriverReadFailures, AFolderCanNotBeLoaded)
{
    MakeFolders(roots.logDevice(L"Presse"));

    EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(DriverReadFailures, ABrokenFileCanNotBeLoaded)
{
    const std::string whole = LogDeviceFile(Holding(L"v"));
    for (const std::string& broken :
         {std::string(), std::string("no document"), whole.substr(0, whole.size() / 2), whole + "<more/>",
          std::string(whole).replace(whole.find("</Value>"), 8, "</value>")})
    {
        WriteBytes(roots.logDevice(L"Presse"), broken);

        EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_XML_FILE) << broken;
    }
}

TEST_F(DriverReadFailures, AFileThatSomebodyHasAloneCanNotBeLoaded)
{
    Write(Holding(L"v"));
    const std::wstring file = roots.logDevice(L"Presse");
    const HANDLE alone =
        CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(alone, INVALID_HANDLE_VALUE);

    EXPECT_EQ(ResultOf(), PGSP_ERR_CANT_LOAD_XML_FILE);

    CloseHandle(alone);
}

// Its header has to have a number.
TEST_F(DriverReadFailures, ADeviceThatDoesNotFitItsSchemaIsInvalid)
{
    store.UseOurSchemas();
    Write(XmlContent().Element(L"DeviceHeader", XmlContent().Text(L"Unit", L"1")).Load({L"DeviceHeader"}));

    EXPECT_EQ(ResultOf(), PGSP_ERR_INVALID_FILE);
}

TEST_F(DriverReadFailures, ADeviceOfAnotherNamespaceIsInvalid)
{
    for (const std::string& file :
         {XmlFile(L"LogDevice", {}, Holding(L"v")),
          XmlFile(L"LogDevice", {{L"xmlns", L"urn:x"}}, Holding(L"v")), LogNameFile(Holding(L"v"))})
    {
        WriteBytes(roots.logDevice(L"Presse"), file);

        EXPECT_EQ(ResultOf(), PGSP_ERR_INVALID_FILE) << file;
    }
}

TEST_F(DriverReadFailures, AnInvalidDeviceIsToldAheadOfOneThatLoadsNothing)
{
    store.UseOurSchemas();
    Write({});

    EXPECT_EQ(ResultOf(), PGSP_ERR_INVALID_FILE);
}

TEST_F(DriverReadFailures, ADeviceThatLoadsNothingIsNotRead)
{
    Write(XmlContent().Element(L"A", XmlContent().Int(L"n", L"1")));
    EXPECT_EQ(ResultOf(), PGSP_ERR_DRIVER_READ);

    Write(XmlContent().Element(L"A", XmlContent().Int(L"n", L"1")).Load({}));
    EXPECT_EQ(ResultOf(), PGSP_ERR_DRIVER_READ);
}

HGLOBAL WINAPI LackMemory(UINT, SIZE_T)
{
    return nullptr;
}

TEST_F(DriverReadFailures, WithoutABlockToHandOutTheRecordsAreLost)
{
    Write(Holding(L"v"));
    const ImportHook hook("GlobalAlloc", LackMemory, library.module());

    EXPECT_EQ(ResultOf(), PGSP_ERR_DRIVER_BUFFER);
}

} // namespace
} // namespace norvepa::test
