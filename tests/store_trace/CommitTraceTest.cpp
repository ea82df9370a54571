#include "DebuggerTrace.h"
#include "store/BrokenEngine.h"
#include "store/CommitScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::StartsWith;

// What a validation tells, and with it a commit.
class CommitTrace : public CommitScene
{
protected:
    [[nodiscard]] static std::string Line(std::string_view text)
    {
        return TraceLine("NorvXMLValidateFile: ", text);
    }
};

TEST_F(CommitTrace, OfAValidFileIsTheEntry)
{
    WriteBytes(real(), ValidLogName());
    const DebuggerTrace trace;

    EXPECT_EQ(Validate(), PGSP_OK);

    EXPECT_THAT(trace.lines(), ElementsAre(Line(">> fileName = Name")));
}

TEST_F(CommitTrace, OfBadArgumentsIsTheEntryAtItsLevel)
{
    const DebuggerTrace trace(L"0x8");

    EXPECT_EQ(NorvXMLValidateFile(nullptr, LogNameSchema, L"folder"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(trace.lines(), ElementsAre(Line(">> fileName = ")));
}

TEST_F(CommitTrace, OfAnInvalidFileTellsTheEnginesReasonAtTheInformationLevel)
{
    WriteBytes(real(), InvalidLogName());
    const DebuggerTrace trace(L"0x40");

    EXPECT_EQ(Validate(), PGSP_ERR_INVALID_FILE);

    // The reason is the engine's; not every one has any.
    EXPECT_THAT(trace.lines(), ElementsAre(StartsWith("NorvXMLValidateFile:  INVALID FILE, reason: ")));
}

TEST_F(CommitTrace, OfAMissingObjectTellsItAtTheInformationLevel)
{
    WriteBytes(real(), ValidLogName());

    for (const int objects : {0, 1, 2})
    {
        const BrokenEngine engine({REGDB_E_CLASSNOTREG}, objects);
        const DebuggerTrace trace(L"0x40");

        EXPECT_EQ(Validate(), PGSP_ERR_CANT_CREATE_XML_ENGINE);

        EXPECT_THAT(trace.lines(), ElementsAre(Line("ERROR : CreateInstance")));
    }
}

TEST_F(CommitTrace, OfAFileThatIsNotThereIsTheSizeGuards)
{
    const DebuggerTrace trace;

    EXPECT_EQ(Validate(), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(trace.lines(),
                ElementsAre(Line(">> fileName = Name"),
                            TraceLine("CheckFileSize: ", "Error: FILE_NOT_FOUND : " + ToUtf8(real()))));
}

TEST_F(CommitTrace, OfACommitIsThatOfItsStepsInTheirOrder)
{
    WriteBytes(real(), "real");
    WriteBytes(temporary(), ValidLogName());
    const std::string path = ToUtf8(folder() + L"\\Name");
    const DebuggerTrace trace;

    EXPECT_EQ(Commit(), PGSP_OK);

    EXPECT_THAT(trace.lines(),
                ElementsAre(Line(">> fileName = Name(temp)"),
                            TraceLine("NorvXMLDeleteFile: ", ">> filePath = " + path),
                            TraceLine("NorvXMLDeleteFile: ", ">> _wremove = " + path + ".xml"),
                            TraceLine("NorvXMLRenameFile: ", ">> destinationPath = " + path),
                            TraceLine("NorvXMLRenameFile: ", " : RenameFile >> NewFile = " + path + ".xml")));
}

} // namespace
} // namespace norvepa::test
