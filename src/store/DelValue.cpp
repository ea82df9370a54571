#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "frame/Text.h"
#include "store/DomWalk.h"
#include "store/ProvisionalFile.h"
#include "store/PullWalk.h"
#include "store/norvxml.h"

#include <algorithm>
#include <array>

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLDelValue: ", "XML"};

constexpr std::array<std::wstring_view, 3> EntryElements{L"Parameter", L"ParameterInt", L"ParameterBool"};

// Sections of files without a schema: what is removed from them is saved at once.
constexpr std::array<std::wstring_view, 4> SectionsSavedInPlace{
    L"NotificationSection",
    L"Updates",
    L"DateTimeSection",
    L"PGSP_Section",
};

template <std::size_t Size>
bool Holds(const std::array<std::wstring_view, Size>& words, std::wstring_view word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool IsEntryOf(const Node& entry, std::wstring_view parameter)
{
    if (!Holds(EntryElements, entry.Name().view()))
    {
        return false;
    }
    for (const Node& child : entry.Children())
    {
        if (child.IsNamed(L"Name") && EqualNoCase(child.Text().view(), parameter))
        {
            return true;
        }
    }
    return false;
}

std::wstring TemporaryForm(const std::wstring& escapedPath)
{
    return escapedPath + L"(temp).xml";
}

// Removes the first entry of this name that the engine lets go.
bool RemoveEntry(const Node& section, std::wstring_view parameter)
{
    Node entry = section.FirstChild();
    while (entry)
    {
        const Node next = entry.NextSibling();
        if (IsEntryOf(entry, parameter) && entry.Parent().Remove(entry))
        {
            return true;
        }
        entry = next;
    }
    return false;
}

} // namespace

Result NorvXMLDelValue(const wchar_t* filePath, const wchar_t* section, const wchar_t* parameter)
{
    if (IsMissing(filePath) || IsMissing(parameter))
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

    const std::wstring_view sectionName = SectionOrSpare(section);
    const Node found = FirstElement(document, sectionName);
    if (!found || !RemoveEntry(found, parameter))
    {
        return PGSP_ERR_PARAM_NOT_FOUND;
    }

    if (Holds(SectionsSavedInPlace, sectionName))
    {
        static_cast<void>(document.Save(file));
        return PGSP_OK;
    }
    // The path is escaped a second time here, so that a leftover of a name with codes isn't met; it is then
    // overwritten.
    const std::wstring temporary = TemporaryForm(escaped);
    static_cast<void>(NorvXMLDeleteFile(temporary.c_str()));
    static_cast<void>(document.Save(temporary));
    return PGSP_OK;
}

Result DelValueAndCommit(const std::wstring& folderPath, const wchar_t* fileName, const wchar_t* schemaName,
                         const wchar_t* section, const wchar_t* parameter)
{
    const std::wstring file = JoinPath(folderPath, fileName);
    std::wstring escaped;
    if (const Result result = EscapePath(file.c_str(), escaped); result != PGSP_OK)
    {
        return result;
    }

    const std::wstring temporary = TemporaryForm(escaped);
    const ProvisionalFile provisional(temporary);
    const Result result = NorvXMLDelValue(file.c_str(), section, parameter);
    return result == PGSP_OK ? NorvXMLCommitTemp(fileName, schemaName, folderPath.c_str()) : result;
}

} // namespace norvepa
