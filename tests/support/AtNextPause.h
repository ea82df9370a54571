#pragma once

// Something that happens while this program waits for something: at its next pause (Sleep), and in the stead
// of it. Later pauses are what they are. One object at a time.

#include "support/ImportHook.h"

#include <functional>

namespace norvepa::test
{

class AtNextPause
{
public:
    explicit AtNextPause(std::function<void()> deed);
    ~AtNextPause();

    [[nodiscard]] bool hasBeen() const;

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
