#pragma once

// What the two reads of links answered.

#include "store/ReadScene.h"

#include <ostream>
#include <string>

namespace norvepa::test
{

// The values of `wide`.
inline constexpr int In64 = 0;
inline constexpr int In32 = 1;

struct ResourceAnswer
{
    Result result;
    std::wstring assembly;
    std::wstring path;
    std::wstring resourceId;
    std::wstring nameSpace;

    bool operator==(const ResourceAnswer&) const = default;
};

void PrintTo(const ResourceAnswer& answer, std::ostream* out);

struct LinkAnswer
{
    Result result;
    std::wstring assembly;
    std::wstring path;
    std::wstring function;

    bool operator==(const LinkAnswer&) const = default;
};

void PrintTo(const LinkAnswer& answer, std::ostream* out);

[[nodiscard]] ResourceAnswer GetAssemblyLink(const std::wstring& file, const wchar_t* resourceName,
                                             int wide = In64);
[[nodiscard]] LinkAnswer GetParameterAssemblyLink(const std::wstring& file, const wchar_t* parameter,
                                                  int wide = In64);

[[nodiscard]] LinkAnswer LinkNotFound(); // and the outputs are empty

} // namespace norvepa::test
