#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "notify/SendNotification.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "store/LinkSection.h"
#include "store/norvxml.h"

#include <optional>

using namespace norvepa;

namespace
{

constexpr wchar_t NdiSection[] = L"Ndi";

// Of the links that are made here: the standard root of the libraries.
constexpr wchar_t CommonPath[] = L"%commonpath%";

bool IsTextLink(std::wstring_view parameter)
{
    return EqualNoCase(parameter, L"DescDefault") || EqualNoCase(parameter, L"DescText");
}

bool IsPageLink(std::wstring_view parameter)
{
    return EqualNoCase(parameter, L"PropSheet") || EqualNoCase(parameter, L"Diagnosis");
}

// A link as a caller writes it: a library, a comma, and what is meant in it, which may hold more of them.
struct LinkValue
{
    std::wstring assembly;
    std::wstring target;
};

std::optional<LinkValue> SplitLink(std::wstring_view value)
{
    const std::size_t comma = value.find(L',');
    if (comma == std::wstring_view::npos)
    {
        return std::nullopt;
    }
    return LinkValue{std::wstring(value.substr(0, comma)), std::wstring(value.substr(comma + 1))};
}

Result WriteTextLink(const ExportFrame& frame, const std::wstring& file, const wchar_t* parameter,
                     const wchar_t* value, int wide)
{
    const auto link = SplitLink(value);
    if (!link)
    {
        return NorvXMLSetNdi(file.c_str(), parameter, nullptr, nullptr, nullptr, value, wide);
    }
    NORV_TRACE(frame, TraceInfo, "Create Resource with Assembly = %s, Path = %s, ResourceId = %s",
               TraceToAnsi(link->assembly.c_str()), TraceToAnsi(CommonPath),
               TraceToAnsi(link->target.c_str()));
    return NorvXMLSetNdi(file.c_str(), parameter, link->assembly.c_str(), CommonPath, nullptr,
                         link->target.c_str(), wide);
}

Result WritePageLink(const ExportFrame& frame, const std::wstring& file, const wchar_t* parameter,
                     const LinkValue& link, int wide)
{
    NORV_TRACE(frame, TraceInfo, "Create ParameterAssemblyLink with Assembly = %s, Path = %s, Function = %s",
               TraceToAnsi(link.assembly.c_str()), TraceToAnsi(CommonPath), TraceToAnsi(link.target.c_str()));
    return NorvXMLSetNdi(file.c_str(), parameter, link.assembly.c_str(), CommonPath, link.target.c_str(),
                         nullptr, wide);
}

// Of the catalogue; without a word of it only these two spellings make a truth value.
std::wstring TypeOf(DeviceCatalogue& catalogue, const wchar_t* parameter, std::wstring_view value)
{
    std::wstring type = ConstraintOrEmpty(catalogue, parameter, L"type");
    if (type.empty())
    {
        type = value == L"true" || value == L"false" ? L"bool" : L"string";
    }
    return type;
}

Result WritePlain(const ExportFrame& frame, DeviceCatalogue& catalogue, const std::wstring& file,
                  const wchar_t* parameter, const wchar_t* value)
{
    const std::wstring type = TypeOf(catalogue, parameter, value);
    NORV_TRACE(frame, TraceInfo, "Type not found. Using Type = %s", TraceToAnsi(type.c_str()));
    return NorvXMLSetValue(file.c_str(), NdiSection, parameter, value, type.c_str());
}

Result WriteByName(const ExportFrame& frame, DeviceCatalogue& catalogue, const wchar_t* parameter,
                   const wchar_t* value, int wide)
{
    const std::wstring file = LogDeviceFile(catalogue.dataFolder(), catalogue.logDevice());
    if (IsTextLink(parameter))
    {
        return WriteTextLink(frame, file, parameter, value, wide);
    }
    if (const auto link = SplitLink(value); link && IsPageLink(parameter))
    {
        return WritePageLink(frame, file, parameter, *link, wide);
    }
    return WritePlain(frame, catalogue, file, parameter, value);
}

// In the section of plain values, or else the link to a page, or else a plain value beside the links.
Result DelWhereItIs(const wchar_t* file, const wchar_t* parameter, int wide)
{
    Result result = NorvXMLDelValue(file, NdiSection, parameter);
    if (result != PGSP_OK)
    {
        result = NorvXMLDelNdi(file, parameter, wide);
    }
    if (result != PGSP_OK)
    {
        result = NorvXMLDelValue(file, LinkSection(wide), parameter);
    }
    return result;
}

} // namespace

int32_t PGSP_LogDeviceSetNdiBL(const wchar_t* LogDevice, const wchar_t* Parameter, const wchar_t* Value,
                               int32_t flag)
{
    return RunExport("PGSP_LogDeviceSetNdiBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s, Value = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter), TraceToAnsi(Value));
        if (IsMissing(LogDevice) || IsMissing(Parameter) || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        DeviceCatalogue catalogue(LogDevice, dataFolder);
        const Result result = WriteByName(frame, catalogue, Parameter, Value, flag);
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogDevicesWord, LogDevice, L"5");
        }
        return frame.Return(result == PGSP_ERR_SAME_VALUE ? PGSP_OK : result);
    });
}

int32_t PGSP_LogDeviceDelNdiBL(const wchar_t* LogDevice, const wchar_t* Parameter, int32_t flag)
{
    return RunExport("PGSP_LogDeviceDelNdiBL: ", [&](const ExportFrame& frame) {
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

        const Result result =
            CommitDeletion(LogDeviceFolder(dataFolder), LogDevice, L"Corvane.Device.Driver.Logdevice",
                           [&](const wchar_t* file) { return DelWhereItIs(file, Parameter, flag); });
        if (result == PGSP_OK)
        {
            SendNotificationBL(LogDevicesWord, LogDevice, L"6");
        }
        return frame.Return(result);
    });
}
