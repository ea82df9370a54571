#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/DomWalk.h"
#include "store/PullWalk.h"
#include "store/ValueRules.h"
#include "store/norvxml.h"

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLSetSubdevValue: ", "XML"};

// Not the rule of the plain set: any value passes for a boolean and stays as it is, and without a type
// neither name nor value is tested.
Result CheckSubdevValue(std::wstring_view type, std::wstring_view parameter, const wchar_t* value)
{
    if (type.empty() || EqualNoCase(type, L"bool"))
    {
        return PGSP_OK;
    }
    std::wstring unchanged;
    return CheckTypedValue(type, parameter, value, unchanged);
}

bool IsSubdevice(const Node& element, std::wstring_view subdevName)
{
    if (!element.IsNamed(L"Subdevice"))
    {
        return false;
    }
    const Node name = element.Attribute(L"SubdevName");
    return name && EqualNoCase(name.Text().view(), subdevName);
}

Node FindValue(const Node& subdevice, std::wstring_view entryElement, std::wstring_view parameter)
{
    for (const Node& entry : subdevice.Children())
    {
        if (!EqualNoCase(entry.Name().view(), entryElement))
        {
            continue;
        }
        if (Node value = ValueOfEntry(entry, parameter))
        {
            return value;
        }
    }
    return {};
}

} // namespace

Result NorvXMLSetSubdevValue(const wchar_t* filePath, const wchar_t* subdevName, const wchar_t* parameter,
                             const wchar_t* value, const wchar_t* type)
{
    if (IsMissing(filePath) || IsMissing(parameter))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring file;
    if (const Result result = StoreFile(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    const std::wstring_view typeWord = TextOrEmpty(type);
    if (const Result result = CheckSubdevValue(typeWord, parameter, value); result != PGSP_OK)
    {
        return result;
    }

    Document document;
    if (const Result result = OpenDocument(source, file, document); result != PGSP_OK)
    {
        return result;
    }

    const std::wstring_view entryElement = EntryElementOf(typeWord);
    Node remembered;
    for (const Node& element : document.Elements())
    {
        if (!IsSubdevice(element, TextOrEmpty(subdevName)))
        {
            continue;
        }
        if (const Node found = FindValue(element, entryElement, parameter))
        {
            return ReplaceValue(document, file, found, TextOrEmpty(value));
        }
        remembered = element;
    }

    if (!remembered ||
        !AppendEntry(document, remembered, entryElement, L"dev", parameter, TextOrEmpty(value)))
    {
        NORV_TRACE(source, TraceInfo, "<< return Error: PGSP_ERR_CANT_SET_VALUE");
        return PGSP_ERR_CANT_SET_VALUE;
    }
    static_cast<void>(document.Save(file));
    return PGSP_OK;
}

} // namespace norvepa
