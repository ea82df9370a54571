#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/CatalogueValue.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

#include <array>

using namespace norvepa;

namespace
{

// Where a board's value is looked for, behind its attributes.
constexpr std::array<const wchar_t*, 2> BoardSections{L"Install", L"BoardAttributes"};

} // namespace

int32_t PGSP_BoardGetValueBL(const wchar_t* DeviceID, const wchar_t* Parameter, wchar_t* Value,
                             uint32_t* dwValue)
{
    return RunExport("PGSP_BoardGetValueBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DeviceID = %s, Parameter = %s", TraceToAnsi(DeviceID),
                   TraceToAnsi(Parameter));
        if (IsMissing(DeviceID) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = BoardFile(programFolder, MakeBoardNameTestFirst(DeviceID));
        const std::uint32_t capacity = *dwValue;
        const Result result =
            ReadFromPlaces(file, BoardSections, ParameterOrDefault(Parameter), Value, dwValue);

        NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Value, capacity), *dwValue);
        return frame.Return(result);
    });
}

int32_t PGSP_BoardGetValueRawBL(const wchar_t* DeviceID, const wchar_t* ParameterPath,
                                const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("PGSP_BoardGetValueRawBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DeviceID = %s, Parameter = %s", TraceToAnsi(DeviceID),
                   TraceToAnsi(Parameter));
        if (IsMissing(DeviceID) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = BoardFile(programFolder, MakeBoardNameTestFirst(DeviceID));
        const wchar_t* const parameter = ParameterOrDefault(Parameter);
        const std::uint32_t capacity = *dwValue;
        const Result result = IsMissing(ParameterPath)
                                  ? ReadFromPlaces(file, BoardSections, parameter, Value, dwValue)
                                  : ReadFromPath(frame, file, ParameterPath, parameter, Value, dwValue);

        NORV_TRACE(frame, TraceInfo, "Value = %s, dwValue = %d", TraceToAnsi(Value, capacity), *dwValue);
        return frame.Return(result);
    });
}
