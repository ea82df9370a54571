#pragma once

// The log device and the log name that are changed here while others read them. Their files are larger than
// what an engine reads or writes in one piece. A text near the beginning is now short and now long, so that
// all behind it moves, and the last entry tells whether the end is there.

#include "support/StoreRoots.h"

#include <string>

namespace norvepa::test
{

inline constexpr wchar_t OurDevice[] = L"Presse";
inline constexpr wchar_t OurName[] = L"Kessel";

inline constexpr wchar_t TextParameter[] = L"Beschreibung";
inline constexpr wchar_t LastParameter[] = L"Ende";
inline constexpr wchar_t LastValue[] = L"steht";
inline constexpr wchar_t NoteParameter[] = L"Notiz"; // comes and goes
inline constexpr wchar_t NoteValue[] = L"bis auf weiteres";

inline constexpr wchar_t OurNetType[] = L"MPI";

// The short one in even rounds, the long one in odd ones.
[[nodiscard]] const std::wstring& TextOfRound(unsigned round);
[[nodiscard]] bool IsATextOfOurs(const std::wstring& text);

// All files of the store, with the text of round 0.
void WriteObjects(const StoreRoots& roots);

// The files of the two as they are with a text.
[[nodiscard]] std::string DeviceFileWith(const std::wstring& text);
[[nodiscard]] std::string NameFileWith(const std::wstring& text);

} // namespace norvepa::test
