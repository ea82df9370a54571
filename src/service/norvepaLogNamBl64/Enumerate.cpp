#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "store/FileWalk.h"
#include "store/norvxml.h"
#include "xml/CallImages.h"

#include <string>

using namespace norvepa;

namespace
{

bool IsHidden(const std::wstring& logName)
{
    std::wstring hidden;
    return PGSP_LogNameGetValue(logName.c_str(), L"hidden", &hidden) == PGSP_OK &&
           EqualNoCase(hidden, L"true");
}

} // namespace

int32_t LogNameGetEnumBL(uint32_t index, wchar_t* LogName, uint32_t* LogNameLen)
{
    return RunExport("LogNameGetEnumBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> index = %d", index);
        if (LogName == nullptr || LogNameLen == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        if (*LogNameLen == 0) // which no name fits, whatever the folder holds
        {
            NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_NO_MORE_ITEMS");
            return PGSP_ERR_NO_MORE_ITEMS;
        }

        const StandingRoots roots;
        const FolderWalk look(LogNameFolder(dataFolder));
        FileWalk files(LogNameFolder(dataFolder), dataFolder);
        std::wstring candidate;
        std::uint32_t remaining = index;
        for (std::uint32_t i = 0;; ++i)
        {
            // A name too long for the buffer looks like the end of the list, wherever it stands.
            if (files.At(i, &candidate) != PGSP_OK || candidate.size() >= *LogNameLen)
            {
                NORV_TRACE(frame, TraceExit, "<< return PGSP_ERR_NO_MORE_ITEMS");
                return PGSP_ERR_NO_MORE_ITEMS;
            }
            if (!IsHidden(candidate) && remaining-- == 0)
            {
                break;
            }
        }

        const Result result = CopyOut(candidate, LogName, LogNameLen);
        NORV_TRACE(frame, TraceExit, "<< return LogName = %s, LogNameLen = %d, index = %d",
                   TraceToAnsi(candidate.c_str()), *LogNameLen, index);
        return result;
    });
}

int32_t LogNameGetEnumValueBL(const wchar_t* LogName, uint32_t index, wchar_t* Parameter, uint32_t* parLen,
                              wchar_t* Value, uint32_t* valLen)
{
    return RunExport("LogNameGetEnumValueBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s, index = %d", TraceToAnsi(LogName), index);
        const PairBuffers pair{Parameter, parLen, Value, valLen};
        if (IsMissing(LogName) || !pair.HasBuffers() || !pair.HasLengths())
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const Result result = NorvXMLEnumValue(LogNameFile(dataFolder, LogName).c_str(), index, pair);
        if (result != PGSP_OK)
        {
            return frame.Return(result);
        }
        NORV_TRACE(frame, TraceExit, "Parameter = %s, parLen = %d, Value = %s, valLen = %d",
                   TraceToAnsi(Parameter), *parLen, TraceToAnsi(Value), *valLen);
        return PGSP_OK;
    });
}
