#include "LogNameScene.h"
#include "support/FreshThread.h"
#include "support/OpenFile.h"
#include "support/ShellFolders.h"
#include "support/XmlMeaning.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class LogNameDelValue : public LogNameScene
{
protected:
    LogNameDelValue()
    {
        UseOurSchemas();
        Write(L"Pumpe",
              XmlContent().Text(L"Station", L"Halle 2").Int(L"Stufe", L"1").Bool(L"Aktiv", L"true"));
    }

    [[nodiscard]] std::int32_t Delete(const wchar_t* parameter) const
    {
        return library.LogNameDelValueBL(L"Pumpe", parameter);
    }

    // A failure leaves the file as it was, and nothing beside it.
    void ExpectFailure(const wchar_t* parameter, std::int32_t result) const
    {
        const std::string before = Bytes();

        EXPECT_EQ(Delete(parameter), result);

        EXPECT_EQ(Bytes(), before);
        EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
    }
};

TEST_F(LogNameDelValue, RemovesAParameterOfAnyKindAndLeavesNothingBeside)
{
    EXPECT_EQ(Delete(L"station"), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(LogNameFile(XmlContent().Int(L"Stufe", L"1").Bool(L"Aktiv", L"true"))));

    EXPECT_EQ(Delete(L"Aktiv"), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(LogNameFile(XmlContent().Int(L"Stufe", L"1"))));

    EXPECT_EQ(Delete(L"Stufe"), PGSP_OK);
    EXPECT_EQ(Saved(), MeaningOf(LogNameFile({})));
    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameDelValue, RemovesTheFirstOfItsName)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"1").Text(L"Station", L"2"));

    EXPECT_EQ(Delete(L"Station"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(LogNameFile(XmlContent().Text(L"Station", L"2"))));
}

TEST_F(LogNameDelValue, RemovesParametersOfAnyName)
{
    Write(L"Pumpe",
          XmlContent().Text(L"(default)", L"1").Text(L"a b <c>", L"2").Text(L"LogDevice", L"MPI_1"));

    EXPECT_EQ(Delete(L"(default)"), PGSP_OK);
    EXPECT_EQ(Delete(L"a b <c>"), PGSP_OK);
    EXPECT_EQ(Delete(L"LogDevice"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(LogNameFile({})));
}

TEST_F(LogNameDelValue, ReplacesATemporaryFileThatWasLeftOver)
{
    WriteBytes(roots.logName(L"Pumpe(temp)"), "left over");

    EXPECT_EQ(Delete(L"Station"), PGSP_OK);

    EXPECT_EQ(Saved(), MeaningOf(LogNameFile(XmlContent().Int(L"Stufe", L"1").Bool(L"Aktiv", L"true"))));
    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameDelValue, FindsNoParameterThatIsNotThere)
{
    ExpectFailure(L"Bereich", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameDelValue, FindsNoParameterWithoutTheSection)
{
    WriteBytes(roots.logName(L"Pumpe"), XmlFile(L"LogName", {}, XmlContent().Text(L"Station", L"Halle 2")));

    ExpectFailure(L"Station", PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(LogNameDelValue, FindsNoFileForALogNameThatIsMissing)
{
    EXPECT_EQ(library.LogNameDelValueBL(L"Presse", L"Station"), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameDelValue, LeavesAFileThatCanNotBeLoadedAsItIs)
{
    WriteBytes(roots.logName(L"Pumpe"), "<LogName><Parameters></LogName>");

    ExpectFailure(L"Station", PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(LogNameDelValue, LeavesAFileThatWouldNotSatisfyItsSchema)
{
    Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2").Int(L"Stufe", L"one"));

    ExpectFailure(L"Station", PGSP_ERR_INVALID_FILE);
}

TEST_F(LogNameDelValue, NeedsTheSchema)
{
    std::filesystem::remove(roots.program() + L"\\Schemes\\Corvane.Device.Driver.Logname.xsd");

    ExpectFailure(L"Station", PGSP_ERR_CANT_LOAD_SCHEMA);
}

TEST_F(LogNameDelValue, NeedsTheProgramFolder)
{
    DeleteMachineValue(LocationsKey, L"Corvane_Oam");
    SetCommonProgramFiles(roots.folder().path());

    ExpectFailure(L"Station", PGSP_ERR_FOLDER_NOT_FOUND);
}

TEST_F(LogNameDelValue, NeedsCom)
{
    OnFreshThread([&] { ExpectFailure(L"Station", PGSP_ERR_CANT_CREATE_XML_ENGINE); });
}

TEST_F(LogNameDelValue, LeavesBothFilesWhenTheOldOneIsInUse)
{
    const std::string before = Bytes();
    const OpenFile inUse(roots.logName(L"Pumpe"));

    EXPECT_EQ(Delete(L"Station"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_EQ(Bytes(), before);
    EXPECT_THAT(Files(), ElementsAre(L"Pumpe(temp).xml", L"Pumpe.xml"));
}

TEST_F(LogNameDelValue, AsksNoLockWord)
{
    Write(L"Pumpe", XmlContent().Text(L"LOCKED_BY_THREAD_POINTER", L"4711").Text(L"Station", L"1"));

    EXPECT_EQ(Delete(L"Station"), PGSP_OK);
    EXPECT_EQ(Delete(L"LOCKED_BY_THREAD_POINTER"), PGSP_OK);
}

TEST_F(LogNameDelValue, TakesAPathOf259CharactersAndNoMore)
{
    EXPECT_EQ(library.LogNameDelValueBL(NameForPathOf(255).c_str(), L"Station"), PGSP_ERR_FILE_NOT_FOUND);
    EXPECT_EQ(library.LogNameDelValueBL(NameForPathOf(260).c_str(), L"Station"), PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace
} // namespace norvepa::test
