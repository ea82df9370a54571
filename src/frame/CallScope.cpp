#include "frame/CallScope.h"

#include "win/ThreadPlace.h"

#include <functional>

namespace norvepa
{

namespace
{

constinit win::ThreadPlace<CallScope> current;

} // namespace

namespace
{

// A scope around another one lies above it on the stack. One that doesn't has been left by a host that caught
// a fault beyond it, and is no more.
bool IsAround(const CallScope* outer, const CallScope* inner) noexcept
{
    return std::less<>()(inner, outer);
}

} // namespace

CallScope::CallScope() noexcept : m_isOutermost(!IsAround(current.Get(), this))
{
    if (m_isOutermost)
    {
        current.Set(this);
    }
}

CallScope::~CallScope()
{
    if (m_isOutermost)
    {
        current.Set(nullptr);
    }
}

CallScope* CallScope::Current() noexcept
{
    return current.Get();
}

void FreeCallScopes() noexcept
{
    current.LetGo();
}

} // namespace norvepa
