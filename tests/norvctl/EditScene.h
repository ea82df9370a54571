#pragma once

#include "support/Norvctl.h"

#include <string>

namespace norvepa::test
{

inline const std::wstring First = L"PGSP_TEMP_LOG_DEVICE____000";

// Kesselhaus and a temporary copy of it, with another baud rate.
class NorvctlEdit : public Norvctl
{
protected:
    static void BeginAndChange()
    {
        OutputOfNorvctl({L"device", L"edit", L"begin", L"Kesselhaus"});
        OutputOfNorvctl({L"device", L"set", First, L"baudrate", L"187500"});
    }

    static std::string Baudrate(const std::wstring& device)
    {
        return OutputOfNorvctl({L"device", L"get", device, L"baudrate"});
    }

    static ProgramEnd Apply(const std::wstring& device)
    {
        return RunNorvctl({L"device", L"edit", L"apply", First, device});
    }

    [[nodiscard]] bool IsTemporaryThere() const { return Exists(LogDevicePath(First)); }
};

} // namespace norvepa::test
