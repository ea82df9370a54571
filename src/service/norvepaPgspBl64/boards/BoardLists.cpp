#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/norvxml.h"

#include <algorithm>
#include <vector>

using namespace norvepa;

namespace
{

Result ReadNamedValue(const std::wstring& file, const std::wstring& name, std::wstring& value)
{
    if (EqualNoCase(name, L"DeviceID") || EqualNoCase(name, L"CP_TYPE"))
    {
        return NorvXMLElementGetAttribute(file.c_str(), name.c_str(), &value);
    }
    const Result result = NorvXMLGetValue(file.c_str(), L"Install", name.c_str(), &value);
    return result == PGSP_OK ? result
                             : NorvXMLGetValue(file.c_str(), L"BoardAttributes", name.c_str(), &value);
}

} // namespace

int32_t PGSP_BoardGetValueListBL(const wchar_t* DeviceID, const wchar_t* Names, uint32_t NamesLen,
                                 wchar_t* Values, uint32_t* dwValues)
{
    return RunExport("PGSP_BoardGetValueListBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> DeviceID = %s", TraceToAnsi(DeviceID));
        const bool namesAreThere = Names != nullptr || NamesLen == 0;
        if (IsMissing(DeviceID) || !namesAreThere || Values == nullptr || dwValues == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = BoardFile(programFolder, MakeBoardNameTestFirst(DeviceID));
        std::vector<std::wstring> values;
        for (const std::wstring& name : SplitStringList(Names, NamesLen))
        {
            if (ReadNamedValue(file, name, values.emplace_back()) != PGSP_OK)
            {
                return PGSP_ERR_INVALID_PARAMETERS; // whatever the cause, and without an exit trace
            }
        }

        const Packing packing = PackStringList(values, Values, *dwValues);
        if (packing.outcome == PackOutcome::TooShort)
        {
            return NotAllReturned(frame, packing, dwValues);
        }
        if (packing.outcome == PackOutcome::NoRoomForEnd)
        {
            *dwValues = packing.written;
            return frame.Return(PGSP_OK); // a success here, unlike in every other list
        }
        *dwValues = packing.written + 1;
        return frame.Ok();
    });
}

int32_t PGSP_BoardGetValueCollectionBL(const wchar_t* Collection, const wchar_t* DeviceID, wchar_t* Values,
                                       uint32_t* dwValues)
{
    return RunExport("PGSP_BoardGetValueCollectionBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> %s: DeviceID = %s", TraceToAnsi(Collection), TraceToAnsi(DeviceID));
        if (IsMissing(DeviceID) || Values == nullptr || dwValues == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = BoardFile(programFolder, MakeBoardNameTestFirst(DeviceID));
        std::vector<std::wstring> values;
        std::wstring value;
        Result end = PGSP_OK;
        for (std::uint32_t index = 0; end == PGSP_OK; ++index)
        {
            end = NorvXMLEnumValueCollectionRaw(file.c_str(), Collection, index, &value);
            if (end == PGSP_OK)
            {
                values.push_back(value);
            }
        }

        const Packing packing = PackStringList(values, Values, *dwValues);
        if (packing.outcome == PackOutcome::TooShort)
        {
            // Cleared, not kept, and whatever the capacity: the buffer must have that room.
            std::fill_n(Values, KeptCharacters, L'\0');
            return NotAllReturned(frame, packing, dwValues);
        }
        if (packing.outcome == PackOutcome::NoRoomForEnd)
        {
            *dwValues = packing.written;
            return frame.Return(end); // what ended the enumeration
        }
        *dwValues = packing.written + 1;
        return frame.Ok();
    });
}

int32_t PGSP_BoardGetNotSupportedBL(const wchar_t* DeviceID, wchar_t* Values, uint32_t* dwValues)
{
    return PGSP_BoardGetValueCollectionBL(L"NotSupported", DeviceID, Values, dwValues);
}
