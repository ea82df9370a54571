#include "support/TemporaryFolder.h"

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace norvepa::test
{

namespace fs = std::filesystem;

namespace
{

fs::path FreshPath()
{
    static int count = 0;
    return fs::temp_directory_path() / ("norvepa-" + std::to_string(GetCurrentProcessId()) + "-" +
                                        std::to_string(GetTickCount64()) + "-" + std::to_string(++count));
}

} // namespace

TemporaryFolder::TemporaryFolder() : m_path(FreshPath().wstring())
{
    MakeFolders(m_path);
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

std::wstring TemporaryFolder::operator/(std::wstring_view name) const
{
    return m_path + L"\\" + std::wstring(name);
}

void WriteBytes(const std::wstring& path, std::string_view bytes)
{
    MakeFolders(fs::path(path).parent_path().wstring());
    std::ofstream file(fs::path(path), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush())
    {
        throw std::runtime_error("cannot write " + ToUtf8(path));
    }
}

std::string ReadBytes(const std::wstring& path)
{
    std::ifstream file(fs::path(path), std::ios::binary);
    if (!file)
    {
        throw std::runtime_error("cannot read " + ToUtf8(path));
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool Exists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

void MakeFolders(const std::wstring& path)
{
    if (!path.empty())
    {
        fs::create_directories(path);
    }
}

void CopyTree(const std::wstring& from, const std::wstring& to)
{
    MakeFolders(to);
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

std::vector<std::wstring> FileNames(const std::wstring& folder)
{
    std::vector<std::wstring> names;
    for (const auto& entry : fs::directory_iterator(folder))
    {
        names.push_back(entry.path().filename().wstring());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string ToUtf8(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

std::wstring FromUtf8(std::string_view text)
{
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), size);
    return wide;
}

} // namespace norvepa::test
