#pragma once

// A path that is composed for one question and then forgotten. It is held in place, because the heap has one
// lock for all threads of the process: what is answered from memory is answered without it.
//
// Callers may rely on: there is no limit; what is longer than any path of the store goes to the heap after
// all.

#include "frame/StoreLocations.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace norvepa
{

class PathText
{
public:
    PathText() noexcept = default;
    explicit PathText(std::wstring_view text) { Append(text); }
    PathText(const PathText&) = delete;
    PathText& operator=(const PathText&) = delete;
    ~PathText() = default;

    void Append(std::wstring_view text)
    {
        if (m_overlong.empty() && text.size() <= m_room.size() - m_size)
        {
            std::copy(text.begin(), text.end(), m_room.begin() + m_size);
            m_size += text.size();
            return;
        }
        if (m_overlong.empty())
        {
            m_overlong.assign(m_room.data(), m_size);
        }
        m_overlong += text;
    }

    [[nodiscard]] std::wstring_view view() const noexcept
    {
        return m_overlong.empty() ? std::wstring_view(m_room.data(), m_size) : std::wstring_view(m_overlong);
    }

private:
    static constexpr std::size_t ExtensionSize = 4;

    std::array<wchar_t, PathCapacity + ExtensionSize> m_room;
    std::size_t m_size = 0;  // in the room
    std::wstring m_overlong; // the whole text instead, once it is longer than the room
};

} // namespace norvepa
