#include "frame/PackStringList.h"

#include <algorithm>

namespace norvepa
{

namespace
{

std::uint32_t NeededFor(std::span<const std::wstring> strings)
{
    std::size_t needed = 1;
    for (const std::wstring& string : strings)
    {
        needed += string.size() + 1;
    }
    return static_cast<std::uint32_t>(needed);
}

} // namespace

Packing PackStringList(std::span<const std::wstring> strings, wchar_t* buffer, std::uint32_t capacity)
{
    const std::wstring kept(buffer, std::min<std::size_t>(capacity, KeptCharacters));
    Packing packing{PackOutcome::Packed, 0, NeededFor(strings)};
    for (const std::wstring& string : strings)
    {
        if (capacity - packing.written <= string.size())
        {
            std::copy(kept.begin(), kept.end(), buffer);
            packing.outcome = PackOutcome::TooShort;
            return packing;
        }
        *std::copy(string.begin(), string.end(), buffer + packing.written) = L'\0';
        packing.written += static_cast<std::uint32_t>(string.size() + 1);
    }

    if (packing.written == capacity)
    {
        packing.outcome = PackOutcome::NoRoomForEnd;
        return packing;
    }
    buffer[packing.written] = L'\0';
    return packing;
}

Result NotAllReturned(const ExportFrame& frame, const Packing& packing, std::uint32_t* length,
                      TracePlace place)
{
    *length = packing.needed;
    NORV_TRACE_AT(place, frame, TraceInfo, "Not all values are returned");
    return frame.BufferTooShort(place);
}

Result ReturnStringList(const ExportFrame& frame, std::span<const std::wstring> strings, wchar_t* buffer,
                        std::uint32_t* length, TracePlace place)
{
    const Packing packing = PackStringList(strings, buffer, *length);
    if (packing.outcome == PackOutcome::TooShort)
    {
        return NotAllReturned(frame, packing, length, place);
    }
    if (packing.outcome == PackOutcome::NoRoomForEnd)
    {
        *length = packing.written;
        return frame.BufferTooShort(place);
    }
    *length = packing.written + 1;
    return frame.Ok(place);
}

std::vector<std::wstring> SplitStringList(const wchar_t* list, std::int64_t length)
{
    std::vector<std::wstring> strings;
    for (std::int64_t position = 0; position < length;)
    {
        const std::wstring& string = strings.emplace_back(list + position);
        position += static_cast<std::int64_t>(string.size()) + 1;
    }
    return strings;
}

} // namespace norvepa
