#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/DomWalk.h"
#include "store/LinkSection.h"
#include "store/TemporaryForm.h"
#include "store/norvxml.h"

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLDelNdi: ", "XML"};

// Links to texts aren't removed.
Node FindPageLink(const Document& document, std::wstring_view sectionName, std::wstring_view parameter)
{
    const Node section = FirstElement(document, sectionName);
    if (!section)
    {
        return {};
    }
    for (const Node& child : section.Children())
    {
        if (child.IsNamed(L"ParameterAssemblyLink") && IsCalled(child, parameter))
        {
            return child;
        }
    }
    return {};
}

} // namespace

Result NorvXMLDelNdi(const wchar_t* filePath, const wchar_t* parameter, int wide)
{
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

    const Node link = FindPageLink(document, LinkSection(wide), parameter);
    if (!link || !link.Parent().Remove(link))
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    static_cast<void>(NorvXMLDeleteFile((std::wstring(filePath) + TemporaryMark).c_str()));
    static_cast<void>(document.Save(TemporaryForm(escaped)));
    return PGSP_OK;
}

} // namespace norvepa
