#include "Questions.h"
#include "norvepa.h"

namespace norvepa::test
{

namespace
{

constexpr wchar_t Names[] = L"DeviceID\0Treiber";
constexpr std::uint32_t NamesLength = sizeof Names / sizeof *Names;

} // namespace

const std::vector<Question>& Reads()
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
        {"PGSP_BoardGetEnumValueBL",
         [](Outputs& o) {
             return PGSP_BoardGetEnumValueBL(L"AFK110", 0, o.first.data(), &o.firstLength, o.second.data(),
                                             &o.secondLength);
         }},
        {"PGSP_BoardGetValueBL",
         [](Outputs& o) {
             return PGSP_BoardGetValueBL(L"AFK110", L"Treiber", o.first.data(), &o.firstLength);
         }},
        {"PGSP_BoardGetValueRawBL",
         [](Outputs& o) {
             return PGSP_BoardGetValueRawBL(L"AFK110", L"Install", L"Treiber", o.first.data(),
                                            &o.firstLength);
         }},
        {"PGSP_BoardGetValueListBL",
         [](Outputs& o) {
             return PGSP_BoardGetValueListBL(L"AFK110", Names, NamesLength, o.first.data(), &o.firstLength);
         }},
        {"PGSP_BoardGetValueCollectionBL",
         [](Outputs& o) {
             return PGSP_BoardGetValueCollectionBL(L"NotSupported", L"AFK110", o.first.data(),
                                                   &o.firstLength);
         }},
        {"PGSP_BoardGetNotSupportedBL",
         [](Outputs& o) { return PGSP_BoardGetNotSupportedBL(L"AFK110", o.first.data(), &o.firstLength); }},
        {"PGSP_ProtocolGetEnumValueBL",
         [](Outputs& o) {
             return PGSP_ProtocolGetEnumValueBL(L"MPI", L"busparam", L"1", nullptr, nullptr, 0,
                                                o.first.data(), &o.firstLength, o.second.data(),
                                                &o.secondLength);
         }},
        {"PGSP_ProtocolGetEnumBusprofilesBL",
         [](Outputs& o) {
             return PGSP_ProtocolGetEnumBusprofilesBL(L"MPI", 0, o.first.data(), &o.firstLength);
         }},
        {"PGSP_ProtocolGetEnumBaudrateBL",
         [](Outputs& o) {
             return PGSP_ProtocolGetEnumBaudrateBL(L"MPI", nullptr, 0, o.first.data(), &o.firstLength);
         }},
        {"PGSP_ProtocolGetValueBL",
         [](Outputs& o) {
             return PGSP_ProtocolGetValueBL(L"MPI", L"baudrate", nullptr, nullptr, nullptr, L"default",
                                            o.first.data(), &o.firstLength);
         }},
        {"PGSP_ProtocolGetValueRawBL",
         [](Outputs& o) {
             return PGSP_ProtocolGetValueRawBL(L"MPI", L"Constraints\\baudrate\\187500", L"gap",
                                               o.first.data(), &o.firstLength);
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
        {"PGSP_BoardGetResourceStringBL",
         [](Outputs& o) {
             return PGSP_BoardGetResourceStringBL(L"AFK110", L"DescText", L"de", o.first.data(),
                                                  &o.firstLength, Links);
         }},
        {"PGSP_TemplateGetResourceStringBL",
         [](Outputs& o) {
             return PGSP_TemplateGetResourceStringBL(L"DefaultLogDevices", L"MPI-AFK110", L"DescText", L"de",
                                                     o.first.data(), &o.firstLength, Links);
         }},
        {"PGSP_TemplateGetResourceStringBLOfNoLanguage",
         [](Outputs& o) {
             return PGSP_TemplateGetResourceStringBL(L"Boards", L"AFK110", L"DescText\\1", L"fr",
                                                     o.first.data(), &o.firstLength, Links);
         }},
        {"PGSP_TemplateGetListBL",
         [](Outputs& o) { return PGSP_TemplateGetListBL(L"Boards", o.first.data(), &o.firstLength); }},
        {"PGSP_TemplateGetEnumNoPrefixBL",
         [](Outputs& o) {
             return PGSP_TemplateGetEnumNoPrefixBL(L"Boards", 0, o.first.data(), &o.firstLength);
         }},
        {"PGSP_GetLogDeviceListBL",
         [](Outputs& o) { return PGSP_GetLogDeviceListBL(o.first.data(), &o.firstLength); }},
        {"PGSP_GetLogNameListBL",
         [](Outputs& o) { return PGSP_GetLogNameListBL(o.first.data(), &o.firstLength); }},
        {"PGSP_GetLogDeviceListExBL",
         [](Outputs& o) {
             return PGSP_GetLogDeviceListExBL(L"Ort", L"Halle 2", 1, o.first.data(), &o.firstLength);
         }},
    };
    return all;
}

} // namespace norvepa::test
