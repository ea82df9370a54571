#pragma once

// A read that the service does for itself. The three take the same arguments and refuse the same ones; where
// they look is each one's own.

#include "DeviceScene.h"

namespace norvepa::test
{

using InternalReadFunction = Result (*)(const wchar_t* logDevice, const wchar_t* parameter,
                                        std::wstring* value);

template <InternalReadFunction Read>
class InternalRead : public DeviceScene
{
protected:
    // The value, for reads that succeed; "(result N)" for those that don't. What a read leaves alone is
    // "before".
    [[nodiscard]] static std::wstring Value(const wchar_t* parameter, const wchar_t* logDevice = L"Presse")
    {
        std::wstring value = L"before";
        const Result result = Read(logDevice, parameter, &value);
        return result == PGSP_OK ? value : L"(result " + std::to_wstring(result) + L")";
    }

    static void ExpectMissingArgumentsRefused()
    {
        std::wstring value = L"before";

        EXPECT_EQ(Read(nullptr, L"DeviceID", &value), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Read(L"", L"DeviceID", &value), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Read(L"Presse", nullptr, &value), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Read(L"Presse", L"", &value), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Read(L"Presse", L"DeviceID", nullptr), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_EQ(value, L"before");
    }
};

} // namespace norvepa::test
