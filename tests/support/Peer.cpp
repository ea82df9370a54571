#include "support/Peer.h"

#include "support/ProgramStart.h"

#include <stdexcept>
#include <utility>

namespace norvepa::test
{

namespace
{

constexpr DWORD Patience = 60'000; // milliseconds

// The end of a pipe that the peer gets, and the one that stays here.
std::pair<HANDLE, HANDLE> MakePipe(bool peerReads)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE read = nullptr;
    HANDLE write = nullptr;
    if (CreatePipe(&read, &write, &inherited, 0) == FALSE)
    {
        throw std::runtime_error("CreatePipe failed");
    }
    const auto [theirs, ours] = peerReads ? std::pair(read, write) : std::pair(write, read);
    SetHandleInformation(ours, HANDLE_FLAG_INHERIT, 0);
    return {theirs, ours};
}

} // namespace

Peer::Peer(const std::wstring& program, const RedirectedRegistry& registry)
{
    const auto [peerInput, input] = MakePipe(true);
    const auto [peerOutput, output] = MakePipe(false);
    m_input = input;
    m_output = output;

    SetEnvironmentVariableW(L"NORV_TEST_MACHINE_KEY", registry.name().c_str());
    m_process = StartProgram(L"\"" + BesideThisProgram(program) + L"\"", peerInput, peerOutput,
                             GetStdHandle(STD_ERROR_HANDLE))
                    .process;
    SetEnvironmentVariableW(L"NORV_TEST_MACHINE_KEY", nullptr);
    CloseHandle(peerInput);
    CloseHandle(peerOutput);
}

Peer::~Peer()
{
    CloseHandle(m_input);
    if (WaitForSingleObject(m_process, Patience) != WAIT_OBJECT_0)
    {
        Kill();
    }
    CloseHandle(m_process);
    CloseHandle(m_output);
}

std::string Peer::Ask(const std::string& command)
{
    Send(command);
    return Answer();
}

void Peer::Send(const std::string& command)
{
    const std::string line = command + "\n";
    DWORD written = 0;
    if (WriteFile(m_input, line.data(), static_cast<DWORD>(line.size()), &written, nullptr) == FALSE)
    {
        throw std::runtime_error("the peer doesn't listen");
    }
}

std::string Peer::Answer()
{
    std::string answer;
    char character = '\0';
    DWORD read = 0;
    while (ReadFile(m_output, &character, 1, &read, nullptr) != FALSE && read == 1)
    {
        if (character == '\n')
        {
            return answer;
        }
        if (character != '\r')
        {
            answer += character;
        }
    }
    throw std::runtime_error("the peer doesn't answer");
}

DWORD Peer::ExitCode()
{
    DWORD code = STILL_ACTIVE;
    if (WaitForSingleObject(m_process, Patience) != WAIT_OBJECT_0 ||
        GetExitCodeProcess(m_process, &code) == FALSE)
    {
        throw std::runtime_error("the peer doesn't end");
    }
    return code;
}

void Peer::Kill()
{
    TerminateProcess(m_process, 1);
    WaitForSingleObject(m_process, Patience);
}

} // namespace norvepa::test
