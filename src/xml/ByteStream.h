#pragma once

// Bytes that an engine reads like a file.
//
// Callers must: keep the bytes and the stream for longer than the engine that reads them: its references
// don't keep it alive.

#include <windows.h>

#include <algorithm>
#include <objidl.h>
#include <string_view>

namespace norvepa
{

class ByteStream final : public ISequentialStream
{
public:
    explicit ByteStream(std::string_view bytes) noexcept : m_rest(bytes), m_isWide(IsWide(bytes)) {}
    ByteStream(const ByteStream&) = delete;
    ByteStream& operator=(const ByteStream&) = delete;
    virtual ~ByteStream() = default;

    HRESULT WINAPI QueryInterface(REFIID interfaceId, void** object) override
    {
        const bool isOurs = interfaceId == __uuidof(IUnknown) || interfaceId == __uuidof(ISequentialStream);
        *object = isOurs ? static_cast<ISequentialStream*>(this) : nullptr;
        return isOurs ? S_OK : E_NOINTERFACE;
    }
    ULONG WINAPI AddRef() override { return 1; }
    ULONG WINAPI Release() override { return 1; }

    HRESULT WINAPI Read(void* buffer, ULONG size, ULONG* read) override
    {
        const std::string_view piece = NextPiece(size);
        std::copy(piece.begin(), piece.end(), static_cast<char*>(buffer));
        m_rest.remove_prefix(piece.size());
        if (read != nullptr)
        {
            *read = static_cast<ULONG>(piece.size());
        }
        return m_rest.empty() && piece.size() < size ? S_FALSE : S_OK;
    }
    HRESULT WINAPI Write(const void*, ULONG, ULONG*) override { return STG_E_ACCESSDENIED; }

private:
    // A piece of UTF-8 ends behind a character of one byte, if it has any: there are engines that don't put
    // together what lies across two pieces.
    [[nodiscard]] std::string_view NextPiece(std::size_t size) const noexcept
    {
        const std::string_view piece = m_rest.substr(0, size);
        if (m_isWide || piece.size() == m_rest.size())
        {
            return piece;
        }
        const auto last = std::find_if(piece.rbegin(), piece.rend(),
                                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
        return last == piece.rend() ? piece : piece.substr(0, static_cast<std::size_t>(piece.rend() - last));
    }

    // Whether characters have two bytes: by the mark, or else by the first one, which is "<".
    [[nodiscard]] static bool IsWide(std::string_view bytes) noexcept
    {
        const std::string_view begin = bytes.substr(0, 2);
        return begin == "\xFF\xFE" || begin == "\xFE\xFF" || begin.find('\0') != begin.npos;
    }

    std::string_view m_rest;
    bool m_isWide;
};

} // namespace norvepa
