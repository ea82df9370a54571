#include "Choices.h"

#include "Device.h"
#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <algorithm>

namespace norvctl
{

namespace
{

using ReadList = int32_t (*)(const wchar_t* device, const wchar_t* parameter, wchar_t* values,
                             uint32_t* length);

// The terminator behind the last value is written beyond the length, and never counted. A buffer that is too
// short is told how much of it is in use, not how much is needed: it doubles until it will do.
int32_t ReadMostSpecialized(const wchar_t* device, const wchar_t* parameter, wchar_t* values,
                            uint32_t* length)
{
    const uint32_t capacity = *length;
    *length = capacity - 1;
    const int32_t result = PGSP_LogDeviceGetMostSpecializedEnumListBL(device, parameter, values, length);
    *length = result == PGSP_ERR_BUFFER_TOO_SHORT ? 2 * capacity : *length + 1;
    return result;
}

// The terminator behind the last value isn't counted, and may be all that has no room.
int32_t ReadAverage(const wchar_t* device, const wchar_t* parameter, wchar_t* values, uint32_t* length)
{
    const uint32_t capacity = *length;
    const int32_t result = PGSP_LogDeviceGetAverageEnumListBL(device, parameter, values, length);
    *length = result == PGSP_ERR_BUFFER_TOO_SHORT ? std::max(*length, capacity) : *length + 1;
    return result;
}

std::vector<std::string> ReadChoices(const std::string& device, const std::string& parameter, ReadList read)
{
    const std::wstring name = ToWide(device);
    const std::wstring wideParameter = ToWide(parameter);
    return ReadTexts(DeviceSubject(device, parameter), [&](wchar_t* list, uint32_t* length) {
        return read(name.c_str(), wideParameter.c_str(), list, length);
    });
}

} // namespace

std::vector<std::string> ChoicesOf(const std::string& device, const std::string& parameter)
{
    return ReadChoices(device, parameter, &ReadMostSpecialized);
}

std::vector<std::string> CommonChoicesOf(const std::string& device, const std::string& parameter)
{
    return ReadChoices(device, parameter, &ReadAverage);
}

} // namespace norvctl
