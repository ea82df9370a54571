#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/DomWalk.h"
#include "store/norvxml.h"

namespace norvepa
{

namespace
{

// Not the type words of the other writers: a word that isn't known is a text here.
std::wstring_view ElementOfType(std::wstring_view type)
{
    if (EqualNoCase(type, L"int"))
    {
        return L"ParameterInt";
    }
    return EqualNoCase(type, L"bool") ? L"ParameterBool" : L"Parameter";
}

Node FindEntry(const Document& document, std::wstring_view name)
{
    for (const Node& element : document.Elements())
    {
        if (IsEntry(element) && IsCalled(element, name))
        {
            return element;
        }
    }
    return {};
}

Node FindEntryOf(const Document& document, std::wstring_view entryElement, std::wstring_view name)
{
    for (const Node& element : document.Elements())
    {
        if (element.IsNamed(entryElement) && IsCalled(element, name))
        {
            return element;
        }
    }
    return {};
}

Node EntryAt(const Document& document, std::uint32_t index)
{
    for (const Node& element : document.Elements())
    {
        if (IsEntry(element) && index-- == 0)
        {
            return element;
        }
    }
    return {};
}

// A value in another case is another value here, and it doesn't matter whether it stands behind the name.
Result ReplaceText(const Node& entry, std::wstring_view value)
{
    const Node valueNode = ChildNamed(entry, L"Value");
    if (valueNode && valueNode.Text().view() == value)
    {
        return PGSP_ERR_SAME_VALUE;
    }
    return valueNode && valueNode.SetText(value) ? PGSP_OK : PGSP_ERR_CANT_SET_VALUE;
}

} // namespace

Result NorvXMLGetParameterData(const wchar_t* filePath, const wchar_t* name, std::wstring* value)
{
    if (IsMissing(filePath) || name == nullptr || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring file;
    Document document;
    if (const Result result = OpenStoreDocument(filePath, file, document); result != PGSP_OK)
    {
        return result;
    }

    const Node entry = FindEntry(document, name);
    const Node valueNode = entry ? ChildNamed(entry, L"Value") : Node{};
    if (!valueNode)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    *value = valueNode.Text().view();
    return PGSP_OK;
}

Result NorvXMLSetParameterData(const wchar_t* filePath, const wchar_t* name, const wchar_t* value,
                               const wchar_t* type)
{
    if (IsMissing(filePath) || name == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring file;
    Document document;
    if (const Result result = OpenStoreDocument(filePath, file, document); result != PGSP_OK)
    {
        return result;
    }

    const std::wstring_view element = ElementOfType(TextOrEmpty(type));
    const std::wstring_view text = TextOrEmpty(value);
    const Node entry = FindEntryOf(document, element, name);
    Result result = PGSP_OK;
    if (entry)
    {
        result = ReplaceText(entry, text);
    }
    else if (!AppendEntry(document, document.Root(), element, L"x", name, text))
    {
        result = PGSP_ERR_CANT_SET_VALUE;
    }
    if (result == PGSP_OK)
    {
        static_cast<void>(document.Save(file));
    }
    return result;
}

Result NorvXMLDelParameterData(const wchar_t* filePath, const wchar_t* name)
{
    if (IsMissing(filePath) || name == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring file;
    Document document;
    if (const Result result = OpenStoreDocument(filePath, file, document); result != PGSP_OK)
    {
        return result;
    }

    const Node entry = FindEntry(document, name);
    if (!entry || !entry.Parent().Remove(entry))
    {
        return PGSP_ERR_CANT_SET_VALUE;
    }
    static_cast<void>(document.Save(file));
    return PGSP_OK;
}

Result NorvXMLEnumParameterData(const wchar_t* filePath, std::uint32_t index, std::wstring* name,
                                std::wstring* value)
{
    if (IsMissing(filePath) || name == nullptr || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring file;
    Document document;
    if (const Result result = OpenStoreDocument(filePath, file, document); result != PGSP_OK)
    {
        return result;
    }

    const Node entry = EntryAt(document, index);
    if (!entry)
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }
    *name = ChildText(entry, L"Name");
    *value = ChildText(entry, L"Value");
    return PGSP_OK;
}

} // namespace norvepa
