#include "LogNameTraceScene.h"
#include "support/DeviceStore.h"

#include <windows.h>

#include <string>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class ExistTrace : public LogNameTraceScene
{
protected:
    ExistTrace()
    {
        store.WriteDevice(L"Presse#3a 1",
                          XmlContent().Element(L"Bindings", XmlContent().Subdevice(L"Achse", {})));
    }

    [[nodiscard]] std::int32_t Ask(const wchar_t* device, std::int32_t flag) const
    {
        return library().LogDeviceExistBL(device, flag);
    }

    const DeviceStore store{roots};
};

TEST_F(ExistTrace, TellsThePathWithoutItsExtensionAndTheError)
{
    SetFileAttributesW(roots.logDevice(L"Presse#3a 1").c_str(), FILE_ATTRIBUTE_READONLY);
    Load();

    EXPECT_EQ(Ask(L"Presse: 1", 0), PGSP_OK);
    EXPECT_EQ(Ask(L"Presse: 1", 6), PGSP_ERR_ACCESS_DENIED);
    EXPECT_EQ(Ask(L"gone", 4), PGSP_ERR_FILE_NOT_FOUND);
    SetFileAttributesW(roots.logDevice(L"Presse#3a 1").c_str(), FILE_ATTRIBUTE_NORMAL);

    const std::string calling =
        "information: Calling _waccess_s for Logdevice: " + ToAnsi(store.deviceFolder()) + "\\";
    EXPECT_THAT(LinesOf("LogDeviceExistBL"),
                ElementsAre("entry: >> LogDevice = Presse: 1, flag = 0", calling + "Presse#3a 1",
                            "exit: << errno_t err = 0", "entry: >> LogDevice = Presse: 1, flag = 6",
                            calling + "Presse#3a 1", "exit: << errno_t err = 13",
                            "entry: >> LogDevice = gone, flag = 4", calling + "gone",
                            "exit: << errno_t err = 2"));
}

TEST_F(ExistTrace, OfASubdeviceTellsTheNameAndTheResult)
{
    Load();

    EXPECT_EQ(Ask(L"Presse: 1\\Subdevices\\Achse", 2), PGSP_OK);
    EXPECT_EQ(Ask(L"Presse: 1\\subdevices\\Band", 0), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceExistBL"),
                ElementsAre("entry: >> LogDevice = Presse: 1\\Subdevices\\Achse, flag = 2",
                            "exit: << SubdeviceExist for = Presse: 1\\Subdevices\\Achse : returned = 0",
                            "entry: >> LogDevice = Presse: 1\\subdevices\\Band, flag = 0",
                            "exit: << SubdeviceExist for = Presse: 1\\subdevices\\Band : returned = 8513"));
}

TEST_F(ExistTrace, OfARefusalTellsWhichOne)
{
    store.TakeDataFolderAway();
    Load();

    EXPECT_EQ(Ask(L"Presse: 1", 1), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(nullptr, 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Ask(L"Presse: 1", 0), PGSP_ERR_FOLDER_NOT_FOUND);

    EXPECT_THAT(LinesOf("LogDeviceExistBL"),
                ElementsAre("entry: >> LogDevice = Presse: 1, flag = 1", Refusal,
                            "entry: >> LogDevice = , flag = 0", Refusal, "entry: >> LogDevice = , flag = 0",
                            "exit: << return lRet = 87", "entry: >> LogDevice = Presse: 1, flag = 0",
                            NoFolder, "exit: << return lRet = 8517"));
}

} // namespace
} // namespace norvepa::test
