#include "frame/Arguments.h"
#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "store/DomWalk.h"
#include "store/PullWalk.h"
#include "store/TemporaryForm.h"
#include "store/norvxml.h"

#include <algorithm>
#include <array>

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLDelValue: ", "XML"};

// Sections of files without a schema: what is removed from them is saved at once.
constexpr std::array<std::wstring_view, 4> SectionsSavedInPlace{
    L"NotificationSection",
    L"Updates",
    L"DateTimeSection",
    L"PGSP_Section",
};

bool IsSavedInPlace(std::wstring_view section)
{
    return std::find(SectionsSavedInPlace.begin(), SectionsSavedInPlace.end(), section) !=
           SectionsSavedInPlace.end();
}

// Removes the first entry of this name that the engine lets go.
bool RemoveEntry(const Node& section, std::wstring_view parameter)
{
    Node entry = section.FirstChild();
    while (entry)
    {
        const Node next = entry.NextSibling();
        if (IsEntry(entry) && IsCalled(entry, parameter) && entry.Parent().Remove(entry))
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

    if (IsSavedInPlace(sectionName))
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
    return CommitDeletion(folderPath, fileName, schemaName, [=](const wchar_t* filePath) {
        return NorvXMLDelValue(filePath, section, parameter);
    });
}

} // namespace norvepa
