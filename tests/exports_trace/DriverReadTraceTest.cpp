#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

#include <windows.h>

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class DriverReadTrace : public LogNameTraceScene
{
protected:
    [[nodiscard]] std::int32_t Read(const wchar_t* name)
    {
        return library().norvDriverReadLogDevice(name, &block, &length);
    }

    [[nodiscard]] std::vector<std::string> Lines() const { return LinesOf("norvDriverReadLogDevice"); }

    const DeviceStore store{roots};
    const XmlContent header = XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"));
    std::uint8_t* block = nullptr;
    std::uint32_t length = 0;
};

TEST_F(DriverReadTrace, TellsTheDeviceAndTheCode)
{
    store.WriteDevice(L"Presse (nmbr)3", XmlContent(header).Load({L"DeviceHeader"}));
    Load();

    EXPECT_EQ(Read(L"Presse #3"), PGSP_OK);
    GlobalFree(block);

    EXPECT_THAT(Lines(), ElementsAre("entry: >> LogDevice = Presse #3", "exit: << return lRet = 0"));
}

TEST_F(DriverReadTrace, TellsAFailureByItsNumberAlone)
{
    store.WriteDevice(L"Idle", header);
    store.WriteDevice(L"Invalid", {});
    Load();

    EXPECT_EQ(Read(L"gone"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_EQ(Read(L"Idle"), PGSP_ERR_DRIVER_READ);
    EXPECT_EQ(Read(L"Invalid"), PGSP_ERR_INVALID_FILE);
    EXPECT_EQ(Read(std::wstring(260, L'x').c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(Lines(),
                ElementsAre("entry: >> LogDevice = gone", "exit: << return lRet = 8508",
                            "entry: >> LogDevice = Idle", "exit: << return lRet = 8516",
                            "entry: >> LogDevice = Invalid", "exit: << return lRet = 8506",
                            testing::StartsWith("entry: >> LogDevice = xxx"), "exit: << return lRet = 234"));
}

TEST_F(DriverReadTrace, TellsAMissingSchemaOrFolderNoOtherwise)
{
    store.WriteDevice(L"Presse", XmlContent(header).Load({L"DeviceHeader"}));
    std::filesystem::remove(roots.program() + L"\\Schemes\\Corvane.Device.Driver.Logdevice.xsd");
    Load();

    EXPECT_EQ(Read(L"Presse"), PGSP_ERR_CANT_LOAD_SCHEMA);
    TakeDataFolderAway();
    EXPECT_EQ(Read(L"Presse"), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(Lines(), ElementsAre("entry: >> LogDevice = Presse", "exit: << return lRet = 8509",
                                     "entry: >> LogDevice = Presse", "exit: << return lRet = 8517"));
}

TEST_F(DriverReadTrace, OfMissingArgumentsBeginsWithTheDevice)
{
    Load();

    EXPECT_EQ(Read(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Read(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().norvDriverReadLogDevice(L"Presse", nullptr, &length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library().norvDriverReadLogDevice(L"Presse", &block, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(Lines(), ElementsAre("entry: >> LogDevice = ", Refusal, "entry: >> LogDevice = ", Refusal,
                                     "entry: >> LogDevice = Presse", Refusal, "entry: >> LogDevice = Presse",
                                     Refusal));
}

} // namespace
} // namespace norvepa::test
