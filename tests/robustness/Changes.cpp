#include "Questions.h"
#include "norvepa.h"

namespace norvepa::test
{

const std::vector<Question>& Changes()
{
    static const std::vector<Question> all{
        {"LogNameDeleteBL", [](Outputs&) { return LogNameDeleteBL(L"Pumpe"); }},
        {"LogNameSetValueBL", [](Outputs&) { return LogNameSetValueBL(L"Pumpe", L"Ort", L"Hof"); }},
        {"LogNameDelValueBL", [](Outputs&) { return LogNameDelValueBL(L"Pumpe", L"Ort"); }},
        {"LogDeviceSetValueBL", [](Outputs&) { return LogDeviceSetValueBL(L"Presse", L"Stufe", L"4"); }},
        {"LogDeviceSetValueBLOfASubdevice",
         [](Outputs&) { return LogDeviceSetValueBL(L"Presse\\subdevices\\Achse", L"Weg", L"6"); }},
        {"LogDeviceDelValueBL", [](Outputs&) { return LogDeviceDelValueBL(L"Presse", L"Stufe"); }},
        {"LogDeviceCreateFromDefBL",
         [](Outputs&) { return LogDeviceCreateFromDefBL(L"MPI-AFK110", L"Neu"); }},
        {"LogDeviceCopyBL", [](Outputs&) { return LogDeviceCopyBL(L"Presse", L"Zweite Presse"); }},
        {"LogDeviceCreateTempBL",
         [](Outputs& o) { return LogDeviceCreateTempBL(L"Presse", o.first.data(), &o.firstLength); }},
        {"LogDeviceCreateTempFromDefBL",
         [](Outputs& o) {
             return LogDeviceCreateTempFromDefBL(L"MPI-AFK110", o.first.data(), &o.firstLength);
         }},
        {"LogDeviceUpdateWithTempBL",
         [](Outputs&) { return LogDeviceUpdateWithTempBL(L"PGSP_TEMP_LOG_DEVICE____007", L"Ofen"); }},
        {"LogDeviceDelTempBL", [](Outputs&) { return LogDeviceDelTempBL(L"PGSP_TEMP_LOG_DEVICE____008"); }},
        {"PGSP_LogDeviceSetNdiBL",
         [](Outputs&) { return PGSP_LogDeviceSetNdiBL(L"Presse", L"Typ", L"zweistufig", Links); }},
        {"PGSP_LogDeviceSetNdiBLOfAPage",
         [](Outputs&) { return PGSP_LogDeviceSetNdiBL(L"Presse", L"PropSheet", L"Seiten.dll,Neu", Links); }},
        {"PGSP_LogDeviceSetNdiBLOfATextInANewSection",
         [](Outputs&) { return PGSP_LogDeviceSetNdiBL(L"Presse", L"DescText", L"Texte.dll,2", 0); }},
        {"PGSP_LogDeviceDelNdiBL", [](Outputs&) { return PGSP_LogDeviceDelNdiBL(L"Presse", L"Typ", Links); }},
        {"PGSP_LogDeviceDelNdiBLOfAPage",
         [](Outputs&) { return PGSP_LogDeviceDelNdiBL(L"Presse", L"PropSheet", Links); }},
        {"PGSP_LogDeviceDelNdiBLBesideTheLinks",
         [](Outputs&) { return PGSP_LogDeviceDelNdiBL(L"Presse", L"Titel", Links); }},
        {"LogDeviceDelBL", [](Outputs&) { return LogDeviceDelBL(L"Presse", 0); }},
    };
    return all;
}

} // namespace norvepa::test
