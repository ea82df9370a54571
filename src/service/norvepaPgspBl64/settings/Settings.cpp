#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/StoreLocations.h"
#include "norvepa.h"
#include "store/norvxml.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

using namespace norvepa;

namespace
{

constexpr wchar_t CommonSection[] = L"PGSP_Section";
constexpr wchar_t TimesSection[] = L"DateTimeSection";

// In the order in which they are asked. What others have put into the second can be read, and is hidden by
// what is set here.
constexpr std::array<const wchar_t*, 3> ReadSections{CommonSection, L"Updates", TimesSection};

// What belongs to the third section, in exact case.
constexpr std::array<std::wstring_view, 3> Times{L"LastStartupTime", L"LastStartupClock", L"LastChangeDate"};

const wchar_t* SectionToWrite(std::wstring_view parameter)
{
    return std::find(Times.begin(), Times.end(), parameter) == Times.end() ? CommonSection : TimesSection;
}

std::wstring SettingsFile(std::wstring_view dataFolder)
{
    return JoinPath(JoinPath(dataFolder, L"data"), L"PGSP");
}

// A value that doesn't fit has been found: the sections behind it aren't asked.
Result ReadSetting(const std::wstring& file, const wchar_t* parameter, wchar_t* value, std::uint32_t* length)
{
    Result result = PGSP_ERR_PARAM_NOT_FOUND;
    for (const wchar_t* const section : ReadSections)
    {
        result = NorvXMLGetValueBuffer(file.c_str(), section, parameter, value, length);
        if (result == PGSP_OK || result == PGSP_ERR_BUFFER_TOO_SHORT)
        {
            return result;
        }
    }
    return result;
}

// The file is made by the first value.
Result WriteSetting(const std::wstring& file, const wchar_t* parameter, const wchar_t* value)
{
    const Result made = NorvXMLCreateFile(file.c_str(), L"pgsp");
    if (made != PGSP_OK && made != PGSP_ERR_FILE_EXISTS)
    {
        return made;
    }
    return NorvXMLSetValue(file.c_str(), SectionToWrite(parameter), parameter, value, L"string");
}

} // namespace

int32_t GetValueInPGSP_BL(const wchar_t* Parameter, wchar_t* Value, uint32_t* dwValue)
{
    return RunExport("GetValueInPGSP_BL: ", [&](const ExportFrame& frame) {
        if (IsMissing(Parameter) || Value == nullptr || dwValue == nullptr)
        {
            return frame.InvalidParameters();
        }
        NORV_TRACE(frame, TraceEntry, ">> Parameter = %s", TraceToAnsi(Parameter));
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::uint32_t capacity = *dwValue;
        const Result result = ReadSetting(SettingsFile(dataFolder), Parameter, Value, dwValue);
        NORV_TRACE(frame, TraceExit, "<< return lRet = %d, Value = %s, dwValue = %d", result,
                   TraceToAnsi(Value, capacity), *dwValue);
        return result;
    });
}

int32_t SetValueInPGSP_BL(const wchar_t* Parameter, const wchar_t* Value)
{
    return RunExport("SetValueInPGSP_BL: ", [&](const ExportFrame& frame) {
        if (IsMissing(Parameter) || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        NORV_TRACE(frame, TraceEntry, ">> Parameter = %s, Value = %s", TraceToAnsi(Parameter),
                   TraceToAnsi(Value));
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const Result result = WriteSetting(SettingsFile(dataFolder), Parameter, Value);
        return frame.Return(result == PGSP_ERR_SAME_VALUE ? PGSP_OK : result);
    });
}
