#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/LinkSection.h"
#include "store/PullWalk.h"
#include "store/norvxml.h"

#include <array>
#include <utility>

namespace norvepa
{

namespace
{

struct ResourceTexts
{
    std::wstring* assembly;
    std::wstring* path;
    std::wstring* resourceId;
    std::wstring* nameSpace;

    // Where the text of this child goes; null for a child that nobody asks for.
    [[nodiscard]] std::wstring* OutputOf(std::wstring_view child) const
    {
        struct Row
        {
            std::wstring_view child;
            std::wstring* output;
        };
        const std::array<Row, 4> rows{{
            {L"Assembly", assembly},
            {L"Path", path},
            {L"ResourceId", resourceId},
            {L"NameSpace", nameSpace},
        }};
        for (const Row& row : rows)
        {
            if (EqualNoCase(row.child, child))
            {
                return row.output;
            }
        }
        return nullptr;
    }
};

// Reads the `Resource` last entered to its end, or to a `Name` that isn't the one wanted. True when the
// name matched. What stands ahead of the name is written before the name is known.
bool ReadResource(PullReader& reader, std::wstring_view resourceName, const ResourceTexts& texts)
{
    bool matched = false;
    std::wstring child;
    std::wstring name;
    while (XmlNextChild(reader, L"Resource", child))
    {
        if (EqualNoCase(child, L"Name"))
        {
            if (!XmlReadText(reader, L"Name", name) || !EqualNoCase(name, resourceName))
            {
                return false;
            }
            matched = true;
        }
        else if (std::wstring* const output = texts.OutputOf(child))
        {
            // A text that is missing leaves what an earlier child of that name left.
            static_cast<void>(XmlReadText(reader, child, *output));
        }
    }
    return matched && XmlReaderActive(reader); // a file that breaks off inside has no such resource
}

struct LinkTexts
{
    std::wstring assembly;
    std::wstring path;
    std::wstring function;
};

// True at the link last entered when its `Name`, which comes first, is the parameter's.
bool IsLinkOf(PullReader& reader, std::wstring_view element, std::wstring_view parameter)
{
    std::wstring name;
    return ReadChildText(reader, element, L"Name", name) && EqualNoCase(name, parameter);
}

bool ReadParameterAssemblyLink(PullReader& reader, std::wstring_view parameter, LinkTexts& texts)
{
    constexpr std::wstring_view element = L"ParameterAssemblyLink";
    return IsLinkOf(reader, element, parameter) &&
           ReadChildText(reader, element, L"Assembly", texts.assembly) &&
           ReadChildText(reader, element, L"Path", texts.path) &&
           ReadChildText(reader, element, L"Function", texts.function);
}

// A `Resource` delivers its entry function or its identifier, whichever comes first.
bool ReadResourceLink(PullReader& reader, std::wstring_view parameter, LinkTexts& texts)
{
    constexpr std::wstring_view element = L"Resource";
    constexpr std::array<std::wstring_view, 2> thirdChild{L"Function", L"ResourceId"};
    std::wstring found;
    return IsLinkOf(reader, element, parameter) &&
           ReadChildText(reader, element, L"Assembly", texts.assembly) &&
           ReadChildText(reader, element, L"Path", texts.path) &&
           XmlSeekOneOf(reader, element, thirdChild, found) && XmlReadText(reader, found, texts.function);
}

// Looks in the first section of this name, then behind it.
bool SeekLink(PullReader& reader, std::wstring_view section, std::wstring_view parameter, LinkTexts& texts)
{
    if (!SeekSection(reader, section))
    {
        return false;
    }
    while (XmlSeekChild(reader, section, L"ParameterAssemblyLink"))
    {
        if (ReadParameterAssemblyLink(reader, parameter, texts))
        {
            return true;
        }
    }
    // Goes on where the first scan ended, which has passed the `Resource` elements of the section itself.
    while (XmlSeekChild(reader, section, L"Resource"))
    {
        if (ReadResourceLink(reader, parameter, texts))
        {
            return true;
        }
    }
    return false;
}

} // namespace

Result NorvXMLGetAssemblyLink(const wchar_t* filePath, const wchar_t* resourceName, std::wstring* assembly,
                              std::wstring* path, std::wstring* resourceId, std::wstring* nameSpace, int wide)
{
    if (IsMissing(filePath) || assembly == nullptr || path == nullptr || resourceId == nullptr ||
        nameSpace == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }

    const ResourceTexts texts{assembly, path, resourceId, nameSpace};
    const std::wstring_view section = LinkSection(wide);
    for (std::wstring* const text : {assembly, path, resourceId, nameSpace})
    {
        text->clear();
    }
    while (SeekSection(reader, section))
    {
        while (XmlSeekChild(reader, section, L"Resource"))
        {
            if (ReadResource(reader, TextOrEmpty(resourceName), texts))
            {
                return PGSP_OK;
            }
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

Result NorvXMLGetParameterAssemblyLink(const wchar_t* filePath, const wchar_t* parameter,
                                       std::wstring* assembly, std::wstring* path, std::wstring* function,
                                       int wide)
{
    if (IsMissing(filePath) || assembly == nullptr || path == nullptr || function == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    // No escaping here, unlike everywhere else: an escaped name has to be given as its file is called.
    PullReader reader;
    if (const Result result = reader.Open(std::wstring(filePath) + L".xml"); result != PGSP_OK)
    {
        return result;
    }

    LinkTexts texts;
    const bool found = SeekLink(reader, LinkSection(wide), TextOrEmpty(parameter), texts);
    if (!found)
    {
        texts = {}; // of a link that was left half read
    }
    *assembly = std::move(texts.assembly);
    *path = std::move(texts.path);
    *function = std::move(texts.function);
    return found ? PGSP_OK : PGSP_ERR_PARAM_NOT_FOUND;
}

} // namespace norvepa
