#include "endurance/Calls.h"

namespace norvepa::test
{

namespace
{

std::int32_t Deinit(Draw&, const Exports& library)
{
    library.NorvepaBl64x_deinit();
    return PGSP_OK;
}

using LogName = One<LogNames>;
using Device = One<Devices>;
using Parameter = One<Parameters>;
using Value = One<Values>;
using Setting = One<Settings>;
using DataFile = One<DataFiles>;
using DataParameter = One<DataParameters>;

constexpr Call Calls[] = {
    {"LogNameCreateBL", Make<&Exports::LogNameCreateBL, LogName>},
    {"LogNameDelValueBL", Make<&Exports::LogNameDelValueBL, LogName, Parameter>},
    {"LogNameDeleteBL", Make<&Exports::LogNameDeleteBL, LogName>},
    {"LogNameExistBL", Make<&Exports::LogNameExistBL, LogName, Flag>},
    {"LogNameGetEnumBL", Make<&Exports::LogNameGetEnumBL, Index, Output>},
    {"LogNameGetEnumValueBL", Make<&Exports::LogNameGetEnumValueBL, LogName, Index, Output, Output>},
    {"LogNameGetLogDeviceBL", Make<&Exports::LogNameGetLogDeviceBL, LogName, Output>},
    {"LogNameGetValueBL", Make<&Exports::LogNameGetValueBL, LogName, Parameter, Output>},
    {"LogNameGetValueListBL",
     Make<&Exports::LogNameGetValueListBL, LogName, One<Sections>, Names<std::int32_t>, Output>},
    {"LogNameSetLogDeviceBL", Make<&Exports::LogNameSetLogDeviceBL, LogName, Device>},
    {"LogNameSetValueBL", Make<&Exports::LogNameSetValueBL, LogName, Parameter, Value>},
    {"PGSP_GetLogNameListBL", Make<&Exports::PGSP_GetLogNameListBL, Output>},
    {"PGSP_LogNameGetResourceStringBL",
     Make<&Exports::PGSP_LogNameGetResourceStringBL, LogName, One<Links>, One<Languages>, Output, Flag>},

    {"GetValueInPGSP_BL", Make<&Exports::GetValueInPGSP_BL, Setting, Output>},
    {"SetValueInPGSP_BL", Make<&Exports::SetValueInPGSP_BL, Setting, Value>},

    {"PGSP_DelParameterDataBL",
     Make<&Exports::PGSP_DelParameterDataBL, One<DataSubfolders>, DataFile, DataParameter>},
    {"PGSP_EnumParameterMetaDataBL", Make<&Exports::PGSP_EnumParameterMetaDataBL, One<DataFolders>,
                                          One<DataSubfolders>, DataFile, Index, Output, Output>},
    {"PGSP_GetParameterMetaDataBL", Make<&Exports::PGSP_GetParameterMetaDataBL, One<DataFolders>,
                                         One<DataSubfolders>, DataFile, DataParameter, Output>},
    {"PGSP_SetParameterDataBL", Make<&Exports::PGSP_SetParameterDataBL, One<DataSubfolders>, DataFile,
                                     DataParameter, Value, One<DataTypes>>},

    {"RegisterNotification", Make<&Exports::RegisterNotification, One<NotifyFolders>, Device, One<Events>>},
    {"UnRegisterNotification",
     Make<&Exports::UnRegisterNotification, One<NotifyFolders>, Device, One<Events>>},

    {"NorvepaBl64x_deinit", Deinit, 1},
};

} // namespace

std::span<const Call> NameCalls()
{
    return Calls;
}

} // namespace norvepa::test
