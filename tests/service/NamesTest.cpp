#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

void ExpectSplit(std::wstring_view name, const SubdeviceName& expected)
{
    const auto split = SplitSubdevice(name);

    ASSERT_TRUE(split.has_value());
    EXPECT_EQ(split->device, expected.device);
    EXPECT_EQ(split->subdevice, expected.subdevice);
    EXPECT_EQ(split->asGiven, expected.asGiven);
}

TEST(SubdeviceNames, AreThoseThatHoldTheWordWithItsBackslash)
{
    EXPECT_FALSE(SplitSubdevice(L"Presse").has_value());
    EXPECT_FALSE(SplitSubdevice(L"Presse\\subdevices").has_value());
    EXPECT_FALSE(SplitSubdevice(L"Presse\\subdevice\\Ventil").has_value());
    EXPECT_FALSE(SplitSubdevice(L"").has_value());
    EXPECT_TRUE(SplitSubdevice(L"Presse\\subdevices\\Ventil").has_value());
}

TEST(SubdeviceNames, AreSplitInSmallLettersAndKeepTheDeviceAsGiven)
{
    ExpectSplit(L"Presse\\subdevices\\Ventil", {L"presse", L"ventil", L"Presse"});
    ExpectSplit(L"PRESSE\\SubDevices\\VENTIL", {L"presse", L"ventil", L"PRESSE"});
    ExpectSplit(L"F\u00D6RDERBAND\\SUBDEVICES\\T\u00DCR",
                {L"f\u00F6rderband", L"t\u00FCr", L"F\u00D6RDERBAND"});
}

TEST(SubdeviceNames, LoseTheCharacterAheadOfTheWordWhateverItIs)
{
    ExpectSplit(L"Presse_subdevices\\Ventil", {L"presse", L"ventil", L"Presse"});
    ExpectSplit(L"Psubdevices\\Ventil", {L"", L"ventil", L""});
}

TEST(SubdeviceNames, MayLackEitherPart)
{
    ExpectSplit(L"Presse\\subdevices\\", {L"presse", L"", L"Presse"});
    ExpectSplit(L"\\subdevices\\Ventil", {L"", L"ventil", L""});
    ExpectSplit(L"subdevices\\Ventil", {L"", L"ventil", L""});
}

TEST(SubdeviceNames, AreSplitAtTheFirstWord)
{
    ExpectSplit(L"A\\subdevices\\B\\subdevices\\C", {L"a", L"b\\subdevices\\c", L"A"});
}

TEST(RootAttributes, AreTwoWordsInAnyCase)
{
    EXPECT_TRUE(IsRootAttribute(L"DeviceID"));
    EXPECT_TRUE(IsRootAttribute(L"DEVICEID"));
    EXPECT_TRUE(IsRootAttribute(L"CP_TYPE"));
    EXPECT_TRUE(IsRootAttribute(L"cp_type"));
    EXPECT_FALSE(IsRootAttribute(L"DeviceId2"));
    EXPECT_FALSE(IsRootAttribute(L"Device"));
    EXPECT_FALSE(IsRootAttribute(L"CPTYPE"));
    EXPECT_FALSE(IsRootAttribute(L""));
}

TEST(LogDeviceFiles, LieBelowTheDataFolderUnderTheirPlainNames)
{
    EXPECT_EQ(LogDeviceFolder(L"C:\\root"), L"C:\\root\\data\\LogDevices");
    EXPECT_EQ(norvepa::LogDeviceFile(L"C:\\root", L"Presse"), L"C:\\root\\data\\LogDevices\\Presse");
    EXPECT_EQ(norvepa::LogDeviceFile(L"C:\\root", L"a/b"), L"C:\\root\\data\\LogDevices\\a/b");
    EXPECT_EQ(norvepa::LogDeviceFile(L"", L"Presse"), L"data\\LogDevices\\Presse");
    EXPECT_EQ(norvepa::LogDeviceFile(L"C:\\root", L""), L"C:\\root\\data\\LogDevices");
}

} // namespace
} // namespace norvepa::test
