#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/FileWalk.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace norvepa;

namespace
{

// What a caller may ask for; every other number asks for nothing.
constexpr std::uint32_t ModeEqual = 1;
constexpr std::uint32_t ModeUnequal = 2;

// The value of a parameter; empty when there is none, or none that fits.
std::wstring ValueOf(const std::wstring& logDevice, const wchar_t* parameter)
{
    std::array<wchar_t, PathCapacity> value{};
    std::uint32_t length = PathCapacity;
    if (AnswerOf(LogDeviceGetValueBL(logDevice.c_str(), parameter, value.data(), &length)) != PGSP_OK)
    {
        return {};
    }
    return std::wstring(value.data(), length);
}

bool IsAskedFor(const ExportFrame& frame, const std::wstring& value, const wchar_t* entryValue,
                std::uint32_t mode)
{
    const bool isEqual = EqualNoCase(value, entryValue);
    if (mode == ModeEqual && isEqual)
    {
        NORV_TRACE(frame, TraceInfo, "Equal: foundValue = %s  EntryValue = %s", TraceToAnsi(value.c_str()),
                   TraceToAnsi(entryValue));
        return true;
    }
    if (mode == ModeUnequal && !isEqual)
    {
        NORV_TRACE(frame, TraceInfo, "Unequal: foundValue = %s  EntryValue = %s", TraceToAnsi(value.c_str()),
                   TraceToAnsi(entryValue));
        return true;
    }
    return false;
}

Result ReturnAsNumber(const ExportFrame& frame, Result result)
{
    NORV_TRACE(frame, TraceExit, "<< return 0x%x", static_cast<unsigned>(result));
    return result;
}

// A list of nothing is an end of items here, unlike in every other list.
Result ReturnNothing(const ExportFrame& frame, wchar_t* buffer, std::uint32_t* length)
{
    std::fill_n(buffer, std::min<std::uint32_t>(*length, 2), L'\0');
    *length = 1;
    return ReturnAsNumber(frame, PGSP_ERR_NO_MORE_ITEMS);
}

Result ReturnNames(const ExportFrame& frame, const std::vector<std::wstring>& names, wchar_t* buffer,
                   std::uint32_t* length)
{
    const Packing packing = PackStringList(names, buffer, *length);
    if (packing.outcome == PackOutcome::TooShort)
    {
        return NotAllReturned(frame, packing, length);
    }
    if (packing.outcome == PackOutcome::NoRoomForEnd)
    {
        *length = packing.written;
        return ReturnAsNumber(frame, PGSP_ERR_BUFFER_TOO_SHORT);
    }
    if (names.empty())
    {
        return ReturnNothing(frame, buffer, length);
    }
    *length = packing.written + 1;
    return ReturnAsNumber(frame, PGSP_OK);
}

} // namespace

int32_t PGSP_GetLogDeviceListExBL(const wchar_t* EntryName, const wchar_t* EntryValue, uint32_t mode,
                                  wchar_t* LogDevices, uint32_t* dwLogDevices)
{
    return RunExport("PGSP_GetLogDeviceListExBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceInfo, "EntryName = %s  EntryValue = %s", TraceToAnsi(EntryName),
                   TraceToAnsi(EntryValue));
        if (IsMissing(EntryName) || IsMissing(EntryValue) || LogDevices == nullptr || dwLogDevices == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        FileWalk files(LogDeviceFolder(dataFolder), dataFolder);
        std::vector<std::wstring> names;
        std::wstring name;
        for (std::uint32_t index = 0; files.At(index, &name) == PGSP_OK; ++index)
        {
            const std::wstring value = ValueOf(name, EntryName);
            if (!value.empty() && IsAskedFor(frame, value, EntryValue, mode))
            {
                names.push_back(name);
            }
        }
        return ReturnNames(frame, names, LogDevices, dwLogDevices);
    });
}
