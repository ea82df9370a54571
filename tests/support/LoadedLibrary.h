#pragma once

// NorvepaBl64x.dll as a caller has it: loaded from beside the test program, its functions found by name.
//
// The registry has to be redirected and filled before one of these is made: the load reads the trace
// settings. The library is unloaded with the object.

#include "norvepa.h"

#include <windows.h>

#include <string>

namespace norvepa::test
{

[[nodiscard]] std::wstring LibraryPath();

class LoadedLibrary
{
public:
    LoadedLibrary(); // throws when it can't be loaded
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary();

    // What Find answers: becomes whatever function pointer it is put into.
    class Address
    {
    public:
        explicit Address(FARPROC address) : m_address(address) {}

        template <typename Function>
        operator Function*() const
        {
            return reinterpret_cast<Function*>(reinterpret_cast<void*>(m_address));
        }

    private:
        FARPROC m_address;
    };

    [[nodiscard]] Address Find(const char* name) const; // throws when there is no such export
    [[nodiscard]] HMODULE module() const { return m_module; }

private:
    HMODULE m_module;
};

// The exports with the types that the public header gives them: one line for each.
struct Exports : LoadedLibrary
{
    decltype(&::GetValueInPGSP_BL) GetValueInPGSP_BL = Find("GetValueInPGSP_BL");
    decltype(&::LogDeviceCopyBL) LogDeviceCopyBL = Find("LogDeviceCopyBL");
    decltype(&::LogDeviceCreateFromDefBL) LogDeviceCreateFromDefBL = Find("LogDeviceCreateFromDefBL");
    decltype(&::LogDeviceCreateTempBL) LogDeviceCreateTempBL = Find("LogDeviceCreateTempBL");
    decltype(&::LogDeviceCreateTempFromDefBL) LogDeviceCreateTempFromDefBL =
        Find("LogDeviceCreateTempFromDefBL");
    decltype(&::LogDeviceDelBL) LogDeviceDelBL = Find("LogDeviceDelBL");
    decltype(&::LogDeviceDelTempBL) LogDeviceDelTempBL = Find("LogDeviceDelTempBL");
    decltype(&::LogDeviceDelValueBL) LogDeviceDelValueBL = Find("LogDeviceDelValueBL");
    decltype(&::LogDeviceDelVmdIdBL) LogDeviceDelVmdIdBL = Find("LogDeviceDelVmdIdBL");
    decltype(&::LogDeviceExistBL) LogDeviceExistBL = Find("LogDeviceExistBL");
    decltype(&::LogDeviceGetAsicTypeBL) LogDeviceGetAsicTypeBL = Find("LogDeviceGetAsicTypeBL");
    decltype(&::LogDeviceGetEnumBL) LogDeviceGetEnumBL = Find("LogDeviceGetEnumBL");
    decltype(&::LogDeviceGetEnumByDeviceIdBL) LogDeviceGetEnumByDeviceIdBL =
        Find("LogDeviceGetEnumByDeviceIdBL");
    decltype(&::LogDeviceGetEnumValueBL) LogDeviceGetEnumValueBL = Find("LogDeviceGetEnumValueBL");
    decltype(&::LogDeviceGetParamDescBL) LogDeviceGetParamDescBL = Find("LogDeviceGetParamDescBL");
    decltype(&::LogDeviceGetValueBL) LogDeviceGetValueBL = Find("LogDeviceGetValueBL");
    decltype(&::LogDeviceGetValueExBL) LogDeviceGetValueExBL = Find("LogDeviceGetValueExBL");
    decltype(&::LogDeviceGetValueListBL) LogDeviceGetValueListBL = Find("LogDeviceGetValueListBL");
    decltype(&::LogDeviceSetBusparamsBL) LogDeviceSetBusparamsBL = Find("LogDeviceSetBusparamsBL");
    decltype(&::LogDeviceSetValueBL) LogDeviceSetValueBL = Find("LogDeviceSetValueBL");
    decltype(&::LogDeviceUpdateWithTempBL) LogDeviceUpdateWithTempBL = Find("LogDeviceUpdateWithTempBL");
    decltype(&::LogDeviceGetXmlBL) LogDeviceGetXmlBL = Find("LogDeviceGetXmlBL");
    decltype(&::LogNameCreateBL) LogNameCreateBL = Find("LogNameCreateBL");
    decltype(&::LogNameDelValueBL) LogNameDelValueBL = Find("LogNameDelValueBL");
    decltype(&::LogNameDeleteBL) LogNameDeleteBL = Find("LogNameDeleteBL");
    decltype(&::LogNameExistBL) LogNameExistBL = Find("LogNameExistBL");
    decltype(&::LogNameGetEnumBL) LogNameGetEnumBL = Find("LogNameGetEnumBL");
    decltype(&::LogNameGetEnumValueBL) LogNameGetEnumValueBL = Find("LogNameGetEnumValueBL");
    decltype(&::LogNameGetLogDeviceBL) LogNameGetLogDeviceBL = Find("LogNameGetLogDeviceBL");
    decltype(&::LogNameGetValueBL) LogNameGetValueBL = Find("LogNameGetValueBL");
    decltype(&::LogNameGetValueListBL) LogNameGetValueListBL = Find("LogNameGetValueListBL");
    decltype(&::LogNameSetLogDeviceBL) LogNameSetLogDeviceBL = Find("LogNameSetLogDeviceBL");
    decltype(&::LogNameSetValueBL) LogNameSetValueBL = Find("LogNameSetValueBL");
    decltype(&::NorvepaBl64x_deinit) NorvepaBl64x_deinit = Find("NorvepaBl64x_deinit");
    decltype(&::PGSP_BoardGetEnumValueBL) PGSP_BoardGetEnumValueBL = Find("PGSP_BoardGetEnumValueBL");
    decltype(&::PGSP_BoardGetNotSupportedBL) PGSP_BoardGetNotSupportedBL =
        Find("PGSP_BoardGetNotSupportedBL");
    decltype(&::PGSP_BoardGetResourceStringBL) PGSP_BoardGetResourceStringBL =
        Find("PGSP_BoardGetResourceStringBL");
    decltype(&::PGSP_BoardGetValueBL) PGSP_BoardGetValueBL = Find("PGSP_BoardGetValueBL");
    decltype(&::PGSP_BoardGetValueCollectionBL) PGSP_BoardGetValueCollectionBL =
        Find("PGSP_BoardGetValueCollectionBL");
    decltype(&::PGSP_BoardGetValueListBL) PGSP_BoardGetValueListBL = Find("PGSP_BoardGetValueListBL");
    decltype(&::PGSP_BoardGetValueRawBL) PGSP_BoardGetValueRawBL = Find("PGSP_BoardGetValueRawBL");
    decltype(&::PGSP_DefDeviceGetEnumValueBL) PGSP_DefDeviceGetEnumValueBL =
        Find("PGSP_DefDeviceGetEnumValueBL");
    decltype(&::PGSP_DefDeviceGetValueBL) PGSP_DefDeviceGetValueBL = Find("PGSP_DefDeviceGetValueBL");
    decltype(&::PGSP_DefDeviceGetValueRawBL) PGSP_DefDeviceGetValueRawBL =
        Find("PGSP_DefDeviceGetValueRawBL");
    decltype(&::PGSP_DelParameterDataBL) PGSP_DelParameterDataBL = Find("PGSP_DelParameterDataBL");
    decltype(&::PGSP_EnumParameterMetaDataBL) PGSP_EnumParameterMetaDataBL =
        Find("PGSP_EnumParameterMetaDataBL");
    decltype(&::PGSP_GetLogDeviceListBL) PGSP_GetLogDeviceListBL = Find("PGSP_GetLogDeviceListBL");
    decltype(&::PGSP_GetLogDeviceListExBL) PGSP_GetLogDeviceListExBL = Find("PGSP_GetLogDeviceListExBL");
    decltype(&::PGSP_GetLogNameListBL) PGSP_GetLogNameListBL = Find("PGSP_GetLogNameListBL");
    decltype(&::PGSP_GetParamDescBL) PGSP_GetParamDescBL = Find("PGSP_GetParamDescBL");
    decltype(&::PGSP_GetParameterMetaDataBL) PGSP_GetParameterMetaDataBL =
        Find("PGSP_GetParameterMetaDataBL");
    decltype(&::PGSP_LogDeviceDelNdiBL) PGSP_LogDeviceDelNdiBL = Find("PGSP_LogDeviceDelNdiBL");
    decltype(&::PGSP_LogDeviceEnumNdiValueBL) PGSP_LogDeviceEnumNdiValueBL =
        Find("PGSP_LogDeviceEnumNdiValueBL");
    decltype(&::PGSP_LogDeviceGetAverageEnumListBL) PGSP_LogDeviceGetAverageEnumListBL =
        Find("PGSP_LogDeviceGetAverageEnumListBL");
    decltype(&::PGSP_LogDeviceGetMostSpecializedEnumListBL) PGSP_LogDeviceGetMostSpecializedEnumListBL =
        Find("PGSP_LogDeviceGetMostSpecializedEnumListBL");
    decltype(&::PGSP_LogDeviceGetNdiBL) PGSP_LogDeviceGetNdiBL = Find("PGSP_LogDeviceGetNdiBL");
    decltype(&::PGSP_LogDeviceGetResourceStringBL) PGSP_LogDeviceGetResourceStringBL =
        Find("PGSP_LogDeviceGetResourceStringBL");
    decltype(&::PGSP_LogDeviceSetNdiBL) PGSP_LogDeviceSetNdiBL = Find("PGSP_LogDeviceSetNdiBL");
    decltype(&::PGSP_LogDeviceSetProfileRBL) PGSP_LogDeviceSetProfileRBL =
        Find("PGSP_LogDeviceSetProfileRBL");
    decltype(&::PGSP_LogNameGetResourceStringBL) PGSP_LogNameGetResourceStringBL =
        Find("PGSP_LogNameGetResourceStringBL");
    decltype(&::PGSP_ProfileCollectionExistsBL) PGSP_ProfileCollectionExistsBL =
        Find("PGSP_ProfileCollectionExistsBL");
    decltype(&::PGSP_ProtocolGetEnumBaudrateBL) PGSP_ProtocolGetEnumBaudrateBL =
        Find("PGSP_ProtocolGetEnumBaudrateBL");
    decltype(&::PGSP_ProtocolGetEnumBusprofilesBL) PGSP_ProtocolGetEnumBusprofilesBL =
        Find("PGSP_ProtocolGetEnumBusprofilesBL");
    decltype(&::PGSP_ProtocolGetEnumValueBL) PGSP_ProtocolGetEnumValueBL =
        Find("PGSP_ProtocolGetEnumValueBL");
    decltype(&::PGSP_ProtocolGetValueBL) PGSP_ProtocolGetValueBL = Find("PGSP_ProtocolGetValueBL");
    decltype(&::PGSP_ProtocolGetValueRawBL) PGSP_ProtocolGetValueRawBL = Find("PGSP_ProtocolGetValueRawBL");
    decltype(&::PGSP_SetParameterDataBL) PGSP_SetParameterDataBL = Find("PGSP_SetParameterDataBL");
    decltype(&::PGSP_TemplateExistBL) PGSP_TemplateExistBL = Find("PGSP_TemplateExistBL");
    decltype(&::PGSP_TemplateGetConstraintBL) PGSP_TemplateGetConstraintBL =
        Find("PGSP_TemplateGetConstraintBL");
    decltype(&::PGSP_TemplateGetEnumBL) PGSP_TemplateGetEnumBL = Find("PGSP_TemplateGetEnumBL");
    decltype(&::PGSP_TemplateGetEnumNoPrefixBL) PGSP_TemplateGetEnumNoPrefixBL =
        Find("PGSP_TemplateGetEnumNoPrefixBL");
    decltype(&::PGSP_TemplateGetEnumValueRawBL) PGSP_TemplateGetEnumValueRawBL =
        Find("PGSP_TemplateGetEnumValueRawBL");
    decltype(&::PGSP_TemplateGetListBL) PGSP_TemplateGetListBL = Find("PGSP_TemplateGetListBL");
    decltype(&::PGSP_TemplateGetResourceStringBL) PGSP_TemplateGetResourceStringBL =
        Find("PGSP_TemplateGetResourceStringBL");
    decltype(&::PGSP_TemplateKeyExistsBL) PGSP_TemplateKeyExistsBL = Find("PGSP_TemplateKeyExistsBL");
    decltype(&::PGSP_TemplateSetValueBL) PGSP_TemplateSetValueBL = Find("PGSP_TemplateSetValueBL");
    decltype(&::RegisterNotification) RegisterNotification = Find("RegisterNotification");
    decltype(&::SetValueInPGSP_BL) SetValueInPGSP_BL = Find("SetValueInPGSP_BL");
    decltype(&::UnRegisterNotification) UnRegisterNotification = Find("UnRegisterNotification");
    decltype(&::norvDriverReadLogDevice) norvDriverReadLogDevice = Find("norvDriverReadLogDevice");
};

} // namespace norvepa::test
