#include "support/ProgramStart.h"

#include <iostream>

#include <filesystem>
#include <stdexcept>

namespace norvepa::test
{

namespace
{

bool Start(std::wstring commandLine, STARTUPINFOW& startup, PROCESS_INFORMATION& process)
{
    return CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                          &process) != FALSE;
}

} // namespace

std::wstring BesideThisProgram(const std::wstring& program)
{
    std::wstring path(1024, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return std::filesystem::path(path).replace_filename(program).wstring();
}

StartedProgram StartProgram(const std::wstring& commandLine, HANDLE input, HANDLE output, HANDLE error)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input;
    startup.hStdOutput = output;
    startup.hStdError = error;
    PROCESS_INFORMATION process{};

    bool started = Start(commandLine, startup, process);
    if (!started && GetLastError() == ERROR_INTERNAL_ERROR)
    {
        std::cerr << "a program was lost in its start, once more" << std::endl;
        started = Start(commandLine, startup, process);
    }
    if (!started)
    {
        throw std::runtime_error("the program can't be started: " + std::to_string(GetLastError()));
    }
    CloseHandle(process.hThread);
    return {process.hProcess, process.dwProcessId};
}

} // namespace norvepa::test
