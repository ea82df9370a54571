#include "FileDeeds.h"

#include "support/TemporaryFolder.h"

#include <windows.h>

#include <array>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

namespace norvepa::test
{

namespace fs = std::filesystem;

namespace
{

// Of a store's two roots; the texts are nobody's to change.
constexpr std::array DisturbedFolders{L"data-root\\data", L"program-root\\meta", L"program-root\\Schemes"};

constexpr std::array Strangers{
    L"data-root\\data\\LogDevices\\Fremd.xml",  L"data-root\\data\\LogDevices\\Fremd.txt",
    L"data-root\\data\\LogDevices\\#3c#3c.xml", L"data-root\\data\\LogNames\\Fremd.xml",
    L"data-root\\data\\LogNames\\(nmbr.xml",    L"program-root\\meta\\Boards\\Fremd.xml",
};

constexpr std::array<std::string_view, 8> Contents{
    "",
    "<",
    "<?xml version='1.0'?><LogDevice/>",
    "<?xml version='1.0'?><LogDevice><DeviceHeader><ParameterInt><Name>Unit</Name><Value>7",
    "<?xml version='1.0' encoding='nobody-knows'?><a><b/></a>",
    "<a><b></a></b>",
    std::string_view("\xFF\xFE<\0a\0/\0>\0", 10),
    "no document at all",
};

// What is done to a file, where it lies, and where the original is.
using Deed = void (*)(const fs::path& file, const fs::path& original, Draw& any);

void Replace(const fs::path& file, const fs::path& original, Draw&)
{
    const fs::path other = fs::path(file).replace_extension(L".neu");
    fs::copy_file(original, other, fs::copy_options::overwrite_existing);
    fs::rename(other, file);
}

void Overwrite(const fs::path& file, const fs::path& original, Draw&)
{
    fs::copy_file(original, file, fs::copy_options::overwrite_existing);
}

// Not within the XML declaration or right behind it: Wine's engine ends the process there.
void Cut(const fs::path& file, const fs::path&, Draw& any)
{
    constexpr std::uint32_t begin = 200; // bytes
    const auto size = static_cast<std::uint32_t>(fs::file_size(file));
    if (size > begin)
    {
        fs::resize_file(file, begin + any.Below(size - begin));
    }
}

void Break(const fs::path& file, const fs::path&, Draw& any)
{
    const std::string_view content = Contents.at(any.Below(Contents.size()));
    std::ofstream(file, std::ios::binary | std::ios::trunc)
        .write(content.data(), static_cast<std::streamsize>(content.size()));
}

void Remove(const fs::path& file, const fs::path&, Draw&)
{
    fs::remove(file);
}

void MoveAside(const fs::path& file, const fs::path&, Draw&)
{
    const fs::path aside = fs::path(file).replace_extension(L".weg");
    fs::rename(file, aside);
    fs::rename(aside, file);
}

void Hold(const fs::path& file, const fs::path&, Draw& any)
{
    const HANDLE held = CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    Sleep(any.Below(5));
    if (held != INVALID_HANDLE_VALUE)
    {
        CloseHandle(held);
    }
}

void Protect(const fs::path& file, const fs::path&, Draw& any)
{
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    Sleep(any.Below(5));
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

// More is mended than broken, so that most of the store is sound at any time.
constexpr std::array<Deed, 14> Deeds{Replace, Replace, Replace, Replace, Replace,   Overwrite, Overwrite,
                                     Cut,     Break,   Break,   Remove,  MoveAside, Hold,      Protect};

void ComeAndGo(const fs::path& stranger)
{
    if (!fs::remove(stranger))
    {
        std::ofstream(stranger, std::ios::binary) << "fremd";
    }
}

// The folders stay: processes watch them. A copy that a library has made of a protected file is protected
// too.
void Empty(const fs::path& folder)
{
    for (const auto& entry : fs::recursive_directory_iterator(folder))
    {
        if (entry.is_regular_file())
        {
            SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
            fs::remove(entry.path());
        }
    }
}

} // namespace

FileDeeds::FileDeeds(fs::path store, fs::path originals)
    : m_store(std::move(store)), m_originals(std::move(originals))
{
    for (const wchar_t* const folder : DisturbedFolders)
    {
        for (const auto& entry : fs::recursive_directory_iterator(m_originals / folder))
        {
            if (entry.is_regular_file())
            {
                m_files.push_back(fs::relative(entry.path(), m_originals));
            }
        }
    }
}

void FileDeeds::DoOne(Draw& any) const
try
{
    if (any.Below(10) == 0)
    {
        ComeAndGo(m_store / Strangers.at(any.Below(Strangers.size())));
        return;
    }
    const fs::path& file = m_files[any.Below(static_cast<std::uint32_t>(m_files.size()))];
    Deeds.at(any.Below(Deeds.size()))(m_store / file, m_originals / file, any);
}
catch (const fs::filesystem_error&)
{
    return; // somebody else has the file
}

void FileDeeds::Heal() const
{
    for (const wchar_t* const folder : DisturbedFolders)
    {
        Empty(m_store / folder);
        fs::copy(m_originals / folder, m_store / folder, fs::copy_options::recursive);
    }
}

} // namespace norvepa::test
