#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/DomWalk.h"
#include "store/PullWalk.h"
#include "store/ValueRules.h"
#include "store/norvxml.h"

#include <algorithm>
#include <array>

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLSetHeaderValue: ", "XML"};

// Words that an element's name may hold anywhere.
constexpr std::array<std::wstring_view, 7> SectionWords{
    L"BoardAttributes", L"Install",  L"DeviceHeader", L"LocalSettings",
    L"NetworkSettings", L"Bindings", L"Ndi",
};

bool IsSection(std::wstring_view elementName)
{
    return std::any_of(SectionWords.begin(), SectionWords.end(), [=](std::wstring_view word) {
        return elementName.find(word) != std::wstring_view::npos;
    });
}

// There is no type here: what the value looks like decides which rule it falls under.
Result CheckUntypedValue(std::wstring_view parameter, const wchar_t* value, std::wstring& stored)
{
    stored = TextOrEmpty(value);
    if (IsBoolean(stored))
    {
        stored = NormalisedBoolean(stored);
        return PGSP_OK;
    }
    if (IsInteger(stored.c_str()) || AreStringCharacters(parameter, stored))
    {
        return PGSP_OK;
    }
    return PGSP_ERR_INVALID_PARAMETERS;
}

struct Found
{
    Node value;
    std::wstring section;
};

// Whatever the entry's own element is called.
Found FindValue(const Document& document, std::wstring_view parameter)
{
    for (const Node& element : document.Elements())
    {
        const Bstr name = element.Name();
        if (!IsSection(name.view()))
        {
            continue;
        }
        for (const Node& entry : element.Children())
        {
            if (Node value = ValueOfEntry(entry, parameter))
            {
                return {std::move(value), std::wstring(name.view())};
            }
        }
    }
    return {};
}

} // namespace

Result NorvXMLSetHeaderValue(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* value)
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
    std::wstring stored;
    if (const Result result = CheckUntypedValue(parameter, value, stored); result != PGSP_OK)
    {
        return result;
    }

    ComForOneCall com;
    Document document;
    if (const Result result = com.OpenDocument(source, file, document); result != PGSP_OK)
    {
        return result;
    }

    const Found found = FindValue(document, parameter);
    if (!found.value)
    {
        NORV_TRACE(source, TraceInfo, "<< return Error: PGSP_ERR_CANT_SET_VALUE");
        return PGSP_ERR_CANT_SET_VALUE;
    }

    // What is compared is what a reader of that section gets, which need not be the entry found here.
    std::wstring current;
    static_cast<void>(NorvXMLGetValue(filePath, found.section.c_str(), parameter, &current));
    if (EqualNoCase(current, stored))
    {
        return PGSP_ERR_SAME_VALUE;
    }
    if (!found.value.SetText(stored))
    {
        return PGSP_ERR_CANT_SET_VALUE;
    }
    static_cast<void>(document.Save(file));
    return PGSP_OK;
}

} // namespace norvepa
