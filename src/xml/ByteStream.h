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
    explicit ByteStream(std::string_view bytes) noexcept : m_rest(bytes) {}
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
        const std::string_view piece = m_rest.substr(0, size);
        std::copy(piece.begin(), piece.end(), static_cast<char*>(buffer));
        m_rest.remove_prefix(piece.size());
        if (read != nullptr)
        {
            *read = static_cast<ULONG>(piece.size());
        }
        return piece.size() == size ? S_OK : S_FALSE;
    }
    HRESULT WINAPI Write(const void*, ULONG, ULONG*) override { return STG_E_ACCESSDENIED; }

private:
    std::string_view m_rest;
};

} // namespace norvepa
