#pragma once

// A store of this test's own with a log device "Presse", asked from inside of the library.

#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "support/DeviceStore.h"

#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{

class DeviceScene : public testing::Test
{
protected:
    DeviceScene() { store.WriteDevice(L"Presse", {}); }

    // What the catalogue says, for words that it has; "(result N)" for others.
    [[nodiscard]] static std::wstring Constraint(const wchar_t* parameter, const wchar_t* word,
                                                 const wchar_t* logDevice = L"Presse")
    {
        std::wstring value;
        const Result result = LogDeviceGetConstraint(logDevice, parameter, word, &value);
        return result == PGSP_OK ? value : L"(result " + std::to_wstring(result) + L")";
    }

    // Whether a value passes; what it was replaced by isn't looked at.
    [[nodiscard]] static Result Check(const wchar_t* parameter, std::wstring value,
                                      const wchar_t* logDevice = L"Presse")
    {
        return LogDeviceCheckValue(logDevice, parameter, &value);
    }

    // What is to be stored, for values that pass; "(result N)" for others.
    [[nodiscard]] static std::wstring Checked(const wchar_t* parameter, std::wstring value)
    {
        const Result result = LogDeviceCheckValue(L"Presse", parameter, &value);
        return result == PGSP_OK ? value : L"(result " + std::to_wstring(result) + L")";
    }

    StoreRoots roots;
    const DeviceStore store{roots};
};

} // namespace norvepa::test
