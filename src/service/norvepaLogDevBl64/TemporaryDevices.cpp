#include "frame/Arguments.h"
#include "frame/TemporaryName.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/FileSteps.h"
#include "store/ProvisionalFile.h"
#include "store/norvxml.h"

#include <windows.h>

#include <array>
#include <cstdint>
#include <cwchar>
#include <string>

using namespace norvepa;

namespace
{

constexpr std::uint8_t TemporaryNumbers = 255; // 000 to 254

std::wstring NumberedName(std::uint8_t number)
{
    std::array<wchar_t, 4> digits{};
    static_cast<void>(std::swprintf(digits.data(), digits.size(), L"%03i", int{number}));
    return std::wstring(TemporaryPrefix) + digits.data();
}

struct TemporaryDevice
{
    std::wstring name; // empty when none could be made
    std::wstring file; // as it is called on disk
};

// Nobody keeps account of the numbers: a copy to a file that is there fails, so the copy itself claims one,
// also between processes. A failure for any other reason costs all of them. `originalIn` answers the
// original's path for a data folder, which is looked up for each try.
template <typename OriginalIn>
TemporaryDevice CopyToFreeNumber(const OriginalIn& originalIn)
{
    for (std::uint8_t number = 0; number < TemporaryNumbers; ++number)
    {
        const std::wstring name = NumberedName(number);
        const std::wstring dataFolder = GetDataFolder();
        const std::wstring original = originalIn(dataFolder);
        const std::wstring file = LogDeviceFile(dataFolder, name);
        const Copying copying(original.c_str(), file.c_str());
        TemporaryDevice made{name, copying.newFile()}; // ahead of the copy, which must not be lost behind it
        if (copying.Run() == PGSP_OK)
        {
            return made;
        }
    }
    return {};
}

Result NoneMade(const ExportFrame& frame, TracePlace place = TracePlace::current())
{
    NORV_TRACE_AT(place, frame, TraceExit, "<< return PGSP_CANT_CREATE_TEMP_LOG_DEVICE");
    return PGSP_CANT_CREATE_TEMP_LOG_DEVICE;
}

// A name that doesn't fit keeps its number, and its caller can't learn it.
Result ReturnName(const ExportFrame& frame, const std::wstring& name, wchar_t* buffer, std::uint32_t* length,
                  TracePlace place = TracePlace::current())
{
    if (CopyOut(name, buffer, length) != PGSP_OK)
    {
        return frame.BufferTooShort(place);
    }
    NORV_TRACE_AT(place, frame, TraceExit, "<< return PGSP_OK, TempLogDevice = %s",
                  TraceToAnsi(name.c_str()));
    return PGSP_OK;
}

} // namespace

int32_t LogDeviceCreateTempBL(const wchar_t* LogDevice, wchar_t* TempLogDevice, uint32_t* dwTempLogDevice)
{
    return RunExport("LogDeviceCreateTempBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s", TraceToAnsi(LogDevice));
        if (IsMissing(LogDevice) || TempLogDevice == nullptr || dwTempLogDevice == nullptr)
        {
            return frame.InvalidParameters();
        }

        const TemporaryDevice made = CopyToFreeNumber(
            [&](const std::wstring& dataFolder) { return LogDeviceFile(dataFolder, LogDevice); });
        return made.name.empty() ? NoneMade(frame)
                                 : ReturnName(frame, made.name, TempLogDevice, dwTempLogDevice);
    });
}

int32_t LogDeviceCreateTempFromDefBL(const wchar_t* DefLogDeviceName, wchar_t* TempLogDevice,
                                     uint32_t* dwTempLogDevice)
{
    return RunExport("LogDeviceCreateTempFromDefBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> DefLogDeviceName = %s", TraceToAnsi(DefLogDeviceName));
        if (IsMissing(DefLogDeviceName) || TempLogDevice == nullptr || dwTempLogDevice == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring name = MakeTemplateName(DefLogDeviceName);
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }
        const std::wstring programFolder = GetProgramFolder();
        if (programFolder.empty())
        {
            return frame.FolderNotFound("Can not get Corvane OAM path from Program Files");
        }

        CreateDirectoryW(LogDeviceFolder(dataFolder).c_str(), nullptr);
        const TemporaryDevice made =
            CopyToFreeNumber([&](const std::wstring&) { return TemplateFile(programFolder, name); });
        if (made.name.empty())
        {
            return NoneMade(frame);
        }
        const ProvisionalFile provisional(made.file);
        static_cast<void>(
            AnswerOf(PGSP_LogDeviceSetNdiBL(made.name.c_str(), L"DefLogDevice", DefLogDeviceName, 0)));
        return ReturnName(frame, made.name, TempLogDevice, dwTempLogDevice);
    });
}

int32_t LogDeviceUpdateWithTempBL(const wchar_t* TempLogDevice, const wchar_t* LogDevice)
{
    return RunExport("LogDeviceUpdateWithTempBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> TempLogDevice = %s, LogDevice = %s", TraceToAnsi(TempLogDevice),
                   TraceToAnsi(LogDevice));
        if (TempLogDevice == nullptr || LogDevice == nullptr)
        {
            return frame.InvalidParameters();
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        // There is no way back from the first step: nothing of ours that needs memory is between the three.
        const std::wstring temporary = LogDeviceFile(dataFolder, TempLogDevice);
        const std::wstring file = LogDeviceFile(dataFolder, LogDevice);
        const Deletion deletion(file.c_str());
        const Copying copying(temporary.c_str(), file.c_str());
        const Deletion removal(temporary.c_str());

        if (const Result result = deletion.Run(); result != PGSP_OK)
        {
            return frame.Return(result == PGSP_ERR_CANT_DELETE_FILE ? PGSP_ERR_FILE_NOT_FOUND : result);
        }
        if (const Result result = copying.Run(); result != PGSP_OK)
        {
            return frame.Return(result);
        }
        NORV_TRACE(frame, TraceExit, "<< LogDevice updated. TempLogDevice deleted.");
        return removal.Run();
    });
}

int32_t LogDeviceDelTempBL(const wchar_t* TempLogDevice)
{
    return RunExport("LogDeviceDelTempBL: ", [&](const ExportFrame& frame) -> Result {
        NORV_TRACE(frame, TraceEntry, ">> TempLogDevice = %s", TraceToAnsi(TempLogDevice));
        if (IsMissing(TempLogDevice))
        {
            return frame.InvalidParameters();
        }
        if (!IsTemporaryToDelete(TempLogDevice))
        {
            return PGSP_ERR_INVALID_PARAMETERS; // without an exit trace
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }

        return frame.Return(NorvXMLDeleteFile(LogDeviceFile(dataFolder, TempLogDevice).c_str()));
    });
}
