#include "SharedCounter.h"
#include "TracePeer.h"
#include "TraceScene.h"
#include "win/Handle.h"

#include <windows.h>
#include <aclapi.h>
#include <sddl.h>

#include <gtest/gtest.h>
#include <string>

namespace norvepa
{

namespace
{

using test::TracePeer;
using test::TraceScene;

// Who may do what with a kernel object, in the notation of security descriptors.
std::string AccessList(const win::Handle& object)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(object.get(), SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, nullptr,
                        nullptr, &descriptor) != ERROR_SUCCESS)
    {
        return "unreadable";
    }
    char* text = nullptr;
    ConvertSecurityDescriptorToStringSecurityDescriptorA(descriptor, SDDL_REVISION_1,
                                                         DACL_SECURITY_INFORMATION, &text, nullptr);
    const std::string copy = text == nullptr ? "" : text;
    LocalFree(text);
    LocalFree(descriptor);
    return copy;
}

TEST(TraceSecurity, CounterMayBeMappedForWritingByAuthenticatedUsers)
{
    const win::Handle counter(OpenFileMappingA(READ_CONTROL, FALSE, "Global\\NorvTRACE_SECTION"));
    ASSERT_TRUE(counter);

    // DC is the bit of FILE_MAP_WRITE.
    EXPECT_EQ(AccessList(counter), "D:(A;;DC;;;AU)");
}

TEST(TraceSecurity, MutexHasTheSecurityGivenAtTheLoadAndIsOpenedForWaitingOnly)
{
    TraceScene scene;
    TracePeer peer(scene.registry());
    peer.Ask("note-mutex");

    peer.Ask("init-secured");

    EXPECT_EQ(peer.Ask("mutex"), "secured Global\\NorvTRACE_MUTEX 0 " + std::to_string(SYNCHRONIZE));
}

TEST(TraceSecurity, RingHasTheSecurityGivenAtTheLoad)
{
    TraceScene scene;
    TraceScene::Set(L"Output", L"SM");
    TracePeer peer(scene.registry());

    peer.Ask("init-secured");

    const win::Handle ring(OpenFileMappingA(READ_CONTROL, FALSE, "Global\\NorvSDD_Trace"));
    ASSERT_TRUE(ring);
    EXPECT_EQ(AccessList(ring), "D:(A;;FA;;;AU)");
}

TEST(TraceSecurity, RingMadeAtALaterReadingHasTheSecurityGivenAtTheLoad)
{
    TraceScene scene;
    TraceScene::Set(L"Level", L"8");
    scene.SetFiles();
    TracePeer peer(scene.registry());
    peer.Ask("init-secured");
    TraceScene::Set(L"Output", L"SM");

    test::SharedCounter().Bump();
    peer.Ask("trace 8 line");

    const win::Handle ring(OpenFileMappingA(READ_CONTROL, FALSE, "Global\\NorvSDD_Trace"));
    ASSERT_TRUE(ring);
    EXPECT_EQ(AccessList(ring), "D:(A;;FA;;;AU)");
}

} // namespace

} // namespace norvepa
