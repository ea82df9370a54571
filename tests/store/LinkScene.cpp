#include "store/LinkScene.h"

namespace norvepa::test
{

void PrintTo(const ResourceAnswer& answer, std::ostream* out)
{
    *out << answer.result << " assembly \"" << ToUtf8(answer.assembly) << "\" path \"" << ToUtf8(answer.path)
         << "\" resource id \"" << ToUtf8(answer.resourceId) << "\" name space \"" << ToUtf8(answer.nameSpace)
         << '"';
}

void PrintTo(const LinkAnswer& answer, std::ostream* out)
{
    *out << answer.result << " assembly \"" << ToUtf8(answer.assembly) << "\" path \"" << ToUtf8(answer.path)
         << "\" function \"" << ToUtf8(answer.function) << '"';
}

ResourceAnswer GetAssemblyLink(const std::wstring& file, const wchar_t* resourceName, int wide)
{
    const std::wstring before(Before);
    ResourceAnswer answer{PGSP_OK, before, before, before, before};
    answer.result = NorvXMLGetAssemblyLink(file.c_str(), resourceName, &answer.assembly, &answer.path,
                                           &answer.resourceId, &answer.nameSpace, wide);
    return answer;
}

LinkAnswer GetParameterAssemblyLink(const std::wstring& file, const wchar_t* parameter, int wide)
{
    const std::wstring before(Before);
    LinkAnswer answer{PGSP_OK, before, before, before};
    answer.result = NorvXMLGetParameterAssemblyLink(file.c_str(), parameter, &answer.assembly, &answer.path,
                                                    &answer.function, wide);
    return answer;
}

LinkAnswer LinkNotFound()
{
    return {PGSP_ERR_PARAM_NOT_FOUND, {}, {}, {}};
}

} // namespace norvepa::test
