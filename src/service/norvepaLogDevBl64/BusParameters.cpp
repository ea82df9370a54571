#include "frame/Arguments.h"
#include "frame/Text.h"
#include "norvepa.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/profiles/profiles.h"
#include "store/norvxml.h"

#include <cstdint>
#include <string>

using namespace norvepa;

namespace
{

constexpr wchar_t SpeedSection[] = L"LocalSettings";

Result WriteSpeed(const std::wstring& file, const wchar_t* value)
{
    const Result result = NorvXMLSetValue(file.c_str(), SpeedSection, PGSP_PARAM_BAUDRATE, value, L"int");
    return result == PGSP_ERR_SAME_VALUE ? PGSP_OK : result;
}

// A profile of the user's own doesn't depend on the speed.
Result ApplyProfileAgain(const wchar_t* logDevice)
{
    std::wstring profile;
    static_cast<void>(LogDeviceGetValue(logDevice, PGSP_PARAM_PROFILES, &profile));
    if (EqualNoCase(profile, PGSP_PARAM_PROFILES_USER))
    {
        return PGSP_OK;
    }
    return PGSP_LogDeviceEnumSetProfileBL(logDevice, PGSP_PARAM_PROFILES, profile.c_str());
}

Result WriteSpeedAndProfile(const std::wstring& file, const wchar_t* logDevice, const wchar_t* value)
{
    const Result result = WriteSpeed(file, value);
    return result == PGSP_OK ? ApplyProfileAgain(logDevice) : result;
}

// Straight to the store: the speed itself is neither checked nor announced; what the profile writes is both.
Result ChangeSpeedOfL2(const std::wstring& file, const wchar_t* logDevice, const wchar_t* value)
{
    std::wstring oldValue;
    static_cast<void>(NorvXMLGetValue(file.c_str(), SpeedSection, PGSP_PARAM_BAUDRATE, &oldValue));
    const Result result = ResultOf([&] { return WriteSpeedAndProfile(file, logDevice, value); });
    if (result != PGSP_OK)
    {
        static_cast<void>(WriteSpeed(file, oldValue.c_str()));
    }
    return AnswerOf(result);
}

// `ttr` follows from `highest_adr` by a rule of this protocol. That it can't be set isn't told.
void DeriveTtrForMpi(const wchar_t* logDevice)
{
    constexpr std::uint32_t margin = 8;

    std::wstring protocol;
    std::wstring highestAddress;
    if (PGSP_LogDeviceGetValue(logDevice, L"CP_TYPE", &protocol) != PGSP_OK ||
        !EqualNoCase(protocol, L"MPI") ||
        PGSP_LogDeviceGetValue(logDevice, L"highest_adr", &highestAddress) != PGSP_OK)
    {
        return;
    }
    // Digits that make no sense wrap around as the machine's numbers do.
    const auto derived =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(_wtoi(highestAddress.c_str())) + margin);
    static_cast<void>(AnswerOf(LogDeviceSetValueBL(logDevice, L"ttr", std::to_wstring(derived).c_str())));
}

Result ChangeSpeed(const wchar_t* logDevice, const wchar_t* value)
{
    const Result result = AnswerOf(PGSP_LogDeviceEnumSetProfileBL(logDevice, PGSP_PARAM_BAUDRATE, value));
    if (result == PGSP_OK)
    {
        DeriveTtrForMpi(logDevice);
    }
    return result;
}

} // namespace

int32_t LogDeviceSetBusparamsBL(const wchar_t* LogDevice, const wchar_t* Value)
{
    return RunExport("LogDeviceSetBusparamsBL: ", [&](const ExportFrame& frame) {
        NORV_TRACE(frame, TraceEntry, ">> LogDevice = %s, Value = %s", TraceToAnsi(LogDevice),
                   TraceToAnsi(Value));
        if (LogDevice == nullptr || Value == nullptr)
        {
            return frame.InvalidParameters();
        }
        std::wstring protocol;
        if (const Result result = LogDeviceGetValue(LogDevice, L"CP_TYPE", &protocol); result != PGSP_OK)
        {
            return frame.Return(result);
        }
        if (protocol != L"L2") // in this case alone
        {
            return frame.Return(ChangeSpeed(LogDevice, Value));
        }
        const std::wstring dataFolder = GetDataFolder();
        if (dataFolder.empty())
        {
            return frame.FolderNotFound("Can not get ProgramData Path");
        }
        return frame.Return(ChangeSpeedOfL2(LogDeviceFile(dataFolder, LogDevice), LogDevice, Value));
    });
}
