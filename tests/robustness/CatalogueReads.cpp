#include "Questions.h"
#include "norvepa.h"

namespace norvepa::test
{

namespace
{

constexpr wchar_t Names[] = L"DeviceID\0Treiber";
constexpr std::uint32_t NamesLength = sizeof Names / sizeof *Names;

} // namespace

const std::vector<Question>& CatalogueReads()
{
    static const std::vector<Question> all{
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
        {"PGSP_TemplateExistBL", [](Outputs&) { return PGSP_TemplateExistBL(L"Boards", L"*AFK110", 4); }},
        {"PGSP_TemplateExistBLOfAnEscapedName",
         [](Outputs&) { return PGSP_TemplateExistBL(L"DefaultLogDevices", L"MPI-AFK110", 0); }},
        {"PGSP_TemplateExistBLOfASubdevice",
         [](Outputs&) {
             return PGSP_TemplateExistBL(L"DefaultLogDevices",
                                         L"Automation-OnlineAccess-LDT-MPI-AFK110\\subdevices\\Achse", 0);
         }},
        {"PGSP_TemplateGetEnumBL",
         [](Outputs& o) { return PGSP_TemplateGetEnumBL(L"Protocols", 1, o.first.data(), &o.firstLength); }},
        {"PGSP_TemplateGetEnumValueRawBL",
         [](Outputs& o) {
             return PGSP_TemplateGetEnumValueRawBL(L"Boards", L"AFK110", L"NotSupported", 1, o.first.data(),
                                                   &o.firstLength);
         }},
        {"PGSP_TemplateKeyExistsBL",
         [](Outputs&) { return PGSP_TemplateKeyExistsBL(L"Boards", L"AFK110", L"Constraints\\Stufe", 0); }},
        {"PGSP_TemplateKeyExistsBLOfAProtocol",
         [](Outputs&) {
             return PGSP_TemplateKeyExistsBL(L"Protocols", L"MPI", L"Constraints\\baudrate\\500000", 0);
         }},
        {"PGSP_TemplateKeyExistsBLOfATemplate",
         [](Outputs&) {
             return PGSP_TemplateKeyExistsBL(L"DefaultLogDevices", L"MPI-AFK110",
                                             L"Bindings\\Subdevices\\Achse", 0);
         }},
        {"PGSP_TemplateGetConstraintBL",
         [](Outputs& o) {
             return PGSP_TemplateGetConstraintBL(L"Boards", L"AFK110", L"Stufe", L"min", o.first.data(),
                                                 &o.firstLength);
         }},
        {"PGSP_DefDeviceGetEnumValueBL",
         [](Outputs& o) {
             return PGSP_DefDeviceGetEnumValueBL(L"MPI-AFK110", 1, o.first.data(), &o.firstLength,
                                                 o.second.data(), &o.secondLength);
         }},
        {"PGSP_DefDeviceGetValueBL",
         [](Outputs& o) {
             return PGSP_DefDeviceGetValueBL(L"MPI-AFK110", L"Typ", o.first.data(), &o.firstLength, Links);
         }},
        {"PGSP_DefDeviceGetValueBLOfAPage",
         [](Outputs& o) {
             return PGSP_DefDeviceGetValueBL(L"MPI-AFK110", L"PropSheet", o.first.data(), &o.firstLength,
                                             Links);
         }},
        {"PGSP_DefDeviceGetValueRawBL",
         [](Outputs& o) {
             return PGSP_DefDeviceGetValueRawBL(L"MPI-AFK110", L"LocalSettings", L"Ort", o.first.data(),
                                                &o.firstLength);
         }},
        {"PGSP_ProfileCollectionExistsBL",
         [](Outputs&) { return PGSP_ProfileCollectionExistsBL(L"MPI", L"busparam", L"1"); }},
        {"PGSP_ProfileCollectionExistsBLOfASubProfile",
         [](Outputs&) { return PGSP_ProfileCollectionExistsBL(L"L2", L"busparam\\1\\baudrate", L"500000"); }},
        {"PGSP_GetParamDescBL",
         [](Outputs& o) {
             return PGSP_GetParamDescBL(L"L2", L"busparam\\1", o.first.data(), &o.firstLength);
         }},
    };
    return all;
}

} // namespace norvepa::test
