#include "support/ChildProgram.h"

#include "support/ProgramStart.h"

#include <stdexcept>

namespace norvepa::test
{

namespace
{

constexpr DWORD Patience = 100'000; // milliseconds
constexpr DWORD PipeInterval = 10;  // milliseconds between looks at what a running program has said

// In quotes, so that the C run-time's rules give it back: backslashes count only ahead of a quote.
std::wstring Quoted(const std::wstring& argument)
{
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t character : argument)
    {
        if (character == L'"')
        {
            quoted.append(backslashes + 1, L'\\');
        }
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        quoted += character;
    }
    return quoted.append(backslashes, L'\\') + L"\"";
}

std::string WithoutCarriageReturns(std::string text)
{
    std::erase(text, '\r');
    return text;
}

// What stands in a pipe now.
std::string Waiting(HANDLE pipe)
{
    DWORD size = 0;
    if (PeekNamedPipe(pipe, nullptr, 0, nullptr, &size, nullptr) == FALSE || size == 0)
    {
        return {};
    }
    std::string bytes(size, '\0');
    DWORD read = 0;
    ReadFile(pipe, bytes.data(), size, &read, nullptr);
    bytes.resize(read);
    return bytes;
}

SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};

} // namespace

ChildProgram::ChildProgram(const std::wstring& program, const std::vector<std::wstring>& arguments)
{
    HANDLE output = nullptr;
    if (CreatePipe(&m_output, &output, &inherited, 0) == FALSE)
    {
        throw std::runtime_error("CreatePipe failed");
    }
    SetHandleInformation(m_output, HANDLE_FLAG_INHERIT, 0);
    const HANDLE error = CreateFileW((m_folder / L"error").c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                     &inherited, CREATE_ALWAYS, 0, nullptr);

    std::wstring commandLine = Quoted(BesideThisProgram(program));
    for (const std::wstring& argument : arguments)
    {
        commandLine += L" " + Quoted(argument);
    }
    const StartedProgram started = StartProgram(commandLine, nullptr, output, error);
    CloseHandle(output);
    CloseHandle(error);
    m_process = started.process;
    m_id = started.id;
}

ChildProgram::~ChildProgram()
{
    TerminateProcess(m_process, 1);
    WaitForSingleObject(m_process, Patience);
    CloseHandle(m_process);
    CloseHandle(m_output);
}

std::string ChildProgram::ReadLine()
{
    std::string line;
    char character = '\0';
    DWORD read = 0;
    while (ReadFile(m_output, &character, 1, &read, nullptr) != FALSE && read == 1)
    {
        if (character == '\n')
        {
            return WithoutCarriageReturns(line);
        }
        line += character;
    }
    throw std::runtime_error("the program has said all: " + line);
}

ProgramEnd ChildProgram::Finish()
{
    // Not until the pipe's end: what the program has started may live on and hold it.
    std::string output;
    const ULONGLONG begin = GetTickCount64();
    while (WaitForSingleObject(m_process, PipeInterval) == WAIT_TIMEOUT)
    {
        output += Waiting(m_output);
        if (GetTickCount64() - begin > Patience)
        {
            throw std::runtime_error("the program doesn't end");
        }
    }
    output += Waiting(m_output);

    DWORD exitCode = STILL_ACTIVE;
    GetExitCodeProcess(m_process, &exitCode);
    return {exitCode, WithoutCarriageReturns(output), WithoutCarriageReturns(ReadBytes(m_folder / L"error")),
            output};
}

} // namespace norvepa::test
