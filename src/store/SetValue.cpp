#include "frame/Arguments.h"
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

constexpr TraceSource source{"NorvXMLSetValue: ", "XML"};

struct SectionKindRow
{
    std::wstring_view section;
    std::wstring_view kind;
};

constexpr std::array<SectionKindRow, 5> SectionKindTable{{
    {L"Parameters", L"nam"},
    {L"NotificationSection", L"notif"},
    {L"Updates", L"pgsp"},
    {L"PGSP_Section", L"pgsp"},
    {L"DateTimeSection", L"pgsp"},
}};

std::wstring_view KindOfSection(std::wstring_view section)
{
    const auto row = std::find_if(SectionKindTable.begin(), SectionKindTable.end(),
                                  [=](const SectionKindRow& each) { return each.section == section; });
    return row == SectionKindTable.end() ? L"dev" : row->kind;
}

// The entries of other types are passed over, so that writing another type makes a second entry of the name.
Node FindValue(const Document& document, std::wstring_view section, std::wstring_view entryElement,
               std::wstring_view parameter)
{
    for (const Node& element : document.Elements())
    {
        if (!element.IsNamed(section))
        {
            continue;
        }
        for (const Node& entry : element.Children())
        {
            if (!entry.IsNamed(entryElement))
            {
                continue;
            }
            if (Node value = ValueOfEntry(entry, parameter))
            {
                return value;
            }
        }
    }
    return {};
}

} // namespace

Result NorvXMLSetValue(const wchar_t* filePath, const wchar_t* section, const wchar_t* parameter,
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
    std::wstring stored;
    if (const Result result = CheckTypedValue(typeWord, parameter, value, stored); result != PGSP_OK)
    {
        return result;
    }

    ComForOneCall com;
    Document document;
    if (const Result result = com.OpenDocument(source, file, document); result != PGSP_OK)
    {
        return result;
    }

    const std::wstring_view sectionName = SectionOrSpare(section);
    const std::wstring_view entryElement = EntryElementOf(typeWord);
    if (const Node found = FindValue(document, sectionName, entryElement, parameter))
    {
        return ReplaceValue(document, file, found, stored);
    }

    NORV_TRACE(source, TraceInfo, "Parameter was not found .. Create it!");
    const Node parent = FirstElement(document, sectionName);
    if (!parent ||
        !AppendEntry(document, parent, entryElement, KindOfSection(sectionName), parameter, stored))
    {
        NORV_TRACE(source, TraceInfo, "<< return Error: PGSP_ERR_CANT_SET_VALUE");
        return PGSP_ERR_CANT_SET_VALUE;
    }
    static_cast<void>(document.Save(file));
    NORV_TRACE(source, TraceInfo, "<< PGSP_OK");
    return PGSP_OK;
}

} // namespace norvepa
