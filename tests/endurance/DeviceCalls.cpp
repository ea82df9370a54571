#include "endurance/Calls.h"

#include <windows.h>

#include <array>
#include <string>
#include <string_view>

namespace norvepa::test
{

namespace
{

// Temporary log devices are for all calls to use, but a few are enough: more of them would only slow down the
// enumerations, and take all the numbers in the end.
constexpr std::wstring_view Kept = L"PGSP_TEMP_LOG_DEVICE____001";
constexpr std::array PiledUp{
    L"PGSP_TEMP_LOG_DEVICE____002", L"PGSP_TEMP_LOG_DEVICE____003", L"PGSP_TEMP_LOG_DEVICE____004",
    L"PGSP_TEMP_LOG_DEVICE____005", L"PGSP_TEMP_LOG_DEVICE____006", L"PGSP_TEMP_LOG_DEVICE____007",
    L"PGSP_TEMP_LOG_DEVICE____008", L"PGSP_TEMP_LOG_DEVICE____009",
};

// Makes one by `Function`. A copy whose name didn't fit the buffer is there too, and nobody knows which it
// is.
template <auto Function, const Words& Originals>
std::int32_t MakeTemporary(Draw& any, const Exports& library)
{
    const wchar_t* const original = any.Of(Originals);
    Room& name = any.Output();
    const std::int32_t result = (library.*Function)(original, name.data(), name.length());
    if (result == PGSP_OK && name.data() > Kept)
    {
        library.LogDeviceDelTempBL(name.data());
    }
    if (result == PGSP_ERR_BUFFER_TOO_SHORT)
    {
        for (const wchar_t* const temporary : PiledUp)
        {
            library.LogDeviceDelTempBL(temporary);
        }
    }
    return result;
}

constexpr std::uint32_t NoSuchPiece = 0xFFFFFFFF; // to ask for it ends a transfer

// Reads some pieces of a file from the first on, or one that nobody has asked for; most readers then make an
// end.
std::int32_t HandOut(Draw& any, const Exports& library)
{
    constexpr std::array kinds{&LogNames, &LogNames, &Devices, &Boards, &Templates, &Protocols, &Devices};
    const std::uint32_t client = any.Below(2);
    const std::uint32_t kind = any.Below(static_cast<std::uint32_t>(kinds.size()));
    const wchar_t* const name = any.Of(*kinds.at(kind));
    const std::uint32_t pieces = any.Below(30);
    const bool makesAnEnd = any.Below(16) != 0;
    Room& piece = any.Output();
    const auto ask = [&](std::uint32_t index) {
        return library.LogDeviceGetXmlBL(client, static_cast<std::uint16_t>(kind), name, index, piece.bytes(),
                                         piece.length());
    };

    std::uint32_t index = any.Below(8) == 0 ? any.Index() : 0;
    std::int32_t result = ask(index);
    while (result == PGSP_ERR_BUFFER_TOO_SHORT && index < pieces)
    {
        result = ask(++index);
    }
    if (makesAnEnd)
    {
        ask(NoSuchPiece);
    }
    return result;
}

std::int32_t ReadForDriver(Draw& any, const Exports& library)
{
    std::uint8_t* records = nullptr;
    std::uint32_t length = 0;
    const std::int32_t result = library.norvDriverReadLogDevice(
        any.Of(Devices), any.Below(20) == 0 ? nullptr : &records, any.Below(20) == 0 ? nullptr : &length);
    GlobalFree(records);
    return result;
}

using Device = One<Devices>;
using Parameter = One<Parameters>;
using Value = One<Values>;
using Section = One<Sections>;

constexpr Call Calls[] = {
    {"LogDeviceCopyBL", Make<&Exports::LogDeviceCopyBL, Device, Device>},
    {"LogDeviceCreateFromDefBL", Make<&Exports::LogDeviceCreateFromDefBL, One<Templates>, Device>},
    {"LogDeviceCreateTempBL", MakeTemporary<&Exports::LogDeviceCreateTempBL, Devices>},
    {"LogDeviceCreateTempFromDefBL", MakeTemporary<&Exports::LogDeviceCreateTempFromDefBL, Templates>},
    {"LogDeviceDelBL", Make<&Exports::LogDeviceDelBL, Device, Flag>},
    {"LogDeviceDelTempBL", Make<&Exports::LogDeviceDelTempBL, Device>},
    {"LogDeviceDelValueBL", Make<&Exports::LogDeviceDelValueBL, Device, Parameter>},
    {"LogDeviceDelVmdIdBL", Make<&Exports::LogDeviceDelVmdIdBL, Device>},
    {"LogDeviceExistBL", Make<&Exports::LogDeviceExistBL, Device, Flag>},
    {"LogDeviceGetAsicTypeBL", Make<&Exports::LogDeviceGetAsicTypeBL, Device, Output>},
    {"LogDeviceGetEnumBL", Make<&Exports::LogDeviceGetEnumBL, One<Protocols>, Index, Output>},
    {"LogDeviceGetEnumByDeviceIdBL",
     Make<&Exports::LogDeviceGetEnumByDeviceIdBL, One<Boards>, Index, Output, Output>},
    {"LogDeviceGetEnumValueBL", Make<&Exports::LogDeviceGetEnumValueBL, Device, Index, Output, Output>},
    {"LogDeviceGetParamDescBL",
     Make<&Exports::LogDeviceGetParamDescBL, Device, Parameter, One<Constraints>, Output>},
    {"LogDeviceGetValueBL", Make<&Exports::LogDeviceGetValueBL, Device, Parameter, Output>},
    {"LogDeviceGetValueExBL", Make<&Exports::LogDeviceGetValueExBL, Device, Section, Parameter, Output>},
    {"LogDeviceGetValueListBL",
     Make<&Exports::LogDeviceGetValueListBL, Device, Section, Names<std::int32_t>, Output>},
    {"LogDeviceGetXmlBL", HandOut},
    {"LogDeviceSetBusparamsBL", Make<&Exports::LogDeviceSetBusparamsBL, Device, One<Speeds>>},
    {"LogDeviceSetValueBL", Make<&Exports::LogDeviceSetValueBL, Device, Parameter, Value>},
    {"LogDeviceUpdateWithTempBL", Make<&Exports::LogDeviceUpdateWithTempBL, Device, Device>},
    {"PGSP_GetLogDeviceListBL", Make<&Exports::PGSP_GetLogDeviceListBL, Output>},
    {"PGSP_GetLogDeviceListExBL", Make<&Exports::PGSP_GetLogDeviceListExBL, Parameter, Value, Index, Output>},
    {"PGSP_LogDeviceDelNdiBL", Make<&Exports::PGSP_LogDeviceDelNdiBL, Device, Parameter, Flag>},
    {"PGSP_LogDeviceEnumNdiValueBL",
     Make<&Exports::PGSP_LogDeviceEnumNdiValueBL, Device, Index, Output, Output, Flag>},
    {"PGSP_LogDeviceGetAverageEnumListBL",
     Make<&Exports::PGSP_LogDeviceGetAverageEnumListBL, Device, Parameter, Output>},
    {"PGSP_LogDeviceGetMostSpecializedEnumListBL",
     Make<&Exports::PGSP_LogDeviceGetMostSpecializedEnumListBL, Device, Parameter, Output>},
    {"PGSP_LogDeviceGetNdiBL", Make<&Exports::PGSP_LogDeviceGetNdiBL, Device, Parameter, Output, Flag>},
    {"PGSP_LogDeviceGetResourceStringBL",
     Make<&Exports::PGSP_LogDeviceGetResourceStringBL, Device, One<Links>, One<Languages>, Output, Flag>},
    {"PGSP_LogDeviceSetNdiBL", Make<&Exports::PGSP_LogDeviceSetNdiBL, Device, Parameter, Value, Flag>},
    {"PGSP_LogDeviceSetProfileRBL",
     Make<&Exports::PGSP_LogDeviceSetProfileRBL, Device, One<Protocols>, One<BusParameters>>},
    {"norvDriverReadLogDevice", ReadForDriver},
};

} // namespace

std::span<const Call> DeviceCalls()
{
    return Calls;
}

std::vector<Call> AllCalls()
{
    std::vector<Call> all;
    for (const std::span<const Call> family : {DeviceCalls(), CatalogueCalls(), NameCalls()})
    {
        all.insert(all.end(), family.begin(), family.end());
    }
    return all;
}

} // namespace norvepa::test
