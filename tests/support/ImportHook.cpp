#include "support/ImportHook.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace norvepa::test
{

namespace
{

BYTE* Base()
{
    return reinterpret_cast<BYTE*>(GetModuleHandleW(nullptr));
}

template <typename Type>
Type* At(DWORD offset)
{
    return reinterpret_cast<Type*>(Base() + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* FirstLibrary()
{
    const auto* headers = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    return At<IMAGE_IMPORT_DESCRIPTOR>(
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
}

bool IsNamed(const IMAGE_THUNK_DATA& import, const char* function)
{
    return !IMAGE_SNAP_BY_ORDINAL(import.u1.Ordinal) &&
           std::strcmp(At<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(import.u1.AddressOfData))->Name,
                       function) == 0;
}

void** FindSlot(const char* function)
{
    for (const auto* library = FirstLibrary(); library->Name != 0; ++library)
    {
        const auto* name = At<IMAGE_THUNK_DATA>(library->OriginalFirstThunk);
        auto* slot = At<void*>(library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot)
        {
            if (IsNamed(*name, function))
            {
                return slot;
            }
        }
    }
    throw std::runtime_error(std::string("this program doesn't import ") + function);
}

void Store(void** slot, void* function)
{
    DWORD protection = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = function;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}

} // namespace

ImportHook::ImportHook(const char* function, void* replacement)
    : m_slot(FindSlot(function)), m_original(*m_slot)
{
    Store(m_slot, replacement);
}

ImportHook::~ImportHook()
{
    Store(m_slot, m_original);
}

} // namespace norvepa::test
