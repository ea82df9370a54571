#include "Refusal.h"

#include "CatalogueLimits.h"
#include "Device.h"
#include "Text.h"
#include "norvepa.h"

namespace norvctl
{

std::string AllowedValues(const std::wstring& logDevice, const std::wstring& parameter, int32_t result)
{
    switch (result)
    {
    case PGSP_SET_VAL_LESS_THAN_MIN:
    case PGSP_SET_VAL_BIGGER_THAN_MAX:
    case PGSP_NOT_IN_STEP:
    case PGSP_NOT_IN_LIST:
    case PGSP_NOT_A_BOOL:
        break;
    default:
        return "";
    }
    const std::string device = ToUtf8(logDevice);
    const ValueCheck check(ReadDevice(device, "DeviceID").value, ReadDevice(device, "CP_TYPE").value);
    const std::string allowed = AllowedInWords(check, parameter);
    return allowed.empty() ? "" : "allowed are " + allowed;
}

} // namespace norvctl
