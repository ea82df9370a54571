#pragma once

// Kernel handles and what hangs on them, owned: each is given back exactly once.
//
// Callers may rely on: an empty owner converts to false, whichever of the two "no handle" values the
// system answered with. Callers must not: close what get() lends.

#include <windows.h>

#include <utility>

namespace norvepa::win
{

class Handle
{
public:
    Handle() noexcept = default;
    explicit Handle(HANDLE handle) noexcept : m_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    Handle(Handle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle()
    {
        if (m_handle != nullptr)
        {
            CloseHandle(m_handle);
        }
    }

    explicit operator bool() const noexcept { return m_handle != nullptr; }
    [[nodiscard]] HANDLE get() const noexcept { return m_handle; }

private:
    HANDLE m_handle = nullptr;
};

// A view of a file mapping. It outlives the mapping's handle.
class MappedView
{
public:
    MappedView() noexcept = default;
    MappedView(const Handle& mapping, DWORD access, SIZE_T bytes) noexcept
        : m_view(mapping ? MapViewOfFile(mapping.get(), access, 0, 0, bytes) : nullptr)
    {
    }
    MappedView(MappedView&& other) noexcept : m_view(std::exchange(other.m_view, nullptr)) {}
    MappedView& operator=(MappedView&& other) noexcept
    {
        std::swap(m_view, other.m_view);
        return *this;
    }
    MappedView(const MappedView&) = delete;
    MappedView& operator=(const MappedView&) = delete;
    ~MappedView()
    {
        if (m_view != nullptr)
        {
            UnmapViewOfFile(m_view);
        }
    }

    explicit operator bool() const noexcept { return m_view != nullptr; }
    [[nodiscard]] void* get() const noexcept { return m_view; }

    // How many bytes from the start are backed by memory, in whole pages. Another process may have made
    // the mapping: shorter than agreed, or with pages only reserved, which fault when touched.
    [[nodiscard]] SIZE_T CommittedBytes() const noexcept
    {
        MEMORY_BASIC_INFORMATION pages{};
        const bool known = VirtualQuery(m_view, &pages, sizeof pages) != 0 && pages.State == MEM_COMMIT;
        return known ? pages.RegionSize : 0;
    }

private:
    void* m_view = nullptr;
};

// A dynamic-link library, loaded for as long as the owner lives.
class Library
{
public:
    Library() noexcept = default;
    explicit Library(HMODULE module) noexcept : m_module(module) {}
    Library(Library&& other) noexcept : m_module(std::exchange(other.m_module, nullptr)) {}
    Library& operator=(Library&& other) noexcept
    {
        std::swap(m_module, other.m_module);
        return *this;
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library()
    {
        if (m_module != nullptr)
        {
            FreeLibrary(m_module);
        }
    }

    explicit operator bool() const noexcept { return m_module != nullptr; }
    [[nodiscard]] HMODULE get() const noexcept { return m_module; }

    // The module, no longer owned.
    [[nodiscard]] HMODULE release() noexcept { return std::exchange(m_module, nullptr); }

    // The export of this name as a function of the given type; null when there is none.
    template <typename Function>
    [[nodiscard]] Function* Export(const char* name) const noexcept
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
    }

private:
    HMODULE m_module = nullptr;
};

} // namespace norvepa::win
