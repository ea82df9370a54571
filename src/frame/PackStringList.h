#pragma once

// A list of strings in one caller's buffer: each with its terminator, and one more behind the last.
//
// What becomes of the length, and which result an edge has, differs from export to export on purpose: each
// shows that itself, but for those that have no edge of their own. In a length, terminators count here,
// unlike in the output rule.

#include "frame/ExportFrame.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace norvepa
{

enum class PackOutcome
{
    Packed,
    NoRoomForEnd, // every string is there, but not the terminator behind the last
    TooShort      // not every string fits
};

struct Packing
{
    PackOutcome outcome;
    std::uint32_t written; // characters, terminators included, without that behind the last
    std::uint32_t needed;  // for all strings and that terminator
};

// What a list that is too long leaves as it was at the buffer's start, in characters.
inline constexpr std::size_t KeptCharacters = 260;

// Packs into a buffer of `capacity` characters. TooShort: the first KeptCharacters of the buffer are as they
// were, what is behind them may have changed.
[[nodiscard]] Packing PackStringList(std::span<const std::wstring> strings, wchar_t* buffer,
                                     std::uint32_t capacity);

// The exit of a packing that is TooShort: PGSP_ERR_BUFFER_TOO_SHORT, with `*length` set to what is needed.
[[nodiscard]] Result NotAllReturned(const ExportFrame& frame, const Packing& packing, std::uint32_t* length,
                                    TracePlace place = TracePlace::current());

// Packs and leaves, as exports without an edge of their own do: a list without room for its end is too short
// as well, with `*length` set to what was written.
[[nodiscard]] Result ReturnStringList(const ExportFrame& frame, std::span<const std::wstring> strings,
                                      wchar_t* buffer, std::uint32_t* length,
                                      TracePlace place = TracePlace::current());

// The strings of a caller's list whose characters, terminators included, count `length`: a length that counts
// a terminator behind the last brings an empty string. None for a negative length.
[[nodiscard]] std::vector<std::wstring> SplitStringList(const wchar_t* list, std::int64_t length);

} // namespace norvepa
