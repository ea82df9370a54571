#include "DriverReadScene.h"
#include "support/FreshThread.h"
#include "support/ImportHook.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

// Files that the library opens by itself while an object lives.
int opened;

HANDLE WINAPI CountAndRefuse(LPCWSTR, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD, HANDLE)
{
    ++opened;
    return INVALID_HANDLE_VALUE;
}

class DriverReadArguments : public DriverReadScene
{
protected:
    DriverReadArguments() { Write(Holding(L"v")); }
};

TEST_F(DriverReadArguments, NeedAName)
{
    HandedOut out;

    EXPECT_EQ(library.norvDriverReadLogDevice(nullptr, &out.block, &out.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.norvDriverReadLogDevice(L"", &out.block, &out.length), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(out.isUntouched());
}

TEST_F(DriverReadArguments, NeedBothOutputs)
{
    HandedOut out;

    EXPECT_EQ(library.norvDriverReadLogDevice(L"Presse", nullptr, &out.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.norvDriverReadLogDevice(L"Presse", &out.block, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(library.norvDriverReadLogDevice(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(out.isUntouched());
}

TEST_F(DriverReadArguments, MayComeWithAnythingInTheOutputs)
{
    std::uint8_t* block = nullptr;
    std::uint32_t length = 0;

    EXPECT_EQ(library.norvDriverReadLogDevice(L"Presse", &block, &length), PGSP_OK);

    EXPECT_EQ(TakeOver(block, length), Held(L"v"));
}

TEST_F(DriverReadArguments, AreTestedAheadOfEverythingElse)
{
    store.TakeDataFolderAway();
    store.TakeProgramFolderAway();

    OnFreshThread([&] {
        EXPECT_EQ(ResultOf(L""), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

TEST_F(DriverReadArguments, ThatAreRefusedOpenNoFile)
{
    opened = 0;
    const ImportHook hook("CreateFileW", CountAndRefuse, library.module());

    EXPECT_EQ(ResultOf(L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(opened, 0);

    EXPECT_EQ(ResultOf(L"Presse"), PGSP_ERR_CANT_LOAD_XML_FILE);
    EXPECT_GT(opened, 0);
}

} // namespace
} // namespace norvepa::test
