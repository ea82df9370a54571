#include "catalogue/ConstraintKey.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "service/norvepaPgspBl64/profiles/profiles.h"

#include <algorithm>
#include <cstdint>

using namespace norvepa;

namespace
{

// A caller's buffer, and what has been written to it, in characters with all terminators.
struct Output
{
    wchar_t* buffer;
    std::uint32_t capacity;
    std::uint32_t written;
};

enum class ValuesRead
{
    None,
    All,
    TooMany // those that fit are there
};

// The values of a list, one behind the other. The caller writes the terminator behind the last.
ValuesRead ReadValues(const std::wstring& file, const std::wstring& key, Output& output)
{
    std::wstring value;
    std::uint32_t index = 0;
    for (; NorvXMLEnumValueCollectionRaw(file.c_str(), key.c_str(), index, &value) == PGSP_OK; ++index)
    {
        if (output.capacity - output.written <= value.size())
        {
            return ValuesRead::TooMany;
        }
        *std::copy(value.begin(), value.end(), output.buffer + output.written) = L'\0';
        output.written += static_cast<std::uint32_t>(value.size() + 1);
    }
    return index == 0 ? ValuesRead::None : ValuesRead::All;
}

// No total is worked out: the length tells what the buffer holds.
Result ReturnTooMany(const ExportFrame& frame, const std::wstring& catalogueName, const Output& output,
                     std::uint32_t* length, TracePlace place = TracePlace::current())
{
    NORV_TRACE_AT(place, frame, TraceInfo, "Not all values returned from %s",
                  TraceToAnsi(catalogueName.c_str()));
    *length = output.written;
    return frame.BufferTooShort(place);
}

// The terminator behind the last isn't counted, neither in what the caller offers nor in what is told: the
// buffer has to have room for it.
Result ReturnAll(const ExportFrame& frame, const Output& output, std::uint32_t* length,
                 TracePlace place = TracePlace::current())
{
    output.buffer[output.written] = L'\0';
    *length = output.written;
    return frame.Return(PGSP_OK, place);
}

} // namespace

int32_t PGSP_LogDeviceGetMostSpecializedEnumListBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                                   wchar_t* Values, uint32_t* dwValues)
{
    return RunExport("PGSP_LogDeviceGetMostSpecializedEnumListBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Parameter = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Parameter));
        if (IsMissing(LogDevice) || IsMissing(Parameter) || Values == nullptr || dwValues == nullptr ||
            *dwValues == 0)
        {
            return frame.InvalidParameters();
        }
        std::wstring deviceId;
        if (PGSP_LogDeviceGetValue(LogDevice, L"DeviceID", &deviceId) != PGSP_OK)
        {
            NORV_TRACE(frame, TraceExit, "<< return. Argument DeviceID not found");
            return PGSP_ERR_PARAM_NOT_FOUND;
        }
        const std::wstring board = MakeBoardNameStripFirst(deviceId);
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        Output output{Values, *dwValues, 0};
        switch (ReadValues(BoardFile(programFolder, board), ConstraintKey(Parameter), output))
        {
        case ValuesRead::TooMany:
            return ReturnTooMany(frame, board, output, dwValues);
        case ValuesRead::All:
            NORV_TRACE(frame, TraceInfo, "Read values from Board file %s", TraceToAnsi(board.c_str()));
            return ReturnAll(frame, output, dwValues);
        case ValuesRead::None:
            break;
        }

        std::wstring cpType;
        if (PGSP_LogDeviceGetValue(LogDevice, L"CP_TYPE", &cpType) != PGSP_OK)
        {
            NORV_TRACE(frame, TraceExit, "<< return. Argument CP_TYPE not found");
            return PGSP_ERR_PARAM_NOT_FOUND;
        }
        const std::wstring protocol = MakeProtocolName(cpType);
        std::wstring key;
        if (MakeProtocolKey(protocol, LogDevice, Parameter, key) != PGSP_OK)
        {
            NORV_TRACE(frame, TraceExit, "<< return. Busparam not found");
            return PGSP_ERR_PARAM_NOT_FOUND;
        }
        if (ReadValues(ProtocolFile(programFolder, protocol), key, output) == ValuesRead::TooMany)
        {
            return ReturnTooMany(frame, protocol, output, dwValues);
        }
        NORV_TRACE(frame, TraceInfo, "Read values from Protocol file %s", TraceToAnsi(protocol.c_str()));
        return ReturnAll(frame, output, dwValues);
    });
}
