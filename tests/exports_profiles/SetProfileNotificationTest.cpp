#include "ProfileScene.h"
#include "exports_device/Registrants.h"
#include "support/OpenFile.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace norvepa::test
{
namespace
{

class SetProfileNotification : public WithRegistrants<ProfileScene>
{
protected:
    // The device of both kinds of profile, and the protocol whose profiles are these pairs.
    void WriteBoth(const XmlContent& pairs, const XmlContent& entries = {}) const
    {
        store.WriteProtocol(
            Catalogue()
                .Parameter(L"baudrate", {}, Profiles({{L"9600", pairs}}))
                .Parameter(L"busparam", {},
                           Profiles({{L"1", SubParameter(L"medium", {{L"copper", pairs}})}})));
        WriteDevice(L"Presse", entries);
    }

    void WriteDevice(std::wstring_view fileName, const XmlContent& entries = {}) const
    {
        store.WriteDevice(std::wstring(fileName), Spare(XmlContent()
                                                            .Text(L"baudrate", L"9600")
                                                            .Text(L"busparam", L"1")
                                                            .Text(L"medium", L"copper")
                                                            .Raw(entries.utf8())));
    }

    // By one worker a change.
    void ExpectPressTold(std::size_t changes) const
    {
        EXPECT_TRUE(IsTold(press));
        EXPECT_TRUE(IsTold(all));
        EXPECT_FALSE(IsTold(pump));
        EXPECT_FALSE(IsTold(names));
        EXPECT_FALSE(IsTold(templates));
        EXPECT_EQ(workers.count(), changes);
    }
};

TEST_F(SetProfileNotification, TellsOfEachValueThatIsChanged)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2").Text(L"ttr", L"3"),
              XmlContent().Text(L"slot", L"1").Text(L"gap", L"1"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectPressTold(3);
}

TEST_F(SetProfileNotification, TellsOfEachValueOfASubProfile)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2").Text(L"ttr", L"3"),
              XmlContent().Text(L"slot", L"1").Text(L"gap", L"1"));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectPressTold(3);
}

TEST_F(SetProfileNotification, TellsOfNoValueThatStays)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2").Text(L"ttr", L"3"),
              XmlContent().Text(L"slot", L"100").Text(L"gap", L"1").Text(L"ttr", L"3"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectPressTold(1);
}

TEST_F(SetProfileNotification, TellsNobodyOfAProfileThatIsThereAlready)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2"),
              XmlContent().Text(L"slot", L"100").Text(L"gap", L"2"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);
    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    ExpectNobodyTold();
}

TEST_F(SetProfileNotification, TellsOnceOfAProfileThatIsSetTwice)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2"));
    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);
    ExpectPressTold(2);

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);
    EXPECT_EQ(SetProfile(L"busparam"), PGSP_OK);

    EXPECT_FALSE(IsTold(press));
    EXPECT_FALSE(IsTold(all));
    EXPECT_EQ(workers.count(), 2U);
}

// What isn't a pair makes the one behind it come up again.
TEST_F(SetProfileNotification, TellsOnceOfAPairBehindAComment)
{
    WriteBoth(XmlContent()
                  .Comment(L"measured")
                  .Comment(L"in May")
                  .Text(L"slot", L"100")
                  .Element(L"ParamDesc", L"gap")
                  .Text(L"gap", L"2"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectPressTold(2);
}

TEST_F(SetProfileNotification, TellsOfEachChangeOfAValueThatIsNamedTwice)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"slot", L"200"));

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectPressTold(2);
}

TEST_F(SetProfileNotification, TellsOfThePairsAroundOneThatIsRefused)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"DeviceID", L"x").Text(L"gap", L"2"));

    EXPECT_EQ(SetProfile(L"busparam"), PGSP_PROFILE_NO_VALUE);

    ExpectPressTold(2);
}

TEST_F(SetProfileNotification, TellsNobodyOfACallThatWritesNothing)
{
    WriteBoth(XmlContent().Text(L"CP_TYPE", L"x").Text(L"DeviceID", L"x"));

    EXPECT_EQ(library.PGSP_LogDeviceSetProfileRBL(L"Presse", L"MPI", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.PGSP_LogDeviceSetProfileRBL(L"gone", L"MPI", L"baudrate"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(SetProfile(L"medium"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(SetProfile(L"baudrate", L"gone"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_PROFILE_NO_VALUE);
    EXPECT_EQ(SetProfile(L"busparam"), PGSP_PROFILE_NO_VALUE);

    ExpectNobodyTold();
}

TEST_F(SetProfileNotification, TellsOfChangesThatCouldNotBeSaved)
{
    WriteBoth(XmlContent().Text(L"slot", L"100").Text(L"gap", L"2"));
    const OpenFile inUse(roots.logDevice(L"Presse"));
    const std::string before = store.Bytes(L"Presse");

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    ExpectPressTold(2);
    EXPECT_EQ(store.Bytes(L"Presse"), before);
}

TEST_F(SetProfileNotification, TellsOfDevicesWithCodedNamesByTheirNames)
{
    WriteBoth(XmlContent().Text(L"slot", L"100"));
    for (const CodedName& coded : CodedNames)
    {
        WriteDevice(coded.fileName);
        const NamedEvent event;
        Register(event, coded.name);

        EXPECT_EQ(library.PGSP_LogDeviceSetProfileRBL(coded.name, L"MPI", L"baudrate"), PGSP_OK);

        EXPECT_TRUE(IsTold(event)) << ToUtf8(coded.name);
    }
}

TEST_F(SetProfileNotification, TellsNobodyOfATemporaryDevice)
{
    const wchar_t* const temporary = L"PGSP_TEMP_LOG_DEVICE____001";
    WriteBoth(XmlContent().Text(L"slot", L"100"));
    WriteDevice(temporary);

    EXPECT_EQ(library.PGSP_LogDeviceSetProfileRBL(temporary, L"MPI", L"baudrate"), PGSP_OK);

    ExpectNobodyTold();
}

} // namespace
} // namespace norvepa::test
