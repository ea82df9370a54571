#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/DomWalk.h"
#include "store/LinkSection.h"
#include "store/TemporaryForm.h"
#include "store/norvxml.h"

namespace norvepa
{

Result NorvXMLDelNdi(const wchar_t* filePath, const wchar_t* parameter, int wide)
{
    constexpr TraceSource source{"NorvXMLDelNdi: ", "XML"};

    if (IsMissing(filePath) || parameter == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring escaped;
    if (const Result result = EscapePath(filePath, escaped); result != PGSP_OK)
    {
        return result;
    }
    std::wstring file = escaped;
    ExtendByAnywhereRule(file);
    Document document;
    if (const Result result = OpenDocument(source, file, document); result != PGSP_OK)
    {
        return result;
    }

    // Links to texts aren't removed.
    const Node section = FirstElement(document, LinkSection(wide));
    const Node link = section ? ChildCalled(section, L"ParameterAssemblyLink", parameter) : Node{};
    if (!link || !link.Parent().Remove(link))
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    // By the path not escaped yet, unlike the deletion of a value: a leftover is met whatever its name.
    static_cast<void>(NorvXMLDeleteFile((std::wstring(filePath) + TemporaryMark).c_str()));
    static_cast<void>(document.Save(TemporaryForm(escaped)));
    return PGSP_OK;
}

} // namespace norvepa
