#pragma once

// The values that the log device "Presse" may offer for a parameter, as its board and its protocol list them,
// and the two exports that tell them.

#include "exports_device/SetScene.h"
#include "support/Answers.h"
#include "support/ListBuffer.h"
#include "support/ProfileFiles.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa::test
{

using ListExport = decltype(&::PGSP_LogDeviceGetAverageEnumListBL) Exports::*;
inline constexpr ListExport MostSpecialized = &Exports::PGSP_LogDeviceGetMostSpecializedEnumListBL;
inline constexpr ListExport Average = &Exports::PGSP_LogDeviceGetAverageEnumListBL;

// What a board or a protocol lists of a parameter.
[[nodiscard]] Catalogue ListOf(std::wstring_view parameter, const Strings& values);

class ListScene : public SetScene
{
protected:
    ListScene(); // writes the log device, with nothing in it but what it names

    [[nodiscard]] std::int32_t Ask(ListExport list, const std::wstring& parameter, ListBuffer& buffer) const;

    // The values, of a buffer with room enough; or "(result N)" alone for a call that fails and has left
    // buffer and length alone.
    [[nodiscard]] Strings ValuesOf(ListExport list, const std::wstring& parameter,
                                   const std::wstring& device = L"Presse") const;
};

// What both exports have in common: MostSpecialized and Average.
class BothLists : public ListScene, public testing::WithParamInterface<ListExport>
{
protected:
    [[nodiscard]] Strings Values(const std::wstring& parameter, const std::wstring& device = L"Presse") const
    {
        return ValuesOf(GetParam(), parameter, device);
    }

    // What becomes of a parameter of which neither the board nor the protocol lists a value.
    [[nodiscard]] static Strings NothingListed()
    {
        return GetParam() == Average ? Strings{Failed(PGSP_ERR_PARAM_NOT_FOUND)} : Strings{};
    }
};

[[nodiscard]] std::string NameOfList(const testing::TestParamInfo<ListExport>& list);

} // namespace norvepa::test
