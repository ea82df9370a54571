#include "catalogue/ConstraintKey.h"
#include "frame/Text.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/profiles/profiles.h"

namespace norvepa
{

Result MakeProtocolKey(std::wstring_view protocol, const wchar_t* logDevice, const wchar_t* parameter,
                       std::wstring& key)
{
    if (!Holds(protocol, L"L2"))
    {
        key = ConstraintKey(parameter);
        return PGSP_OK;
    }
    std::wstring profile;
    if (const Result result = PGSP_LogDeviceGetValue(logDevice, PGSP_PARAM_PROFILES, &profile);
        result != PGSP_OK)
    {
        return result;
    }
    key = EqualNoCase(parameter, PGSP_PARAM_BAUDRATE) ? ConstraintKey(PGSP_PARAM_PROFILES, profile, parameter)
                                                      : ConstraintKey(parameter);
    return PGSP_OK;
}

} // namespace norvepa
