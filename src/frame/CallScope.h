#pragma once

// One call of an export, from its begin to its end with all that it calls itself, and what it keeps for that
// long: a call looks at each thing once, and sees one state of it.
//
// Callers may rely on: exports that call each other share the outermost one's scope. Outside of an export,
// and on a system that has no place for it, there is none, and everything is looked at each time. Callers
// must not: keep what has to be freed on another thread.

#include "win/RegistryKey.h"

#include <memory>
#include <optional>
#include <string>

namespace norvepa
{

class CallScope
{
public:
    CallScope() noexcept;
    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;
    ~CallScope();

    // Of the calling thread; null when there is none.
    [[nodiscard]] static CallScope* Current() noexcept;

    // What a floor above this one keeps, which alone knows what it is.
    struct Keepsake
    {
        Keepsake() = default;
        Keepsake(const Keepsake&) = delete;
        Keepsake& operator=(const Keepsake&) = delete;
        virtual ~Keepsake() = default;
    };
    std::unique_ptr<Keepsake> images; // xml/CallImages

    // The key of the two roots, opened when it was first wanted; it may not be there.
    std::optional<win::RegistryKey> locationsKey;

    // The roots, while a walk has them stand (see StandingRoots).
    bool rootsStand = false;
    std::optional<std::wstring> dataFolder;
    std::optional<std::wstring> programFolder;

private:
    bool m_isOutermost = false;
};

// When the module goes.
void FreeCallScopes() noexcept;

} // namespace norvepa
