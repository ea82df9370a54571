#include "TraceSwitch.h"

#include "Text.h"

#include <windows.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

namespace norvctl
{

namespace
{

constexpr wchar_t TraceKey[] = L"Software\\MARVOLT\\DRAVIK\\TrcParams";
constexpr wchar_t CounterName[] = L"Global\\NorvTRACE_SECTION";
constexpr DWORD ValueLimit = 260; // bytes that a traced process reads of a value

constexpr std::array<const char*, 11> ValueNames{"Level",    "Format",    "Output",  "Path",
                                                 "FileName", "Byte/File", "sm_size", "Consult",
                                                 "TraceId",  "Module",    "FctName"};

[[noreturn]] void Throw(LSTATUS status, const char* what)
{
    throw std::system_error(static_cast<int>(status), std::system_category(), what);
}

struct CloseView
{
    void operator()(volatile LONG* view) const
    {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast) unmapping takes no volatile
        UnmapViewOfFile(const_cast<LONG*>(view));
    }
};
using CounterView = std::unique_ptr<volatile LONG, CloseView>;

// The counter is there as long as any process traces; this one does, through the library it loads.
CounterView OpenCounter()
{
    const HANDLE mapping = OpenFileMappingW(FILE_MAP_WRITE, FALSE, CounterName);
    if (mapping == nullptr)
    {
        return nullptr;
    }
    CounterView view(static_cast<volatile LONG*>(MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, sizeof(LONG))));
    CloseHandle(mapping);
    return view;
}

void BumpCounter()
{
    if (const CounterView counter = OpenCounter())
    {
        InterlockedIncrement(counter.get());
    }
}

void WriteValue(const char* name, const std::string& text)
{
    const std::wstring wide = ToWide(text);
    const LSTATUS status =
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, TraceKey, ToWide(name).c_str(), REG_SZ, wide.c_str(),
                        static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
    if (status != ERROR_SUCCESS)
    {
        Throw(status, "the trace settings cannot be written");
    }
}

std::string ReadValue(const char* name)
{
    std::array<wchar_t, ValueLimit> text{};
    DWORD size = sizeof(text);
    const LSTATUS status = RegGetValueW(HKEY_LOCAL_MACHINE, TraceKey, ToWide(name).c_str(), RRF_RT_REG_SZ,
                                        nullptr, text.data(), &size);
    return status == ERROR_SUCCESS ? ToUtf8(text.data()) : std::string{};
}

// A traced process makes its files and no folders.
void MakeFolder(const std::string& folder)
{
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(ToWide(folder)), error);
    if (error)
    {
        throw std::system_error(error, "the folder of the trace files cannot be made");
    }
}

} // namespace

TraceStatus ReadTraceStatus()
{
    TraceStatus status;
    for (const char* const name : ValueNames)
    {
        if (std::string text = ReadValue(name); !text.empty())
        {
            status.values.push_back({name, std::move(text)});
        }
    }
    status.on = std::strtoul(ReadValue("Level").c_str(), nullptr, 0) != 0;
    if (const CounterView counter = OpenCounter())
    {
        status.counter = static_cast<std::uint32_t>(*counter);
    }
    return status;
}

void SwitchTraceOn(const TraceSettings& settings)
{
    if (settings.output == "FILE")
    {
        MakeFolder(settings.folder);
    }
    WriteValue("Format", settings.format);
    WriteValue("Output", settings.output);
    WriteValue("Path", settings.folder);
    WriteValue("FileName", settings.file);
    WriteValue("Level", settings.level);
    BumpCounter();
}

void SwitchTraceOff()
{
    WriteValue("Level", "0");
    BumpCounter();
}

} // namespace norvctl
