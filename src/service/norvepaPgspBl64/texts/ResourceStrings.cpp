#include "frame/Arguments.h"
#include "frame/ExportFrame.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaLogNamBl64/norvepaLogNamBl64.h"
#include "service/norvepaPgspBl64/NameForms.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "service/norvepaPgspBl64/texts/LoadResourceString.h"

#include <string>

using namespace norvepa;

int32_t PGSP_LogDeviceGetResourceStringBL(const wchar_t* LogDevice, const wchar_t* Parameter,
                                          const wchar_t* Language, wchar_t* Value, uint32_t* dwValue,
                                          int32_t flag)
{
    return RunExport("PGSP_LogDeviceGetResourceStringBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s", TraceToAnsi(LogDevice));
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = LogDeviceFile(dataFolder, TextOrEmpty(LogDevice));
        return frame.Return(PGSP_LoadResourceString(file.c_str(), Parameter, Language, Value, dwValue, flag));
    });
}

int32_t PGSP_LogNameGetResourceStringBL(const wchar_t* LogName, const wchar_t* Parameter,
                                        const wchar_t* Language, wchar_t* Value, uint32_t* dwValue,
                                        int32_t flag)
{
    return RunExport("PGSP_LogNameGetResourceStringBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogName = %s", TraceToAnsi(LogName));
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        const std::wstring file = LogNameFile(dataFolder, TextOrEmpty(LogName));
        return frame.Return(PGSP_LoadResourceString(file.c_str(), Parameter, Language, Value, dwValue, flag));
    });
}

int32_t PGSP_BoardGetResourceStringBL(const wchar_t* Board, const wchar_t* Parameter, const wchar_t* Language,
                                      wchar_t* Value, uint32_t* dwValue, int32_t flag)
{
    return RunExport("PGSP_BoardGetResourceStringBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> Board = %s", TraceToAnsi(Board));
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }

        const std::wstring file = BoardFile(programFolder, MakeBoardNameTestFirst(TextOrEmpty(Board)));
        return frame.Return(PGSP_LoadResourceString(file.c_str(), Parameter, Language, Value, dwValue, flag));
    });
}

int32_t PGSP_TemplateGetResourceStringBL(const wchar_t* FolderName, const wchar_t* TemplateName,
                                         const wchar_t* Parameter, const wchar_t* Language, wchar_t* Value,
                                         uint32_t* dwValue, int32_t flag)
{
    return RunExport("PGSP_TemplateGetResourceStringBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> FolderName = %s, TemplateName = %s", TraceToAnsi(FolderName),
                   TraceToAnsi(TemplateName));
        if (IsMissing(FolderName) || IsMissing(TemplateName))
        {
            return frame.InvalidParameters();
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get FilesOAM Path");
        }
        std::wstring file;
        if (const Result result =
                MakeFileIn(TemplateGetResourceStringForms, programFolder, FolderName, TemplateName, file);
            result != PGSP_OK)
        {
            return result; // without an exit trace
        }
        return frame.Return(PGSP_LoadResourceString(file.c_str(), Parameter, Language, Value, dwValue, flag));
    });
}
