#pragma once

// One method of the pull engine, for all engines of the process, that does nothing but answer a code for as
// long as the object lives. What the engine calls itself by its own names is its affair.

#include "support/ImportHook.h"

#include <windows.h>
#include <wrl/client.h>
#include <xmllite.h>

#include <array>
#include <bit>
#include <cstddef>
#include <stdexcept>

namespace norvepa::test
{

// Of a method, from the begin of the engine's table.
template <typename Interface, typename... Arguments>
[[nodiscard]] std::size_t SlotOf(HRESULT (STDMETHODCALLTYPE Interface::*method)(Arguments...))
{
    return (std::bit_cast<std::array<std::size_t, 2>>(method)[0] - 1) / sizeof(void*);
}

class EngineMethod
{
public:
    EngineMethod(std::size_t slot, HRESULT answer)
    {
        Microsoft::WRL::ComPtr<IXmlReader> any;
        if (FAILED(
                CreateXmlReader(__uuidof(IXmlReader), reinterpret_cast<void**>(any.GetAddressOf()), nullptr)))
        {
            throw std::runtime_error("no engine");
        }
        status = answer;
        m_slot = *reinterpret_cast<void***>(any.Get()) + slot;
        m_original = *m_slot;
        StoreFunction(m_slot, reinterpret_cast<void*>(&Answer));
    }
    EngineMethod(const EngineMethod&) = delete;
    EngineMethod& operator=(const EngineMethod&) = delete;
    ~EngineMethod() { StoreFunction(m_slot, m_original); }

private:
    // Whatever the arguments are: the caller clears them away.
    static HRESULT STDMETHODCALLTYPE Answer() { return status; }

    static inline HRESULT status = S_OK;
    void** m_slot;
    void* m_original;
};

} // namespace norvepa::test
