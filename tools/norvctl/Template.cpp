#include "Template.h"

#include "Text.h"
#include "norvepa.h"

namespace norvctl
{

std::vector<NameAndValue> ValuesOfTemplate(const std::string& name)
{
    const std::wstring file = ToWide(name);
    return EnumeratePairs(name, [&](uint32_t index, wchar_t* parameter, uint32_t* parameterLength,
                                    wchar_t* value, uint32_t* valueLength) {
        return PGSP_DefDeviceGetEnumValueBL(file.c_str(), index, parameter, parameterLength, value,
                                            valueLength);
    });
}

} // namespace norvctl
