#include "LogNameScene.h"
#include "support/OpenFile.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class LogNameDelete : public LogNameScene
{
protected:
    LogNameDelete() { Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2")); }
};

TEST_F(LogNameDelete, TakesTheFileAwayAndNoOther)
{
    Write(L"Presse", {});

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

TEST_F(LogNameDelete, FindsTheFileInAnyCase)
{
    EXPECT_EQ(library.LogNameDeleteBL(L"PUMPE"), PGSP_OK);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LogNameDelete, FailsWithoutAFile)
{
    EXPECT_EQ(library.LogNameDeleteBL(L"Presse"), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogNameDeleteBL(L"no such folder\\Pumpe"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameDelete, FailsASecondTime)
{
    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_ERR_CANT_DELETE_FILE);
}

TEST_F(LogNameDelete, AsksNoParameterForLeave)
{
    Write(L"Pumpe", XmlContent()
                        .Text(L"enable_delete", L"false")
                        .Text(L"hidden", L"true")
                        .Text(L"LOCKED_BY_THREAD_POINTER", L"4711"));

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LogNameDelete, AsksNotWhatTheFileHolds)
{
    WriteBytes(roots.logName(L"Pumpe"), "no XML");

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_OK);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(LogNameDelete, FailsForAFileInUse)
{
    const OpenFile inUse(roots.logName(L"Pumpe"));

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameDelete, FailsForAReadOnlyFile)
{
    SetFileAttributesW(roots.logName(L"Pumpe").c_str(), FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe"), PGSP_ERR_CANT_DELETE_FILE);

    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
    SetFileAttributesW(roots.logName(L"Pumpe").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(LogNameDelete, TakesTheFoldersNameForAnEmptyOne)
{
    EXPECT_EQ(library.LogNameDeleteBL(L""), PGSP_ERR_CANT_DELETE_FILE);

    WriteBytes(roots.data() + L"\\data\\LogNames.xml", LogNameFile({}));
    EXPECT_EQ(library.LogNameDeleteBL(L""), PGSP_OK);

    EXPECT_FALSE(Exists(roots.data() + L"\\data\\LogNames.xml"));
    EXPECT_THAT(Files(), ElementsAre(L"Pumpe.xml"));
}

TEST_F(LogNameDelete, GivesTheExtensionToAllThatDoNotEndInTheirFirst)
{
    Write(L"Presse.xml.old", {});
    WriteBytes(folder() + L"\\Presse.xml.old", LogNameFile({}));

    EXPECT_EQ(library.LogNameDeleteBL(L"Pumpe.xml"), PGSP_OK);
    EXPECT_EQ(library.LogNameDeleteBL(L"Presse.xml.old"), PGSP_OK);

    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml.old"));
}

TEST_F(LogNameDelete, TakesAPathOf259CharactersAndNoMore)
{
    EXPECT_EQ(library.LogNameDeleteBL(NameForPathOf(259).c_str()), PGSP_ERR_CANT_DELETE_FILE);
    EXPECT_EQ(library.LogNameDeleteBL(NameForPathOf(260).c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogNameDeleteBL(std::wstring(100'000, L'n').c_str()), PGSP_ERR_BUFFER_TOO_SHORT);
}

} // namespace
} // namespace norvepa::test
