#include "support/ImportHook.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace norvepa::test
{

namespace
{

// A module as it lies in memory.
class Image
{
public:
    explicit Image(HMODULE module) : m_base(reinterpret_cast<BYTE*>(module)) {}

    // The place that holds the address of an imported function.
    [[nodiscard]] void** FindSlot(const char* function) const
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
        throw std::runtime_error(std::string("the module doesn't import ") + function);
    }

private:
    template <typename Type>
    [[nodiscard]] Type* At(DWORD offset) const
    {
        return reinterpret_cast<Type*>(m_base + offset);
    }

    [[nodiscard]] const IMAGE_IMPORT_DESCRIPTOR* FirstLibrary() const
    {
        const auto* headers = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
        return At<IMAGE_IMPORT_DESCRIPTOR>(
            headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
    }

    [[nodiscard]] bool IsNamed(const IMAGE_THUNK_DATA& import, const char* function) const
    {
        return !IMAGE_SNAP_BY_ORDINAL(import.u1.Ordinal) &&
               std::strcmp(At<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(import.u1.AddressOfData))->Name,
                           function) == 0;
    }

    BYTE* m_base;
};

} // namespace

void StoreFunction(void** slot, void* function)
{
    DWORD protection = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = function;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}

ImportHook::ImportHook(const char* function, void* replacement, HMODULE module)
    : m_slot(Image(module).FindSlot(function)), m_original(*m_slot)
{
    StoreFunction(m_slot, replacement);
}

ImportHook::~ImportHook()
{
    StoreFunction(m_slot, m_original);
}

} // namespace norvepa::test
