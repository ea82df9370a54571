#include "trace/TraceStatement.h"

#include "trace/KeepErrno.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <cwchar>

namespace norvepa
{

namespace
{

constexpr std::size_t FormatCapacity = 1024;
constexpr std::size_t SlotBytes = 600;
constexpr std::size_t SlotCount = 5;

// All of these belong to the holder of the trace mutex. The last byte of each is never written, so that
// a reader without the mutex, after a wait that timed out, still finds an end.
constinit std::array<char, FormatCapacity> formatted{};
constinit std::array<std::array<char, SlotBytes>, SlotCount> slots{};
constinit std::size_t slotIndex = 0;

// What no code page takes more bytes for one UTF-16 unit than.
constexpr std::size_t MostBytesPerUnit = 4;

} // namespace

const char* TraceFormat(const char* format, ...) noexcept
{
    const KeepErrno keepErrno;
    std::va_list arguments;
    va_start(arguments, format);
    if (std::vsnprintf(formatted.data(), formatted.size(), format, arguments) < 0)
    {
        formatted[0] = '\0';
    }
    va_end(arguments);
    return formatted.data();
}

const char* TraceToAnsi(const wchar_t* text) noexcept
{
    return TraceToAnsi(text, SlotBytes);
}

const char* TraceToAnsi(const wchar_t* text, std::size_t capacity) noexcept
{
    if (text == nullptr)
    {
        return "";
    }

    slotIndex = (slotIndex + 1) % SlotCount;
    auto& slot = slots[slotIndex];
    slot.fill('\0');

    // More units than the slot has bytes are cut anyway.
    const int length = static_cast<int>(wcsnlen(text, std::min(capacity, SlotBytes - 1)));
    if (length == 0)
    {
        return slot.data();
    }
    std::array<char, (SlotBytes - 1) * MostBytesPerUnit> converted;
    const int bytes = WideCharToMultiByte(CP_ACP, 0, text, length, converted.data(),
                                          static_cast<int>(converted.size()), nullptr, nullptr);
    if (bytes <= 0)
    {
        return "";
    }
    std::copy_n(converted.data(), std::min<std::size_t>(static_cast<std::size_t>(bytes), SlotBytes - 1),
                slot.data());
    return slot.data();
}

} // namespace norvepa
