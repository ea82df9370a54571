#pragma once

// Text in place, for a client that may not allocate: it runs where nothing may fail.
//
// Callers may rely on: what doesn't fit is cut; the text is always terminated, whatever another thread
// does to it meanwhile (the trace mutex can be missing): the last byte is never written.

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio> // has each compiler's word for the formats of its printf
#include <string_view>

namespace norvepa
{

template <std::size_t Capacity>
class FixedText
{
public:
    constexpr FixedText() noexcept = default;
    constexpr FixedText(std::string_view text) noexcept { Append(text); }
    constexpr FixedText(const char* text) noexcept { Append(text); }

    constexpr void Append(std::string_view text) noexcept
    {
        const std::size_t begin = view().size();
        const std::size_t count = std::min(text.size(), Capacity - begin);
        std::copy_n(text.begin(), count, m_text.begin() + begin);
        m_text[begin + count] = '\0';
    }

    // False when something had to be cut.
    [[gnu::format(__MINGW_PRINTF_FORMAT, 2, 3)]] bool Print(const char* format, ...) noexcept
    {
        std::va_list arguments;
        va_start(arguments, format);
        const int length = std::vsnprintf(m_text.data(), m_text.size(), format, arguments);
        va_end(arguments);
        return length >= 0 && static_cast<std::size_t>(length) <= Capacity;
    }

    [[nodiscard]] constexpr const char* c_str() const noexcept { return m_text.data(); }
    [[nodiscard]] constexpr char* data() noexcept { return m_text.data(); } // Capacity characters
    [[nodiscard]] constexpr std::string_view view() const noexcept
    {
        const auto end = std::find(m_text.begin(), m_text.begin() + Capacity, '\0');
        return {m_text.data(), static_cast<std::size_t>(end - m_text.begin())};
    }

private:
    std::array<char, Capacity + 1> m_text{};
};

} // namespace norvepa
