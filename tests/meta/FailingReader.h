#pragma once

// A pull engine that fails to tell one part of one attribute, as a real one does only when it is broken.
// Every reader that is made while an object lives is such a one; what it isn't told to fail at, the real
// engine does.

#include "support/ImportHook.h"

#include <xmllite.h>

#include <string>

namespace norvepa::test
{

enum class AttributePart
{
    Prefix,
    Name,
    Value,
};

class FailingReader
{
public:
    FailingReader(AttributePart part, std::wstring attribute);

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
