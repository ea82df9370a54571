#pragma once

// Numbers that whoever starts a test gives it by the environment.

#include <cstdlib>

namespace norvepa::test
{

[[nodiscard]] inline unsigned long long FromEnvironment(const char* name, unsigned long long otherwise)
{
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

} // namespace norvepa::test
