#include "ModuleSecurity.h"

#include "support/ImportHook.h"

#include <windows.h>
#include <aclapi.h>
#include <sddl.h>

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa
{

namespace
{

using test::ImportHook;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::wstring> told;

void WINAPI Hear(const wchar_t* text)
{
    told.emplace_back(text);
}

BOOL WINAPI NoSid(SID_IDENTIFIER_AUTHORITY*, BYTE, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                  PSID*)
{
    return FALSE;
}

DWORD WINAPI NoEntries(ULONG, EXPLICIT_ACCESSW*, ACL*, ACL**)
{
    return ERROR_NOT_ENOUGH_MEMORY;
}

BOOL WINAPI NoDescriptor(SECURITY_DESCRIPTOR*, DWORD)
{
    return FALSE;
}

BOOL WINAPI NoDacl(SECURITY_DESCRIPTOR*, BOOL, ACL*, BOOL)
{
    return FALSE;
}

// A step that fails is told, and the next goes on with what it has.
class ModuleSecurityTest : public testing::Test
{
protected:
    ModuleSecurityTest() { told.clear(); }

    static std::string AccessList(ModuleSecurity& security)
    {
        const SECURITY_ATTRIBUTES attributes = security.attributes();
        char* text = nullptr;
        ConvertSecurityDescriptorToStringSecurityDescriptorA(attributes.lpSecurityDescriptor, SDDL_REVISION_1,
                                                             DACL_SECURITY_INFORMATION, &text, nullptr);
        const std::string copy = text == nullptr ? "" : text;
        LocalFree(text);
        return copy;
    }

    ModuleSecurity security;

private:
    ImportHook m_debugger{"OutputDebugStringW", Hear};
};

TEST_F(ModuleSecurityTest, LetsAuthenticatedUsersDoEverything)
{
    security.Make();

    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(AccessList(security), "D:(A;;FA;;;AU)");
    EXPECT_EQ(security.attributes().nLength, 24U);
    EXPECT_EQ(security.attributes().bInheritHandle, FALSE);
    security.Free();
}

TEST_F(ModuleSecurityTest, TellsTheDebuggerOfAGroupThatCannotBeMade)
{
    const ImportHook failure("AllocateAndInitializeSid", NoSid);

    security.Make();

    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.front(), L"AllocateAndInitializeSid failed for norvepaBl64x.dll");
    EXPECT_TRUE(IsValidSecurityDescriptor(security.attributes().lpSecurityDescriptor));
    security.Free();
}

TEST_F(ModuleSecurityTest, TellsTheDebuggerOfAListThatCannotBeMade)
{
    const ImportHook failure("SetEntriesInAclW", NoEntries);

    security.Make();

    EXPECT_THAT(told, ElementsAre(L"SetEntriesInAcl failed for norvepaBl64x.dll"));
    EXPECT_TRUE(IsValidSecurityDescriptor(security.attributes().lpSecurityDescriptor));
    security.Free();
}

TEST_F(ModuleSecurityTest, TellsTheDebuggerOfADescriptorThatCannotBeMade)
{
    const ImportHook failure("InitializeSecurityDescriptor", NoDescriptor);

    security.Make();

    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.front(), L"InitializeSecurityDescriptor failed for norvepaBl64x.dll");
    security.Free();
}

TEST_F(ModuleSecurityTest, TellsTheDebuggerOfAListThatCannotBeSet)
{
    const ImportHook failure("SetSecurityDescriptorDacl", NoDacl);

    security.Make();

    EXPECT_THAT(told, ElementsAre(L"SetSecurityDescriptorDacl failed for norvepaBl64x.dll"));
    security.Free();
}

TEST_F(ModuleSecurityTest, MayBeFreedTwiceAndWithoutHavingBeenMade)
{
    security.Free();
    security.Make();

    security.Free();
    security.Free();

    EXPECT_THAT(told, IsEmpty());
}

} // namespace

} // namespace norvepa
