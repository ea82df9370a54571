#pragma once

// What one would write without the library: the system's engines used for one thing and nothing else.

#include <string>
#include <string_view>

namespace norvepa::bench
{

// One pass of the pull engine to the entry of this name; answers its value.
[[nodiscard]] std::wstring ReadWithXmlLite(const std::wstring& file, const std::wstring& parameter);

// One pass of the pull engine over the whole file; answers the number of its nodes.
[[nodiscard]] std::size_t CountNodesWithXmlLite(const std::wstring& file);

// The whole document loaded, and the entry found by a path.
[[nodiscard]] std::wstring ReadWithMsxml(const std::wstring& file, const std::wstring& parameter);

// The whole document loaded, the entry found by a path, its value replaced, all of it saved.
void WriteWithMsxml(const std::wstring& file, const std::wstring& parameter, const std::wstring& value);

// The schema and the document loaded, all white space kept, and the document validated.
void ValidateWithMsxml(const std::wstring& schema, const std::wstring& namespaceUri,
                       const std::wstring& file);

// The key opened, the value read, the key closed.
[[nodiscard]] std::wstring ReadWithRegistry(const std::wstring& key, const std::wstring& parameter);

[[nodiscard]] std::wstring ReadWithPrivateProfile(const std::wstring& file, const std::wstring& parameter);

// All bytes of the file by one write; and the same, at the end of which they are on the disk.
void OverwriteFile(const std::wstring& file, std::string_view bytes);
void OverwriteFileAndFlush(const std::wstring& file, std::string_view bytes);

} // namespace norvepa::bench
