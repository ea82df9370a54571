#pragma once

// A folder of this test's own, gone with all it holds when the object goes; and the file helpers that
// tests set their scenes with. All throw when the file system refuses.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa::test
{

class TemporaryFolder
{
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    [[nodiscard]] const std::wstring& path() const { return m_path; } // absolute, no trailing backslash
    [[nodiscard]] std::wstring operator/(std::wstring_view name) const;

private:
    std::wstring m_path;
};

void WriteBytes(const std::wstring& path, std::string_view bytes); // makes the folders on the way
[[nodiscard]] std::string ReadBytes(const std::wstring& path);
[[nodiscard]] bool Exists(const std::wstring& path);
void MakeFolders(const std::wstring& path);
void CopyTree(const std::wstring& from, const std::wstring& to);
[[nodiscard]] std::vector<std::wstring> FileNames(const std::wstring& folder); // sorted

[[nodiscard]] std::string ToUtf8(std::wstring_view text);
[[nodiscard]] std::wstring FromUtf8(std::string_view text);

} // namespace norvepa::test
