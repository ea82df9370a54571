#include "frame/Arguments.h"
#include "norvepa.h"
#include "notify/SendNotification.h"
#include "service/norvepaLogDevBl64/SectionSearch.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/norvxml.h"

using namespace norvepa;

namespace
{

// Of the catalogue, or else the word of the element that the parameter stands in.
std::wstring TypeOf(DeviceCatalogue& catalogue, const std::wstring& file, const wchar_t* parameter)
{
    const std::wstring type = ConstraintOrEmpty(catalogue, parameter, L"type");
    return type.empty() ? FindEntry(file, parameter, LastWrittenSection).element : type;
}

Result WriteParameter(const ExportFrame& frame, DeviceCatalogue& catalogue, const std::wstring& file,
                      const wchar_t* parameter, const std::wstring& value, const std::wstring& type)
{
    NORV_TRACE(frame, TraceInfo, "No Subdevice");
    const std::wstring map = ConstraintOrEmpty(catalogue, parameter, L"map");
    const wchar_t* const storedName = map.empty() ? parameter : map.c_str();
    std::wstring section = ConstraintOrEmpty(catalogue, parameter, L"section");
    if (section.empty())
    {
        section = FindEntry(file, storedName, LastWrittenSection).section;
    }
    return NorvXMLSetValue(file.c_str(), section.c_str(), storedName, value.c_str(), type.c_str());
}

Result WriteSubdevice(const ExportFrame& frame, const std::wstring& dataFolder, const SubdeviceName& name,
                      const wchar_t* parameter, const std::wstring& value, const std::wstring& type)
{
    NORV_TRACE(frame, TraceInfo, "Subdevice found : %s", TraceToAnsi(name.subdevice.c_str()));
    return NorvXMLSetSubdevValue(LogDeviceFile(dataFolder, name.device).c_str(), name.subdevice.c_str(),
                                 parameter, value.c_str(), type.c_str());
}

} // namespace

int32_t LogDeviceSetValueBL(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* Value)
{
    return RunExport("LogDeviceSetValueBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, Value = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter), TraceToAnsi(Value));
        if (IsMissing(LogDevice) || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        const wchar_t* const parameter = IsMissing(Parameter) ? DefaultDeviceParameter : Parameter;
        if (IsRootAttribute(parameter))
        {
            NORV_TRACE(frame, TraceExit,
                       "<< return PGSP_ERR_CANT_SET_VALUE, can't set CP_TYPE or DeviceID attribute");
            return PGSP_ERR_CANT_SET_VALUE;
        }

        // What the check makes of the value is what is stored.
        DeviceCatalogue catalogue(LogDevice);
        std::wstring value = Value;
        if (const Result result = LogDeviceCheckValue(catalogue, parameter, &value); result != PGSP_OK)
        {
            return frame.Return(result);
        }

        // Without a data folder the path is relative; no code tells that here.
        const std::wstring& dataFolder = catalogue.dataFolder();
        const std::wstring file = LogDeviceFile(dataFolder, LogDevice);
        const std::wstring type = TypeOf(catalogue, file, parameter);
        const auto subdevice = SplitSubdevice(LogDevice);
        const Result result = subdevice
                                  ? WriteSubdevice(frame, dataFolder, *subdevice, parameter, value, type)
                                  : WriteParameter(frame, catalogue, file, parameter, value, type);
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogDevicesWord, subdevice ? subdevice->asGiven.c_str() : LogDevice, L"5");
        }
        return frame.Return(result == PGSP_ERR_SAME_VALUE ? PGSP_OK : result);
    });
}

int32_t LogDeviceDelValueBL(const wchar_t* LogDevice, const wchar_t* Parameter)
{
    return RunExport("LogDeviceDelValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter));
        if (IsMissing(LogDevice) || IsMissing(Parameter))
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        // Only the catalogue names the section: the file isn't searched, and there is no mapped name.
        DeviceCatalogue catalogue(LogDevice, dataFolder);
        const std::wstring section = ConstraintOrEmpty(catalogue, Parameter, L"section");
        const Result result =
            DelValueAndCommit(LogDeviceFolder(dataFolder), LogDevice, L"Corvane.Device.Driver.Logdevice",
                              section.c_str(), Parameter);
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogDevicesWord, LogDevice, L"6");
        }
        return frame.Return(result);
    });
}
