#include "DebuggerTrace.h"
#include "store/FileSteps.h"
#include "store/WriteScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// What the steps tell when they run; to make one tells nothing.
class FileStepsTrace : public WriteScene
{
protected:
    const std::wstring m_source = folder() / L"a%";
    const std::wstring m_destination = folder() / L"b#";
    const std::wstring m_tooLong = folder() / std::wstring(260, L'x');

private:
    RedirectedRegistry m_registry;
};

TEST_F(FileStepsTrace, OfAStepThatDoesNotRunIsSilent)
{
    const DebuggerTrace trace;
    {
        const Deletion deletion(m_source.c_str());
        const Copying copying(m_source.c_str(), m_destination.c_str());
        const Renaming renaming(m_source.c_str(), m_destination.c_str());
        const Deletion refusedDeletion(nullptr);
        const Copying refusedCopying(m_tooLong.c_str(), m_destination.c_str());
        const Renaming refusedRenaming(m_source.c_str(), L"");
    }

    EXPECT_THAT(trace.lines(), IsEmpty());
}

TEST_F(FileStepsTrace, IsThatOfTheOperation)
{
    const Deletion deletion(m_source.c_str());
    const Copying copying(m_source.c_str(), m_destination.c_str());
    const Renaming renaming(m_source.c_str(), m_destination.c_str());

    // The files aren't there: each of them tells all that it can.
    EXPECT_EQ(LinesOf([&] { return deletion.Run(); }),
              LinesOf([&] { return NorvXMLDeleteFile(m_source.c_str()); }));
    EXPECT_EQ(LinesOf([&] { return copying.Run(); }),
              LinesOf([&] { return NorvXMLCopyFile(m_source.c_str(), m_destination.c_str()); }));
    EXPECT_EQ(LinesOf([&] { return renaming.Run(); }),
              LinesOf([&] { return NorvXMLRenameFile(m_source.c_str(), m_destination.c_str()); }));
    EXPECT_THAT(LinesOf([&] { return deletion.Run(); }), SizeIs(3));
    EXPECT_THAT(LinesOf([&] { return copying.Run(); }), SizeIs(3));
    EXPECT_THAT(LinesOf([&] { return renaming.Run(); }), SizeIs(2));
}

TEST_F(FileStepsTrace, OfAPathThatWasRefusedIsTheEntryAloneEachTimeItRuns)
{
    const Deletion deletion(L"");
    const Copying copying(m_tooLong.c_str(), m_destination.c_str());
    const Renaming renaming(m_tooLong.c_str(), m_destination.c_str());
    const std::string destination = ">> destinationPath = " + ToUtf8(m_destination);

    for (int round = 0; round < 2; ++round)
    {
        EXPECT_THAT(LinesOf([&] { return deletion.Run(); }),
                    ElementsAre(TraceLine("NorvXMLDeleteFile: ", ">> filePath = ")));
        EXPECT_THAT(LinesOf([&] { return copying.Run(); }),
                    ElementsAre(TraceLine("NorvXMLCopyFile: ", destination)));
        EXPECT_THAT(LinesOf([&] { return renaming.Run(); }),
                    ElementsAre(TraceLine("NorvXMLRenameFile: ", destination)));
    }
}

} // namespace
} // namespace norvepa::test
