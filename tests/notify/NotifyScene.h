#pragma once

// Registrations in this process, none at first, and changes announced to them with their workers waited for.

#include "norvepa.h"
#include "support/NamedEvent.h"
#include "support/Workers.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{

class NotifyScene : public testing::Test
{
protected:
    NotifyScene() = default;
    ~NotifyScene() override;

    // Registers an event; for all files of the folder unless one is named. Throws when it is refused.
    static void Register(const wchar_t* folderName, const wchar_t* fileName, const NamedEvent& event);

    // Announces a change and comes back when its worker has ended.
    void Announce(const wchar_t* folderName, const wchar_t* fileName) const;

    // The names of the registered events, in the list's order.
    [[nodiscard]] static std::vector<std::wstring> RegisteredEvents();
    [[nodiscard]] static bool HasList();

    Workers workers;
};

} // namespace norvepa::test
