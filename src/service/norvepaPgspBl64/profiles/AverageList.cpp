#include "catalogue/ConstraintKey.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "service/norvepaPgspBl64/profiles/profiles.h"

#include <algorithm>
#include <cstdint>
#include <vector>

using namespace norvepa;

namespace
{

std::vector<std::wstring> ReadList(const std::wstring& file, const std::wstring& key)
{
    std::vector<std::wstring> values;
    std::wstring value;
    for (std::uint32_t index = 0;
         NorvXMLEnumValueCollectionRaw(file.c_str(), key.c_str(), index, &value) == PGSP_OK; ++index)
    {
        values.push_back(value);
    }
    return values;
}

// Of a catalogue's value only what is ahead of a "/" is compared.
std::wstring_view Compared(std::wstring_view value)
{
    return value.substr(0, value.find(L'/'));
}

// What both lists hold, whole and in the order of the first; case counts.
void KeepCommon(std::vector<std::wstring>& values, const std::vector<std::wstring>& others)
{
    std::erase_if(values, [&](const std::wstring& value) {
        return std::none_of(others.begin(), others.end(),
                            [&](const std::wstring& other) { return Compared(value) == Compared(other); });
    });
}

Result ReturnValues(const ExportFrame& frame, const std::vector<std::wstring>& values,
                    const std::wstring& board, wchar_t* buffer, std::uint32_t* length,
                    TracePlace place = TracePlace::current())
{
    const Packing packing = PackStringList(values, buffer, *length);
    switch (packing.outcome)
    {
    case PackOutcome::TooShort:
        *length = packing.needed;
        NORV_TRACE_AT(place, frame, TraceInfo, "Not all values are returned from %s",
                      TraceToAnsi(board.c_str()));
        return frame.BufferTooShort(place);
    case PackOutcome::NoRoomForEnd:
        *length = packing.written;
        return frame.BufferTooShort(place);
    case PackOutcome::Packed:
        break;
    }
    *length = packing.written; // without the last terminator, unlike in every other list
    return frame.Ok(place);
}

} // namespace

int32_t PGSP_LogDeviceGetAverageEnumListBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                           wchar_t* Values, uint32_t* dwValues)
{
    return RunExport("PGSP_LogDeviceGetAverageEnumListBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter));
        if (IsMissing(LogDevice) || IsMissing(Parameter) || Values == nullptr || dwValues == nullptr ||
            *dwValues == 0)
        {
            return frame.InvalidParameters();
        }
        std::wstring deviceId;
        std::wstring cpType;
        const Result ofBoard = PGSP_LogDeviceGetValue(LogDevice, L"DeviceID", &deviceId);
        const Result ofProtocol = PGSP_LogDeviceGetValue(LogDevice, L"CP_TYPE", &cpType);
        if (ofBoard != PGSP_OK || ofProtocol != PGSP_OK)
        {
            NORV_TRACE(frame, TraceExit, "<< return. Argument DeviceID or CP_TYPE not found");
            return PGSP_ERR_PARAM_NOT_FOUND;
        }
        const std::wstring board = MakeBoardNameStripFirst(deviceId);
        const std::wstring protocol = MakeProtocolName(cpType);
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        std::vector<std::wstring> values =
            ReadList(BoardFile(programFolder, board), ConstraintKey(Parameter));
        std::wstring key;
        if (MakeProtocolKey(protocol, LogDevice, Parameter, key) != PGSP_OK)
        {
            NORV_TRACE(frame, TraceExit, "<< return. Argument Busparam not found");
            return PGSP_ERR_PARAM_NOT_FOUND;
        }
        const std::vector<std::wstring> others = ReadList(ProtocolFile(programFolder, protocol), key);

        if (values.empty() && others.empty())
        {
            NORV_TRACE(frame, TraceExit, "<< return. No Values found in %s and %s", "",
                       TraceToAnsi(board.c_str()));
            return PGSP_ERR_PARAM_NOT_FOUND;
        }
        if (others.empty())
        {
            NORV_TRACE(frame, TraceInfo, "No values found in %s", TraceToAnsi(protocol.c_str()));
        }
        else if (values.empty())
        {
            NORV_TRACE(frame, TraceInfo, "No values found in %s", TraceToAnsi(board.c_str()));
            values = others;
        }
        else
        {
            KeepCommon(values, others);
        }
        return ReturnValues(frame, values, board, Values, dwValues);
    });
}
