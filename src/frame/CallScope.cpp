#include "frame/CallScope.h"

#include "win/ThreadPlace.h"

namespace norvepa
{

namespace
{

constinit win::ThreadPlace<CallScope> current;

} // namespace

CallScope::CallScope() noexcept : m_isOutermost(current.Get() == nullptr)
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
