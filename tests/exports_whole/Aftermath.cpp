#include "exports_whole/Aftermath.h"

#include "exports_whole/Objects.h"
#include "exports_whole/Steps.h"
#include "support/XmlMeaning.h"

#include <filesystem>

namespace norvepa::test
{

namespace fs = std::filesystem;

namespace
{

constexpr std::wstring_view TemporaryDevice = L"PGSP_TEMP_LOG_DEVICE";

std::vector<std::wstring> FilesBelow(const std::wstring& folder)
{
    std::vector<std::wstring> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
    {
        if (entry.is_regular_file())
        {
            files.push_back(entry.path().wstring());
        }
    }
    return files;
}

std::string NameOf(const std::wstring& file)
{
    return ToUtf8(fs::path(file).filename().wstring());
}

bool IsTemporaryDevice(const std::wstring& file)
{
    return fs::path(file).filename().wstring().starts_with(TemporaryDevice);
}

std::string KindOf(const std::wstring& file)
{
    if (IsTemporaryDevice(file))
    {
        return "a temporary device";
    }
    return fs::path(file).stem().wstring().ends_with(L"(temp)") ? "a (temp) form" : NameOf(file);
}

std::string StateOf(const std::wstring& file)
{
    if (!Exists(file))
    {
        return "missing";
    }
    if (fs::file_size(file) == 0)
    {
        return "empty";
    }
    return MeaningOfFile(file).starts_with("not well-formed") ? "not well-formed" : "whole";
}

} // namespace

Aftermath::Aftermath(const StoreRoots& roots, const Exports& library) : m_roots(roots), m_library(library)
{
    for (const std::wstring& file : FilesBelow(m_roots.folder().path()))
    {
        if (fs::path(file).extension() == L".xml")
        {
            m_files[file] = ReadBytes(file);
        }
    }
}

void Aftermath::LookAround(const std::string& occasion)
{
    CountWhatLiesBeside();
    PutTemporaryInPlace();
    LookAtFiles(occasion);
    AskTheExports(occasion);
    DropTemporaryDevices(occasion);
}

void Aftermath::AddFaults(const std::string& occasion, const std::vector<std::string>& faults)
{
    for (const std::string& fault : faults)
    {
        m_faults.push_back(occasion + ": " + fault);
    }
}

std::string Aftermath::met() const
{
    std::string text;
    for (const auto& [kind, times] : m_met)
    {
        text += (text.empty() ? "" : "; ") + std::to_string(times) + " times " + kind;
    }
    return text.empty() ? "nothing" : text;
}

void Aftermath::CountWhatLiesBeside()
{
    for (const std::wstring& file : filesBeside())
    {
        ++m_met[KindOf(file) + ", " + StateOf(file)];
    }
}

// A swap removes the device, copies the temporary one to its place and removes that: for a moment it is the
// only one that there is.
void Aftermath::PutTemporaryInPlace()
{
    const std::wstring device = m_roots.logDevice(OurDevice);
    for (const std::wstring& file : filesBeside())
    {
        if (!Exists(device) && IsTemporaryDevice(file) && StateOf(file) == "whole")
        {
            ++m_met["no device, for its temporary one holds it"];
            fs::rename(file, device);
        }
    }
}

void Aftermath::LookAtFiles(const std::string& occasion)
{
    for (const auto& [file, bytes] : m_files)
    {
        if (const std::string state = StateOf(file); state != "whole")
        {
            AddFaults(occasion, {NameOf(file) + " is " + state});
            WriteBytes(file, bytes);
        }
    }
}

void Aftermath::AskTheExports(const std::string& occasion)
{
    Tally tally;
    for (const Step ask : {AskDevice, AskNote, AskName})
    {
        ask(m_library, 0, tally);
    }
    AddFaults(occasion, tally.wrong());
}

// There are not enough numbers for all that are left.
void Aftermath::DropTemporaryDevices(const std::string& occasion)
{
    for (const std::wstring& file : filesBeside())
    {
        if (IsTemporaryDevice(file) && m_library.LogDeviceDelTempBL(fs::path(file).stem().c_str()) != PGSP_OK)
        {
            AddFaults(occasion, {NameOf(file) + " can't be dropped"});
        }
    }
}

std::vector<std::wstring> Aftermath::filesBeside() const
{
    std::vector<std::wstring> files = FilesBelow(m_roots.data());
    std::erase_if(files, [&](const std::wstring& file) { return m_files.contains(file); });
    return files;
}

} // namespace norvepa::test
