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
        {"PGSP_TemplateSetValueBL",
         [](Outputs&) { return PGSP_TemplateSetValueBL(L"Boards", L"AFK110", L"Treiber", L"afk111x"); }},
        {"SetValueInPGSP_BL", [](Outputs&) { return SetValueInPGSP_BL(L"Sprache", L"en"); }},
        {"SetValueInPGSP_BLOfANewName", [](Outputs&) { return SetValueInPGSP_BL(L"Anlage", L"Nord"); }},
        {"PGSP_SetParameterDataBL",
         [](Outputs&) { return PGSP_SetParameterDataBL(L"Werte", L"Kessel", L"Druck", L"40 bar", nullptr); }},
        {"PGSP_SetParameterDataBLOfANewName",
         [](Outputs&) { return PGSP_SetParameterDataBL(L"Werte", L"Kessel", L"Soll", L"39", L"int"); }},
        {"PGSP_DelParameterDataBL",
         [](Outputs&) { return PGSP_DelParameterDataBL(L"Werte", L"Kessel", L"Stunden"); }},
        {"LogDeviceDelVmdIdBL", [](Outputs&) { return LogDeviceDelVmdIdBL(L"PC internal"); }},
        {"LogDeviceDelBL", [](Outputs&) { return LogDeviceDelBL(L"Presse", 0); }},
    };
    return all;
}

const std::vector<Stepwise>& StepwiseChanges()
{
    static const std::vector<Stepwise> all{
        {{"PGSP_LogDeviceSetProfileRBL",
          [](Outputs&) { return PGSP_LogDeviceSetProfileRBL(L"Ofen", L"MPI", L"baudrate"); }},
         L"Ofen"},
        {{"PGSP_LogDeviceSetProfileRBLOfASubProfile",
          [](Outputs&) { return PGSP_LogDeviceSetProfileRBL(L"PC internal", L"L2", L"busparam"); }},
         L"PC internal"},
        {{"LogDeviceSetBusparamsBL", [](Outputs&) { return LogDeviceSetBusparamsBL(L"Ofen", L"500000"); }},
         L"Ofen"},
        {{"LogDeviceSetBusparamsBLOfL2",
          [](Outputs&) { return LogDeviceSetBusparamsBL(L"PC internal", L"500000"); }},
         L"PC internal",
         L"baudrate"},
    };
    return all;
}

} // namespace norvepa::test
