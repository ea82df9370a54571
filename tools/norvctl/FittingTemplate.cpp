#include "FittingTemplate.h"

#include "DeviceDocument.h"
#include "DeviceImport.h"
#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <fmt/format.h>
#include <stdexcept>
#include <vector>

namespace norvctl
{

namespace
{

constexpr wchar_t TemplatesFolder[] = L"DefaultLogDevices";

std::string TemplateValue(const std::string& source, const wchar_t* name)
{
    const std::wstring wide = ToWide(source);
    return ReadText([&](wchar_t* value, uint32_t* length) {
               return PGSP_DefDeviceGetValueBL(wide.c_str(), name, value, length, 0);
           })
        .value;
}

bool Fits(const std::string& source, const FileValues& wanted)
{
    return EqualNoCase(ToWide(TemplateValue(source, L"CP_TYPE")), ToWide(AttributeOf(wanted, "CP_TYPE"))) &&
           EqualNoCase(ToWide(WithoutStar(TemplateValue(source, L"DeviceID"))),
                       ToWide(WithoutStar(AttributeOf(wanted, "DeviceID"))));
}

} // namespace

std::string FittingTemplate(const FileValues& wanted)
{
    std::vector<std::string> names =
        EnumerateTexts("the templates", [](uint32_t index, wchar_t* name, uint32_t* length) {
            return PGSP_TemplateGetEnumNoPrefixBL(TemplatesFolder, index, name, length);
        });
    std::erase_if(names, [&](const std::string& name) { return !Fits(name, wanted); });
    const std::string what = fmt::format("of the board {} and the protocol {}",
                                         AttributeOf(wanted, "DeviceID"), AttributeOf(wanted, "CP_TYPE"));
    if (names.empty())
    {
        throw std::runtime_error(fmt::format("there is no template {}: choose a log device to begin with by "
                                             "--like",
                                             what));
    }
    if (names.size() > 1)
    {
        throw std::runtime_error(fmt::format("there are several templates {}: choose one of {} by --from",
                                             what, fmt::join(names, ", ")));
    }
    return names.front();
}

} // namespace norvctl
