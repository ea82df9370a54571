#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/CatalogueValue.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/norvxml.h"

#include <array>

using namespace norvepa;

namespace
{

// Where a template's value is looked for, behind its attributes.
constexpr std::array<const wchar_t*, 5> TemplateSections{L"DeviceHeader", L"LocalSettings",
                                                         L"NetworkSettings", L"Bindings", L"Ndi"};

// A link that a parameter of a template stands for, as text.
Result ReadLink(const std::wstring& file, const wchar_t* parameter, std::int32_t wide, wchar_t* value,
                std::uint32_t* length)
{
    std::wstring assembly;
    std::wstring path;
    std::wstring target;
    const Result result =
        NorvXMLGetParameterAssemblyLink(file.c_str(), parameter, &assembly, &path, &target, wide);
    return result == PGSP_OK ? CopyOut(assembly + L"," + target, value, length) : result;
}

Result ReadValueOrLink(const std::wstring& file, const wchar_t* parameter, std::int32_t wide, wchar_t* value,
                       std::uint32_t* length)
{
    const std::uint32_t capacity = *length;
    if (ReadFromPlaces(file, TemplateSections, parameter, value, length) == PGSP_OK)
    {
        return PGSP_OK;
    }
    *length = capacity;
    return ReadLink(file, parameter, wide, value, length);
}

} // namespace

int32_t PGSP_DefDeviceGetEnumValueBL(const wchar_t* DefDevice, uint32_t index, wchar_t* Parameter,
                                     uint32_t* parLen, wchar_t* Value, uint32_t* valLen)
{
    return RunExport("PGSP_DefDeviceGetEnumValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DefDevice = %s, index = %d", TraceToAnsi(DefDevice), index);
        if (IsMissing(DefDevice))
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = TemplateFile(programFolder, MakeTemplateName(DefDevice));
        const std::uint32_t parameterCapacity = LengthOrZero(parLen);
        const std::uint32_t valueCapacity = LengthOrZero(valLen);
        const Result result = NorvXMLEnumValue(file.c_str(), index, {Parameter, parLen, Value, valLen});

        NORV_TRACE(frame, TraceInfo, "Parameter = %s, parLen = %d, Value = %s, valLen = %d",
                   TraceToAnsi(Parameter, parameterCapacity), LengthOrZero(parLen),
                   TraceToAnsi(Value, valueCapacity), LengthOrZero(valLen));
        return frame.Return(result);
    });
}

int32_t PGSP_DefDeviceGetValueBL(const wchar_t* DefDevice, const wchar_t* Parameter, wchar_t* Value,
                                 uint32_t* dwValue, int32_t flag)
{
    return RunExport("PGSP_DefDeviceGetValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DefDevice = %s, Parameter = %s", TraceToAnsi(DefDevice),
                   TraceToAnsi(Parameter));
        if (IsMissing(DefDevice) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = TemplateFile(programFolder, MakeTemplateName(DefDevice));
        return frame.Return(ReadValueOrLink(file, ParameterOrDefault(Parameter), flag, Value, dwValue));
    });
}

int32_t PGSP_DefDeviceGetValueRawBL(const wchar_t* DefDevice, const wchar_t* ParameterPath,
                                    const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("PGSP_DefDeviceGetValueRawBL: ", [&](const ExportFrame& frame) {
        if (IsMissing(DefDevice) || IsMissing(Parameter) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        NORV_TRACE(frame, TraceEntry, ">> DefDevice = %s, Parameter = %s", TraceToAnsi(DefDevice),
                   TraceToAnsi(Parameter));
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = TemplateFile(programFolder, MakeTemplateName(DefDevice));
        return frame.Return(IsMissing(ParameterPath)
                                ? NorvXMLElementGetAttribute(file.c_str(), Parameter, Value, dwValue)
                                : ReadFromPath(frame, file, ParameterPath, Parameter, Value, dwValue));
    });
}
