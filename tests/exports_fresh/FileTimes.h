#pragma once

// When a file was written and changed, and how long ago that must be for its times to tell a next change from
// this one.

#include <cstdint>
#include <string>
#include <vector>

namespace norvepa::test
{

struct FileTimes
{
    std::int64_t written; // in 100 ns since 1601
    std::int64_t changed; // contents, times or name
};

// Both throw when the file can't be opened.
[[nodiscard]] FileTimes TimesOf(const std::wstring& path);
void SetWriteTime(const std::wstring& path, std::int64_t written); // which changes it now

// Until the change of each of them lies back so far that nobody has to doubt it. Throws when that takes too
// long.
void AwaitSettled(const std::vector<std::wstring>& paths);

} // namespace norvepa::test
