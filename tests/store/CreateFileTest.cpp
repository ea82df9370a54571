#include "store/WriteScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

class CreateFileTest : public WriteScene
{
protected:
    [[nodiscard]] Result Create(const wchar_t* kind) const { return NorvXMLCreateFile(path().c_str(), kind); }
};

// The four forms, as they would be written by hand.
std::string LogNameForm()
{
    return "<?xml version='1.0' encoding='UTF-8'?>"
           "<LogName xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/LogName'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
           " xsi:schemaLocation='http://www.marvolt.example/Automation/Corvane.Device.Driver/LogName"
           " C:\\PROGRA~1\\Marvolt\\Automation\\Corvane OAM\\Schemes\\Corvane.Device.Driver.Logname.xsd'>"
           "<Parameters/></LogName><!-- NorvepaBl64x configuration store -->";
}

std::string DriverInfoForm()
{
    return "<?xml version='1.0' encoding='UTF-8'?>"
           "<DriverInfo xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/DriverInfo'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
           " xsi:schemaLocation='http://www.marvolt.example/Automation/Corvane.Device.Driver/DriverInfo"
           " C:\\PROGRA~1\\Marvolt\\Automation\\Corvane OAM\\Schemes\\Corvane.Device.Driver.DriverInfo.xsd'>"
           "<Clients/></DriverInfo><!-- NorvepaBl64x configuration store -->";
}

std::string NotificationForm()
{
    return "<Notification xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/Notification'>"
           "<NotificationSection/></Notification><!-- NorvepaBl64x configuration store -->";
}

std::string SettingsForm()
{
    return "<PGSP xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/PGSP'>"
           "<PGSP_Section/><Updates/><DateTimeSection/></PGSP><!-- NorvepaBl64x configuration store -->";
}

TEST_F(CreateFileTest, ALogNameHasOneSectionAndNamesItsSchema)
{
    EXPECT_EQ(Create(L"nam"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(LogNameForm()));
}

TEST_F(CreateFileTest, ADriverInformationNamesItsSchemaToo)
{
    EXPECT_EQ(Create(L"driv"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(DriverInfoForm()));
}

TEST_F(CreateFileTest, ANotificationFileNamesNone)
{
    EXPECT_EQ(Create(L"notif"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(NotificationForm()));
}

TEST_F(CreateFileTest, TheSettingsHaveThreeSections)
{
    EXPECT_EQ(Create(L"pgsp"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(SettingsForm()));
}

TEST_F(CreateFileTest, TheDeclarationStandsFirst)
{
    ASSERT_EQ(Create(L"pgsp"), PGSP_OK);

    EXPECT_THAT(Bytes(), testing::StartsWith("<?xml version='1.0' encoding='UTF-8'?>"));
}

TEST_F(CreateFileTest, TheRootsAttributesStandInTheirOrder)
{
    ASSERT_EQ(Create(L"nam"), PGSP_OK);

    const std::string bytes = Bytes();
    const std::string tag = bytes.substr(bytes.find("<LogName"), bytes.find('>', bytes.find("<LogName")));
    EXPECT_LT(tag.find(" xmlns="), tag.find(" xmlns:xsi="));
    EXPECT_LT(tag.find(" xmlns:xsi="), tag.find(" xsi:schemaLocation="));
}

TEST_F(CreateFileTest, ANewFileTakesValuesAtOnce)
{
    ASSERT_EQ(Create(L"nam"), PGSP_OK);

    EXPECT_EQ(Set(L"Parameters", L"Station", L"3", L"string"), PGSP_OK);

    std::wstring value;
    EXPECT_EQ(NorvXMLGetValue(path().c_str(), L"Parameters", L"Station", &value), PGSP_OK);
    EXPECT_EQ(value, L"3");
}

TEST_F(CreateFileTest, AFileThatIsThereIsLeftAlone)
{
    GivenFile("not even a document");

    EXPECT_EQ(Create(L"nam"), PGSP_ERR_FILE_EXISTS);

    EXPECT_EQ(Bytes(), "not even a document");
}

TEST_F(CreateFileTest, AFileThatIsThereWinsOverAWrongKind)
{
    GivenFile("<a/>");

    EXPECT_EQ(Create(L"unknown"), PGSP_ERR_FILE_EXISTS);
}

TEST_F(CreateFileTest, NothingIsCreatedWhereThereIsNoFolder)
{
    EXPECT_EQ(NorvXMLCreateFile((folder() / L"no folder\\a").c_str(), L"nam"), PGSP_ERR_CANT_CREATE_FILE);
    EXPECT_EQ(NorvXMLCreateFile((folder() / L"a\"b").c_str(), L"nam"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_THAT(FileNames(folder().path()), testing::IsEmpty());
}

TEST_F(CreateFileTest, AKindWithoutAFormLeavesAnEmptyFile)
{
    for (const wchar_t* kind : {L"dev", L"x", L"dll", L"brd", L"pro", L"NAM", L" nam", L"", L"unknown"})
    {
        EXPECT_EQ(Create(kind), PGSP_ERR_CANT_CREATE_FILE) << ToUtf8(kind);

        EXPECT_EQ(Bytes(), "");
        ASSERT_TRUE(DeleteFileW(file().c_str()));
    }
}

TEST_F(CreateFileTest, NoKindAtAllIsAWrongOne)
{
    EXPECT_EQ(Create(nullptr), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_EQ(Bytes(), "");
}

TEST_F(CreateFileTest, AThreadWithoutComLeavesAnEmptyFileAndStaysWithout)
{
    OnFreshThread([&] {
        EXPECT_EQ(Create(L"nam"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    EXPECT_EQ(Bytes(), "");
}

// By the one rule the file isn't there, by the other it is, and in use.
TEST_F(CreateFileTest, AFileThatCannotBeOpenedForWritingStays)
{
    WriteBytes(folder() / L"a.xml.old", "<a/>");
    const OpenFile inUse(folder() / L"a.xml.old");

    EXPECT_EQ(NorvXMLCreateFile((folder() / L"a.xml.old").c_str(), L"nam"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_EQ(ReadBytes(folder() / L"a.xml.old"), "<a/>");
}

} // namespace
} // namespace norvepa::test
