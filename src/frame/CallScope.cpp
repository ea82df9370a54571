#include "frame/CallScope.h"

#include "win/ThreadPlace.h"

#include <functional>

namespace norvepa
{

namespace
{

constinit win::ThreadPlace<CallScope> current;

} // namespace

// A scope around another one lies above the stack's end. One that doesn't has been left by a host that caught
// a fault beyond it, and is no more.
CallScope::CallScope() noexcept
{
    const char stacksEnd{};
    m_isOutermost = !std::less<const void*>()(&stacksEnd, current.Get());
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
