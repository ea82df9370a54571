#pragma once

// Where the store lies: its two roots, how paths below them are composed, and the two rules by which a
// path gets its extension.
//
// Callers may rely on: nothing is cached; each question asks the registry, by a key that stays open for the
// call of an export, then the shell. Callers must not: take a root for an existing folder; a root named by
// the registry is believed.

#include <string>
#include <string_view>

namespace norvepa
{

class CallScope;
class PathText;

// A path is held with its terminator in this many characters; what is longer is refused.
inline constexpr std::size_t PathCapacity = 260;

// The root of what users and tools change, and of what is shipped and only read. Empty when not found.
[[nodiscard]] std::wstring GetDataFolder();
[[nodiscard]] std::wstring GetProgramFolder();

// Has both roots stand for the rest of an export's call: a walk over a thousand log devices asks for them
// once.
class StandingRoots
{
public:
    StandingRoots() noexcept;
    StandingRoots(const StandingRoots&) = delete;
    StandingRoots& operator=(const StandingRoots&) = delete;
    ~StandingRoots();

private:
    CallScope* m_call; // whose roots stand because of this object; null for no call's
};

// `first`, a backslash, `second`; without the backslash when either is empty.
[[nodiscard]] std::wstring JoinPath(std::wstring_view first, std::wstring_view second);

[[nodiscard]] std::wstring MakeStoreFolder(std::wstring_view root, std::wstring_view middle,
                                           std::wstring_view leaf);

// Appends ".xml" unless the path holds it anywhere, folders included. Exact case.
void ExtendByAnywhereRule(std::wstring& path);
void ExtendByAnywhereRule(PathText& path);

// Appends ".xml" unless the first one in the path is its end. Exact case.
void ExtendByEndRule(std::wstring& path);

} // namespace norvepa
