#pragma once

// Where the store lies. The library looks that up at each call and tells nobody.

#include <string>

namespace norvctl
{

inline constexpr wchar_t LocationsKey[] = L"SOFTWARE\\Marvolt\\Shared Tools\\NorvDOS64";

struct StoreRoot
{
    const char* what;      // for people
    const wchar_t* value;  // of the key above
    int shellFolder;       // where it lies without that value
    const char* shellWord; // and in words
};

extern const StoreRoot DataRoot;
extern const StoreRoot ProgramRoot;

// As the library finds it; empty when it finds none. A path that the registry names need not be there.
[[nodiscard]] std::wstring PathOf(const StoreRoot& root);

[[nodiscard]] bool IsFolder(const std::wstring& path);

} // namespace norvctl
