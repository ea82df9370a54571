#pragma once

// The blocks of memory that a module has asked for itself and still has, without those of the engines that it
// uses. One object at a time, made ahead of the first call, and gone before the module is.

#include "support/ImportHook.h"

#include <windows.h>

#include <cstdint>

namespace norvepa::test
{

class OwnBlocks
{
public:
    explicit OwnBlocks(HMODULE module);
    OwnBlocks(const OwnBlocks&) = delete;
    OwnBlocks& operator=(const OwnBlocks&) = delete;

    // Beside those that it had when the object was made.
    [[nodiscard]] std::int64_t count() const;

private:
    ImportHook m_malloc;
    ImportHook m_calloc;
    ImportHook m_realloc;
    ImportHook m_free;
};

} // namespace norvepa::test
