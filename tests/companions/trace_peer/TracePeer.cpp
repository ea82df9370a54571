// A second process that traces: it takes one command a line and answers each with one line.

#include "support/DebuggerStrings.h"
#include "support/ImportHook.h"
#include "support/RedirectedRegistry.h"
#include "support/TemporaryFolder.h"
#include "trace/Norvotrc.h"
#include "trace/TraceStatement.h"

#include <windows.h>
#include <iostream>
#include <sddl.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

namespace
{

using namespace norvepa;

constexpr TraceSource source{"Peer: ", "BL"};

// Everything for authenticated users, as the library itself asks for.
std::string InitSecured(std::istream&)
{
    SECURITY_ATTRIBUTES attributes{sizeof attributes, nullptr, FALSE};
    ConvertStringSecurityDescriptorToSecurityDescriptorA("D:(A;;0x1f01ff;;;AU)", SDDL_REVISION_1,
                                                         &attributes.lpSecurityDescriptor, nullptr);
    TraceInit(&attributes, "norvepaBl64x");
    return "done";
}

std::string Init(std::istream&)
{
    TraceInit(nullptr, "norvepaBl64x");
    return "done";
}

std::string Trace(std::istream& arguments)
{
    std::uint32_t level = 0;
    std::string text;
    arguments >> level;
    std::getline(arguments >> std::ws, text);
    NORV_TRACE(source, level, "%s", text.c_str());
    return "done";
}

std::string Lock(std::istream&)
{
    TraceLock();
    return "done";
}

std::string Unlock(std::istream&)
{
    TraceUnlock();
    return "done";
}

std::string Mask(std::istream&)
{
    return std::to_string(trace_state::levelMask.load());
}

// How the trace mutex was asked for.
std::string mutexCall = "not at all";

HANDLE WINAPI NoteMutex(SECURITY_ATTRIBUTES* security, const char* name, DWORD flags, DWORD access)
{
    mutexCall = std::string(security == nullptr ? "plain " : "secured ") + name + " " +
                std::to_string(flags) + " " + std::to_string(access);
    return CreateMutexExW(security, test::FromUtf8(name).c_str(), flags, access);
}

std::string NoteMutexCall(std::istream&)
{
    static const test::ImportHook hook("CreateMutexExA", NoteMutex);
    return "done";
}

std::string MutexCall(std::istream&)
{
    return mutexCall;
}

HANDLE WINAPI NoMutex(SECURITY_ATTRIBUTES*, const char*, DWORD, DWORD)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return nullptr;
}

HANDLE WINAPI NoMapping(HANDLE, SECURITY_ATTRIBUTES*, DWORD, DWORD, DWORD, const char*)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

HANDLE WINAPI NoRightToMap(HANDLE, SECURITY_ATTRIBUTES*, DWORD, DWORD, DWORD, const char*)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return nullptr;
}

HANDLE WINAPI NoOpenMapping(DWORD, BOOL, const char*)
{
    SetLastError(ERROR_FILE_NOT_FOUND);
    return nullptr;
}

HANDLE WINAPI OpenMappingTooEarly(DWORD access, BOOL inherit, const char* name)
{
    static bool isFirst = true;
    if (std::exchange(isFirst, false))
    {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return nullptr;
    }
    return OpenFileMappingW(access, inherit, test::FromUtf8(name).c_str());
}

// The counter appears between this process's look for it and its attempt to make it.
std::string LoseCounterRace(std::istream&)
{
    static const test::ImportHook hook("OpenFileMappingA", OpenMappingTooEarly);
    return "done";
}

std::string FailMutex(std::istream&)
{
    static const test::ImportHook hook("CreateMutexExA", NoMutex);
    return "done";
}

std::string FailMappings(std::istream&)
{
    static const test::ImportHook creating("CreateFileMappingA", NoMapping);
    static const test::ImportHook opening("OpenFileMappingA", NoOpenMapping);
    return "done";
}

// The counter can't be made for want of rights, and isn't there when it is looked for again either.
std::string RefuseMappings(std::istream&)
{
    static const test::ImportHook creating("CreateFileMappingA", NoRightToMap);
    static const test::ImportHook opening("OpenFileMappingA", NoOpenMapping);
    return "done";
}

// What was said to the debugger since the start, "|" between the texts.
std::string Debugger(const test::DebuggerStrings& strings)
{
    std::string all;
    for (const std::string& text : strings.heard())
    {
        all += (all.empty() ? "" : "|") + text;
    }
    for (auto end = all.find('\n'); end != std::string::npos; end = all.find('\n', end))
    {
        all.replace(end, 1, "\\n");
    }
    return all;
}

std::unique_ptr<test::RedirectedRegistry> JoinRegistry()
{
    const char* name = std::getenv("NORV_TEST_MACHINE_KEY");
    return name == nullptr ? std::make_unique<test::RedirectedRegistry>()
                           : std::make_unique<test::RedirectedRegistry>(test::FromUtf8(name));
}

} // namespace

int main()
{
    const auto registry = JoinRegistry();
    const test::DebuggerStrings strings;
    const std::map<std::string, std::function<std::string(std::istream&)>> commands{
        {"init", Init},
        {"init-secured", InitSecured},
        {"trace", Trace},
        {"lock", Lock},
        {"unlock", Unlock},
        {"mask", Mask},
        {"note-mutex", NoteMutexCall},
        {"mutex", MutexCall},
        {"fail-mutex", FailMutex},
        {"fail-mappings", FailMappings},
        {"refuse-mappings", RefuseMappings},
        {"lose-counter-race", LoseCounterRace},
        {"debugger", [&](std::istream&) { return Debugger(strings); }},
    };

    for (std::string line; std::getline(std::cin, line);)
    {
        std::istringstream arguments(line);
        std::string command;
        arguments >> command;
        const auto found = commands.find(command);
        std::cout << (found == commands.end() ? "unknown" : found->second(arguments)) << std::endl;
    }
}
