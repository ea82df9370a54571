#pragma once

// A string of COM, owned.
//
// Callers may rely on: a null string reads as the empty text. Making one throws std::bad_alloc when memory
// runs out.

#include <windows.h>
#include <oleauto.h>

#include <new>
#include <string_view>
#include <utility>

namespace norvepa
{

class Bstr
{
public:
    Bstr() noexcept = default;
    explicit Bstr(std::wstring_view text)
        : m_text(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())))
    {
        if (m_text == nullptr)
        {
            throw std::bad_alloc();
        }
    }
    Bstr(Bstr&& other) noexcept : m_text(std::exchange(other.m_text, nullptr)) {}
    Bstr& operator=(Bstr&& other) noexcept
    {
        std::swap(m_text, other.m_text);
        return *this;
    }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(m_text); }

    [[nodiscard]] BSTR get() const noexcept { return m_text; }
    [[nodiscard]] std::wstring_view view() const noexcept { return {m_text, SysStringLen(m_text)}; }

    // For a call that hands a string out; what was held before is freed.
    [[nodiscard]] BSTR* out() noexcept
    {
        SysFreeString(std::exchange(m_text, nullptr));
        return &m_text;
    }

    // The string as an argument, lent for the length of a call.
    [[nodiscard]] VARIANT asVariant() const noexcept
    {
        VARIANT variant = {};
        variant.vt = VT_BSTR;
        variant.bstrVal = m_text;
        return variant;
    }

private:
    BSTR m_text = nullptr;
};

} // namespace norvepa
