#pragma once

// What the file system refuses, in words.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace norvctl
{

class FileFailure : public std::runtime_error
{
public:
    // "C:\store\data: access is denied (5)"; without a code that of the system's last error.
    explicit FileFailure(const std::wstring& path);
    FileFailure(const std::wstring& path, std::uint32_t error);
};

} // namespace norvctl
