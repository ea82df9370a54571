#pragma once

// The stand-in for the trace engine library where the trace client looks for it, and the calls that it gets.

#include "support/ShellFolders.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace norvepa::test
{

class InstalledEngine
{
public:
    // In a folder of the test's own; the registry has to be redirected already. The library is missing until
    // it is installed.
    explicit InstalledEngine(const TemporaryFolder& folder)
        : m_commonFiles(folder / L"common"), m_log(folder / L"calls")
    {
        MakeFolders(m_commonFiles);
        SetCommonProgramFiles(m_commonFiles);
        SetEnvironmentVariableW(L"NORV_TEST_ENGINE_LOG", m_log.c_str());
        SetResults(L"0", L"0");
    }

    // Whole or with an export missing.
    void Install(const std::wstring& variant) const
    {
        std::wstring program(1024, L'\0');
        program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
        const auto from =
            std::filesystem::path(program).replace_filename(L"trace_engine_" + variant + L".dll");
        MakeFolders(std::filesystem::path(libraryPath()).parent_path().wstring());
        std::filesystem::copy_file(from, libraryPath());
    }

    static void SetResults(const wchar_t* open, const wchar_t* write)
    {
        SetEnvironmentVariableW(L"NORV_TEST_ENGINE_OPEN", open);
        SetEnvironmentVariableW(L"NORV_TEST_ENGINE_WRITE", write);
    }

    // Each as the stand-in tells it, in their order.
    [[nodiscard]] std::vector<std::string> calls() const
    {
        std::vector<std::string> all;
        std::istringstream content(Exists(m_log) ? ReadBytes(m_log) : "");
        for (std::string line; std::getline(content, line);)
        {
            all.push_back(line.back() == '\r' ? line.substr(0, line.size() - 1) : line);
        }
        return all;
    }

    [[nodiscard]] const std::wstring& commonFiles() const { return m_commonFiles; }
    [[nodiscard]] std::wstring libraryPath() const
    {
        return m_commonFiles + L"\\Marvolt\\Automation\\TraceEngine\\bin\\NorvTraceEngine64X.dll";
    }

private:
    std::wstring m_commonFiles;
    std::wstring m_log;
};

} // namespace norvepa::test
