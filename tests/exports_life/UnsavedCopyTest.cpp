#include "LifeScene.h"
#include "support/ImportHook.h"
#include "support/OpenFile.h"

#include <windows.h>

#include <optional>

namespace norvepa::test
{
namespace
{

std::wstring copyAwaited;
std::optional<OpenFile> copyInUse;

// From the moment it is there somebody reads the copy, and so lets nobody write it.
BOOL WINAPI CloseAndKeepCopyOpen(HANDLE handle)
{
    const BOOL closed = CloseHandle(handle);
    if (!copyInUse && Exists(copyAwaited))
    {
        copyInUse.emplace(copyAwaited);
    }
    return closed;
}

// A copy that nothing can be saved to.
class UnsavedCopy : public LifeScene
{
protected:
    UnsavedCopy()
    {
        Write(Rights(L"false", L"true"));
        WriteTemplate(L"MPI", Rights(L"true", L"false"));
    }

    ~UnsavedCopy() override { copyInUse.reset(); }

private:
    const ImportHook m_keepingOpen{"CloseHandle", CloseAndKeepCopyOpen, library.module()};
};

TEST_F(UnsavedCopy, StaysHiddenAndKeptFromRemovalWithoutAWordOfIt)
{
    const NamedEvent told;
    Register(told, L"Kopie");

    copyAwaited = roots.logDevice(L"Kopie");
    EXPECT_EQ(library.LogDeviceCopyBL(L"Presse", L"Kopie"), PGSP_OK);

    EXPECT_TRUE(IsTold(told));
    EXPECT_EQ(store.Bytes(L"Kopie"), store.Bytes(L"Presse"));
    EXPECT_EQ(library.LogDeviceDelBL(L"Kopie", 0), PGSP_ERR_LOG_DEVICE_NOT_DELETABLE);
}

TEST_F(UnsavedCopy, ThatIsTemporaryLacksTheTemplatesNameWithoutAWordOfIt)
{
    copyAwaited = roots.logDevice(TemporaryName(0));
    EXPECT_EQ(MakeTemporaryFromTemplate(L"MPI"), TemporaryName(0));

    EXPECT_EQ(store.Bytes(TemporaryName(0)), ReadBytes(roots.deviceTemplate(L"MPI")));
}

} // namespace
} // namespace norvepa::test
