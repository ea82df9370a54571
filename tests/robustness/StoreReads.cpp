#include "Questions.h"
#include "norvepa.h"

#include <windows.h>

#include <algorithm>

namespace norvepa::test
{

namespace
{

// Of the exports that empty a buffer ahead of everything else.
Outputs Emptied(std::wstring Outputs::*buffer)
{
    Outputs outputs;
    (outputs.*buffer)[0] = L'\0';
    return outputs;
}

// A log name's file in one piece, whose length is told in bytes.
std::int32_t ReadFile(Outputs& outputs)
{
    constexpr std::uint32_t client = 7;
    std::uint32_t length = Outputs::Capacity * sizeof(wchar_t);
    const std::int32_t result = LogDeviceGetXmlBL(
        client, 1, L"Pumpe", 0, reinterpret_cast<std::uint8_t*>(outputs.first.data()), &length);
    outputs.firstLength = result == PGSP_OK ? length / sizeof(wchar_t) : outputs.firstLength;
    return result;
}

std::int32_t ReadForDriver(Outputs& outputs)
{
    std::uint8_t* records = nullptr;
    std::uint32_t length = 0;
    const std::int32_t result = norvDriverReadLogDevice(L"Presse", &records, &length);
    if (result == PGSP_OK)
    {
        outputs.firstLength = length;
        std::copy_n(records, std::min<std::size_t>(length, Outputs::Capacity), outputs.first.begin());
        GlobalFree(records);
    }
    return result;
}

} // namespace

const std::vector<Question>& StoreReads()
{
    static const std::vector<Question> all{
        {"LogNameExistBL", [](Outputs&) { return LogNameExistBL(L"Pumpe", 0); }},
        {"LogNameGetEnumBL", [](Outputs& o) { return LogNameGetEnumBL(0, o.first.data(), &o.firstLength); }},
        {"LogNameGetLogDeviceBL",
         [](Outputs& o) { return LogNameGetLogDeviceBL(L"Pumpe", o.first.data(), &o.firstLength); }},
        {"LogNameGetValueBL",
         [](Outputs& o) { return LogNameGetValueBL(L"Pumpe", L"Ort", o.first.data(), &o.firstLength); }},
        {"LogNameGetEnumValueBL",
         [](Outputs& o) {
             return LogNameGetEnumValueBL(L"Pumpe", 1, o.first.data(), &o.firstLength, o.second.data(),
                                          &o.secondLength);
         }},
        {"LogNameGetValueListBL",
         [](Outputs& o) {
             return LogNameGetValueListBL(L"Pumpe", L"", L"Ort", 4, o.first.data(), &o.firstLength);
         }},
        {"LogDeviceGetEnumBL",
         [](Outputs& o) { return LogDeviceGetEnumBL(L"MPI", 0, o.first.data(), &o.firstLength); }},
        {"LogDeviceGetEnumValueBL",
         [](Outputs& o) {
             return LogDeviceGetEnumValueBL(L"Presse", 1, o.first.data(), &o.firstLength, o.second.data(),
                                            &o.secondLength);
         }},
        {"LogDeviceGetEnumByDeviceIdBL",
         [](Outputs& o) {
             return LogDeviceGetEnumByDeviceIdBL(L"AFK110", 1, o.first.data(), &o.firstLength,
                                                 o.second.data(), &o.secondLength);
         }},
        {"LogDeviceGetXmlBL", ReadFile},
        {"norvDriverReadLogDevice", ReadForDriver},
        {"LogDeviceExistBL", [](Outputs&) { return LogDeviceExistBL(L"Presse", 0); }},
        {"LogDeviceExistBLOfASubdevice",
         [](Outputs&) { return LogDeviceExistBL(L"Presse\\subdevices\\Achse", 0); }},
        {"LogDeviceGetValueBL",
         [](Outputs& o) { return LogDeviceGetValueBL(L"Presse", L"Stufe", o.first.data(), &o.firstLength); }},
        {"LogDeviceGetValueBLOfADefault",
         [](Outputs& o) {
             return LogDeviceGetValueBL(L"Presse", L"baudrate", o.first.data(), &o.firstLength);
         }},
        {"LogDeviceGetValueBLOfASubdevice",
         [](Outputs& o) {
             return LogDeviceGetValueBL(L"Presse\\subdevices\\Achse", L"Weg", o.first.data(), &o.firstLength);
         }},
        {"LogDeviceGetValueExBL",
         [](Outputs& o) {
             return LogDeviceGetValueExBL(L"Presse", L"LocalSettings", L"Ort", o.first.data(),
                                          &o.firstLength);
         }},
        {"LogDeviceGetValueListBL",
         [](Outputs& o) {
             return LogDeviceGetValueListBL(L"Presse", L"LocalSettings", L"Ort\0Stufe", 10, o.first.data(),
                                            &o.firstLength);
         }},
        {"PGSP_LogDeviceEnumNdiValueBL",
         [](Outputs& o) {
             return PGSP_LogDeviceEnumNdiValueBL(L"Presse", 2, o.first.data(), &o.firstLength,
                                                 o.second.data(), &o.secondLength, Links);
         }},
        {"PGSP_LogDeviceGetNdiBL",
         [](Outputs& o) {
             return PGSP_LogDeviceGetNdiBL(L"Presse", L"Typ", o.first.data(), &o.firstLength, Links);
         }},
        {"PGSP_LogDeviceGetNdiBLOfAPage",
         [](Outputs& o) {
             return PGSP_LogDeviceGetNdiBL(L"Presse", L"PropSheet", o.first.data(), &o.firstLength, Links);
         }},
        {"PGSP_LogDeviceGetNdiBLOfAText",
         [](Outputs& o) {
             return PGSP_LogDeviceGetNdiBL(L"Presse", L"DescText", o.first.data(), &o.firstLength, Links);
         }},
        {"PGSP_LogDeviceGetResourceStringBL",
         [](Outputs& o) {
             return PGSP_LogDeviceGetResourceStringBL(L"Presse", L"DescText", L"de", o.first.data(),
                                                      &o.firstLength, Links);
         }},
        {"PGSP_LogNameGetResourceStringBL",
         [](Outputs& o) {
             return PGSP_LogNameGetResourceStringBL(L"Warte", L"DescText", L"de", o.first.data(),
                                                    &o.firstLength, Links);
         }},
        {"PGSP_GetLogDeviceListBL",
         [](Outputs& o) { return PGSP_GetLogDeviceListBL(o.first.data(), &o.firstLength); }},
        {"PGSP_GetLogNameListBL",
         [](Outputs& o) { return PGSP_GetLogNameListBL(o.first.data(), &o.firstLength); }},
        {"PGSP_GetLogDeviceListExBL",
         [](Outputs& o) {
             return PGSP_GetLogDeviceListExBL(L"Ort", L"Halle 2", 1, o.first.data(), &o.firstLength);
         }},
        {"LogDeviceGetAsicTypeBL",
         [](Outputs& o) { return LogDeviceGetAsicTypeBL(L"Presse", o.first.data(), &o.firstLength); }},
        {"LogDeviceGetParamDescBL",
         [](Outputs& o) {
             return LogDeviceGetParamDescBL(L"Presse", L"Stufe", L"max", o.first.data(), &o.firstLength);
         }},
        {"LogDeviceGetParamDescBLOfTheProtocol",
         [](Outputs& o) {
             return LogDeviceGetParamDescBL(L"Presse", L"baudrate", L"default", o.first.data(),
                                            &o.firstLength);
         }},
        {"LogDeviceGetParamDescBLOfAValue",
         [](Outputs& o) {
             return LogDeviceGetParamDescBL(L"PC internal", L"busparam\\1", L"any", o.first.data(),
                                            &o.firstLength);
         }},
        {"PGSP_LogDeviceGetMostSpecializedEnumListBL",
         [](Outputs& o) {
             return PGSP_LogDeviceGetMostSpecializedEnumListBL(L"Presse", L"Takt", o.first.data(),
                                                               &o.firstLength);
         }},
        {"PGSP_LogDeviceGetMostSpecializedEnumListBLOfAProfile",
         [](Outputs& o) {
             return PGSP_LogDeviceGetMostSpecializedEnumListBL(L"PC internal", L"baudrate", o.first.data(),
                                                               &o.firstLength);
         }},
        {"PGSP_LogDeviceGetAverageEnumListBL",
         [](Outputs& o) {
             return PGSP_LogDeviceGetAverageEnumListBL(L"Presse", L"Takt", o.first.data(), &o.firstLength);
         }},
        {"PGSP_LogDeviceGetAverageEnumListBLOfAProfile",
         [](Outputs& o) {
             return PGSP_LogDeviceGetAverageEnumListBL(L"PC internal", L"baudrate", o.first.data(),
                                                       &o.firstLength);
         }},
        {"GetValueInPGSP_BL",
         [](Outputs& o) { return GetValueInPGSP_BL(L"LastChangeDate", o.first.data(), &o.firstLength); }},
        {"PGSP_GetParameterMetaDataBL",
         [](Outputs& o) {
             return PGSP_GetParameterMetaDataBL(L"data", L"Werte", L"Kessel", L"Druck", o.first.data(),
                                                &o.firstLength);
         },
         Emptied(&Outputs::first)},
        {"PGSP_EnumParameterMetaDataBL",
         [](Outputs& o) {
             return PGSP_EnumParameterMetaDataBL(L"data", L"Werte", L"Kessel", 1, o.first.data(),
                                                 &o.firstLength, o.second.data(), &o.secondLength);
         },
         Emptied(&Outputs::second)},
    };
    return all;
}

} // namespace norvepa::test
