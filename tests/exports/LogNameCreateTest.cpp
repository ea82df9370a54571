#include "LogNameScene.h"
#include "support/FreshThread.h"
#include "support/XmlMeaning.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

// As a new one would be written by hand.
std::string NewLogName()
{
    return "<?xml version='1.0' encoding='UTF-8'?>"
           "<LogName xmlns='http://www.marvolt.example/Automation/Corvane.Device.Driver/LogName'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
           " xsi:schemaLocation='http://www.marvolt.example/Automation/Corvane.Device.Driver/LogName"
           " C:\\PROGRA~1\\Marvolt\\Automation\\Corvane OAM\\Schemes\\Corvane.Device.Driver.Logname.xsd'>"
           "<Parameters><Parameter><Name>enable_delete</Name><Value>true</Value></Parameter></Parameters>"
           "</LogName><!-- NorvepaBl64x configuration store -->";
}

class LogNameCreate : public LogNameScene
{
};

TEST_F(LogNameCreate, MakesAFileThatMayBeDeleted)
{
    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_OK);

    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
    EXPECT_EQ(Saved(), MeaningOf(NewLogName()));
}

TEST_F(LogNameCreate, MakesWhatTheOthersWorkOn)
{
    UseOurSchemas();
    ASSERT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_OK);

    EXPECT_EQ(library.LogNameExistBL(L"Pumpe", 6), PGSP_OK);
    EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", L"Halle 2"), PGSP_OK);
    EXPECT_EQ(Value(L"Pumpe", L"Station"), L"Halle 2");
    EXPECT_EQ(library.LogNameDelValueBL(L"Pumpe", L"Station"), PGSP_OK);
    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LogNameCreate, LeavesALogNameThatIsThereAsItIs)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2"));
    const std::string before = Bytes();

    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_ERR_FILE_EXISTS);
    EXPECT_EQ(library.LogNameCreateBL(L"PUMPE"), PGSP_ERR_FILE_EXISTS);

    EXPECT_EQ(Bytes(), before);
    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameCreate, TakesAFileThatIsNoXmlForALogNameToo)
{
    WriteBytes(roots.logName(L"Pumpe"), "");

    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_ERR_FILE_EXISTS);

    EXPECT_EQ(Bytes(), "");
}

TEST_F(LogNameCreate, MakesTheFolderThatIsMissing)
{
    std::filesystem::remove(folder());

    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_OK);

    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameCreate, MakesNoFolderAboveIt)
{
    std::filesystem::remove_all(roots.data() + L"\\data");

    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_ERR_CANT_CREATE_FILE);

    EXPECT_FALSE(Exists(roots.data() + L"\\data"));
}

TEST_F(LogNameCreate, MakesNoFolderBelowIt)
{
    EXPECT_EQ(library.LogNameCreateBL(L"Halle\\Pumpe"), PGSP_ERR_CANT_CREATE_FILE);
    EXPECT_THAT(Files(), IsEmpty());

    MakeFolders(folder() + L"\\Halle");
    EXPECT_EQ(library.LogNameCreateBL(L"Halle\\Pumpe"), PGSP_OK);
    EXPECT_TRUE(Exists(roots.logName(L"Halle\\Pumpe")));
}

TEST_F(LogNameCreate, TakesTheFoldersNameForAnEmptyOne)
{
    EXPECT_EQ(library.LogNameCreateBL(L""), PGSP_OK);

    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_EQ(MeaningOfFile(roots.data() + L"\\data\\LogNames.xml"), MeaningOf(NewLogName()));
    EXPECT_EQ(library.LogNameCreateBL(L""), PGSP_ERR_FILE_EXISTS);
}

TEST_F(LogNameCreate, GivesANameWithTheExtensionNoSecondOne)
{
    EXPECT_EQ(library.LogNameCreateBL(L"Pumpe.xml"), PGSP_OK);
    EXPECT_EQ(library.LogNameCreateBL(L"Presse.xml.old"), PGSP_OK);
    EXPECT_EQ(library.LogNameCreateBL(L"Band.XML"), PGSP_OK);

    EXPECT_THAT(Files(), testing::UnorderedElementsAre(L"Pumpe.xml", L"Presse.xml.old", L"Band.XML.xml"));
}

TEST_F(LogNameCreate, TakesAPathOf259CharactersAndNoMore)
{
    EXPECT_EQ(library.LogNameCreateBL(NameForPathOf(260).c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogNameCreateBL((NameForPathOf(254) + L"#").c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogNameCreateBL(std::wstring(100'000, L'n').c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LogNameCreate, LeavesAnEmptyFileOnAThreadWithoutCom)
{
    OnFreshThread([&] {
        EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_ERR_CANT_CREATE_XML_ENGINE);
        EXPECT_EQ(library.LogNameCreateBL(L"Pumpe"), PGSP_ERR_FILE_EXISTS);
        EXPECT_FALSE(ThisThreadHasCom());
    });

    EXPECT_EQ(Bytes(), "");
}

} // namespace
} // namespace norvepa::test
