#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

namespace norvepa
{

namespace
{

// The last of these is `SpareSection`, where the exports look into `Ndi`.
constexpr std::array<const wchar_t*, 5> SectionsWithSpare{L"DeviceHeader", L"LocalSettings",
                                                          L"NetworkSettings", L"Bindings", L"SpareSection"};

// An attribute of the root, or else a parameter of the section that the catalogue names, by the name that it
// maps to. The sections aren't searched: without a word of the catalogue it is `SpareSection`.
Result ReadByCatalogue(DeviceCatalogue& catalogue, const std::wstring& file, const wchar_t* parameter,
                       std::wstring* value)
{
    if (NorvXMLElementGetAttribute(file.c_str(), parameter, value) == PGSP_OK)
    {
        return PGSP_OK;
    }
    const std::wstring section = ConstraintOrEmpty(catalogue, parameter, L"section");
    const std::wstring map = ConstraintOrEmpty(catalogue, parameter, L"map");
    return NorvXMLGetValue(file.c_str(), section.c_str(), map.empty() ? parameter : map.c_str(), value);
}

Result ReadBySections(const std::wstring& file, const wchar_t* parameter, std::wstring* value)
{
    Result result = NorvXMLElementGetAttribute(file.c_str(), parameter, value);
    for (const wchar_t* const section : SectionsWithSpare)
    {
        if (result == PGSP_OK)
        {
            return PGSP_OK;
        }
        result = NorvXMLGetValue(file.c_str(), section, parameter, value);
    }
    return result;
}

} // namespace

Result LogDeviceGetValue(const wchar_t* LogDevice, const wchar_t* Parameter, std::wstring* value)
{
    const ExportFrame frame{"LogDeviceGetValue: "};

    NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s", TraceToAnsi(LogDevice),
               TraceToAnsi(Parameter));
    if (IsMissing(LogDevice) || IsMissing(Parameter) || value == nullptr)
    {
        return frame.InvalidParameters();
    }
    const std::wstring dataFolder = GetDataFolder();
    if (dataFolder.empty())
    {
        NORV_TRACE(frame, TraceInfo, "Can not get ProgramData Path");
        return PGSP_OK; // the one read that takes this for an empty value
    }

    DeviceCatalogue catalogue(LogDevice, dataFolder);
    Result result = ReadByCatalogue(catalogue, LogDeviceFile(dataFolder, LogDevice), Parameter, value);
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceInfo, "Use default value, Parameter was not found lRet = %d", result);
        result = LogDeviceGetConstraint(catalogue, Parameter, L"default", value);
    }
    if (result != PGSP_OK)
    {
        NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND");
        return PGSP_ERR_PARAMETER_DEFAULT_NOT_FOUND;
    }
    NORV_TRACE(frame, TraceExit, "<< return lRet = %d, Value = %s", result, TraceToAnsi(value->c_str()));
    return result;
}

Result PGSP_LogDeviceGetValue(const wchar_t* LogDevice, const wchar_t* Parameter, std::wstring* value)
{
    return PGSP_LogDeviceGetValue(GetDataFolder(), LogDevice, Parameter, value);
}

Result PGSP_LogDeviceGetValue(const std::wstring& dataFolder, const wchar_t* LogDevice,
                              const wchar_t* Parameter, std::wstring* value)
{
    const ExportFrame frame{"PGSP_LogDeviceGetValue: "};

    NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s", TraceToAnsi(LogDevice),
               TraceToAnsi(Parameter));
    if (IsMissing(LogDevice) || IsMissing(Parameter) || value == nullptr)
    {
        return frame.InvalidParameters();
    }
    if (dataFolder.empty())
    {
        return frame.FolderNotFound("Can not get ProgramData Path");
    }

    const Result result = ReadBySections(LogDeviceFile(dataFolder, LogDevice), Parameter, value);
    NORV_TRACE(frame, TraceExit, "<< return lRet = %d, Value = %s", result, TraceToAnsi(value->c_str()));
    return result;
}

Result LogDeviceGetNdiValue(const wchar_t* LogDevice, const wchar_t* Parameter, std::wstring* value)
{
    return LogDeviceGetNdiValue(GetDataFolder(), LogDevice, Parameter, value);
}

Result LogDeviceGetNdiValue(const std::wstring& dataFolder, const wchar_t* LogDevice,
                            const wchar_t* Parameter, std::wstring* value)
{
    if (IsMissing(LogDevice) || IsMissing(Parameter) || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    if (dataFolder.empty())
    {
        return PGSP_ERR_FOLDER_NOT_FOUND;
    }
    return NorvXMLGetValue(LogDeviceFile(dataFolder, LogDevice).c_str(), L"Ndi", Parameter, value);
}

Result ReadSubdevice(const ExportFrame& frame, std::wstring_view dataFolder, const SubdeviceName& name,
                     const wchar_t* parameter, std::wstring& value)
{
    const Result result = NorvXMLGetSubdevValue(LogDeviceFile(dataFolder, name.device).c_str(),
                                                name.subdevice.c_str(), parameter, &value);
    NORV_TRACE(frame, TraceInfo, "<< Returned Value = %s, from Subdevice: %s", TraceToAnsi(value.c_str()),
               TraceToAnsi(name.subdevice.c_str()));
    return result;
}

} // namespace norvepa
