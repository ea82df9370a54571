#pragma once

// The sample store as a C++ program has it that links the library and includes norvepa.hpp. The library stays
// loaded from test to test, and what it remembers of the catalogue for good it may remember by names: files
// that a test makes beside the sample's have names that no other test uses.

#include "norvepa.hpp"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>
#include <ostream>
#include <string>

namespace norvepa
{

inline void PrintTo(const Parameter& parameter, std::ostream* stream)
{
    *stream << test::ToUtf8(parameter.name) << "=" << test::ToUtf8(parameter.value);
}

} // namespace norvepa

namespace norvepa::test
{

class WrapperScene : public testing::Test
{
protected:
    WrapperScene() { roots.FillWithSampleStore(); }
    ~WrapperScene() override { NorvepaBl64x_deinit(); } // lets go of the store's folder

    // The libraries that the links to texts name, German and English.
    void LayOutTexts() const { CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), roots.program() + L"\\bin"); }

    void TakeDataFolderAway() const { DeleteMachineValue(LocationsKey, L"Corvane_Oam_Data"); }
    void TakeProgramFolderAway() const { DeleteMachineValue(LocationsKey, L"Corvane_Oam"); }

    StoreRoots roots;
};

inline const LogDevice Boiler{L"Kesselhaus"};
inline const LogDevice Missing{L"gone"};

// A text that takes more room than is offered at first. Not of umlauts alone: see docs/windows-and-wine.md.
inline const std::wstring LongText = [] {
    std::wstring text;
    for (int i = 0; i < 5'000; ++i)
    {
        text += L"\u00E4x";
    }
    return text;
}();

// The code of a call that is to fail, and 0 for one that hasn't.
template <typename Value>
[[nodiscard]] std::int32_t CodeOf(const Result<Value>& result)
{
    return result.has_value() ? 0 : result.error().code();
}

} // namespace norvepa::test
