#pragma once

// A call of an export as its frame makes it. What is called within lies below it on the stack, which can't be
// said of two scopes of one function.

#include "frame/CallScope.h"

#include <functional>

namespace norvepa::test
{

inline void Call(const std::function<void(CallScope& call)>& body)
{
    CallScope call;
    body(call);
}

} // namespace norvepa::test
