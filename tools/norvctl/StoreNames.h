#pragma once

// Names of files and folders below the data root, as a backup keeps them: relative, parts divided by
// backslashes.

#include <string>
#include <string_view>

namespace norvctl
{

// As the file system tells names apart: without regard to case.
struct NameOrder
{
    using is_transparent = void;
    bool operator()(std::wstring_view left, std::wstring_view right) const;
};

// Why a backup can't keep a file of this name and no restore makes one, in words; empty when nothing is
// wrong. A name of which nothing is wrong leads nowhere but below the root.
[[nodiscard]] std::string WhyRefused(std::wstring_view name);

// What the library may leave behind of a file in the making, when its process has ended in the midst of it,
// and a restore likewise: no file of the store.
[[nodiscard]] bool IsLeftOver(std::wstring_view name);

[[nodiscard]] std::wstring_view ParentOf(std::wstring_view name); // empty for what lies in the root itself
[[nodiscard]] std::wstring_view LastPartOf(std::wstring_view name);

} // namespace norvctl
