#include "SetBusparamsScene.h"
#include "support/OpenFile.h"

namespace norvepa::test
{
namespace
{

class SetBusparamsArguments : public SetBusparamsL2Scene
{
protected:
    SetBusparamsArguments() { WriteBus({.profile = L"3"}); }

    [[nodiscard]] std::int32_t SetSpeedOf(const wchar_t* device, const wchar_t* speed) const
    {
        return library.LogDeviceSetBusparamsBL(device, speed);
    }

    void ExpectRefused() const
    {
        const std::string before = store.Bytes(L"Presse");

        EXPECT_EQ(SetSpeedOf(nullptr, L"19200"), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(SetSpeedOf(L"Presse", nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(SetSpeedOf(nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(SetSpeedOf(L"", L"19200"), PGSP_ERR_INVALID_PARAMETERS); // by the first read

        EXPECT_EQ(store.Bytes(L"Presse"), before);
    }
};

TEST_F(SetBusparamsArguments, AreBothNeeded)
{
    ExpectRefused();
}

TEST_F(SetBusparamsArguments, AreTestedAheadOfTheDataFolder)
{
    store.TakeDataFolderAway();

    ExpectRefused();
}

// Without it no protocol is seen, and the way is that of all others.
TEST_F(SetBusparamsArguments, AreNotEnoughWithoutTheDataFolder)
{
    const std::string before = store.Bytes(L"Presse");
    store.TakeDataFolderAway();

    EXPECT_EQ(SetSpeedOf(L"Presse", L"19200"), PGSP_ERR_PARAM_NOT_FOUND);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(SetBusparamsArguments, NameALogDeviceThatCanBeRead)
{
    WriteBytes(roots.logDevice(L"broken"), "no document");
    WriteBytes(roots.logDevice(L"bare"), XmlFile(L"LogDevice", {}, Bus({})));

    EXPECT_EQ(SetSpeedOf(L"gone", L"19200"), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);
    EXPECT_EQ(SetSpeedOf(L"broken", L"19200"), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);
    EXPECT_EQ(SetSpeedOf(L"bare", L"19200"), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);
    EXPECT_EQ(SetSpeedOf(store.DeviceForPathOf(260).c_str(), L"19200"), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);
    const OpenFile held(roots.logDevice(L"Presse"), 0);
    EXPECT_EQ(SetSpeedOf(L"Presse", L"19200"), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);
}

TEST_F(SetBusparamsArguments, NameNoSubdevice)
{
    WriteBus(Bus({.profile = L"3"}).Subdevice(L"Ventil", XmlContent().Int(L"baudrate", L"9600")));
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(SetSpeedOf(L"Presse\\subdevices\\Ventil", L"19200"), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);

    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(SetBusparamsArguments, NameDevicesWithCodedNames)
{
    for (const CodedName& coded : CodedNames)
    {
        store.WriteDevice(coded.fileName, Bus({.speed = L"9600"}), OurBoard, L"L2");

        EXPECT_EQ(SetSpeedOf(coded.name, L"19200"), PGSP_OK) << ToUtf8(coded.name);

        EXPECT_EQ(store.Saved(coded.fileName),
                  MeaningOf(LogDeviceFile(Bus({.speed = L"19200", .slotTime = L"200"}), OurBoard, L"L2")));
    }
}

TEST_F(SetBusparamsArguments, MayBeOfAnyLength)
{
    const std::wstring text(100'000, L'1');

    EXPECT_EQ(SetSpeedOf(text.c_str(), text.c_str()), PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND);
    EXPECT_EQ(SetSpeedOf(L"Presse", text.c_str()), PGSP_OK);

    ExpectBus({.speed = text, .profile = L"3"});
}

} // namespace
} // namespace norvepa::test
