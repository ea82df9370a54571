#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/DomWalk.h"
#include "store/Kinds.h"
#include "store/LinkSection.h"
#include "store/PullWalk.h"
#include "store/ValueRules.h"
#include "store/norvxml.h"
#include "xml/Characters.h"

#include <algorithm>
#include <array>

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLSetNdi: ", "XML"};

// Names, and the child that their links carry beside library and path.
struct ThirdChildRow
{
    std::wstring_view parameter;
    std::wstring_view child;
};

constexpr std::array<ThirdChildRow, 6> ThirdChildTable{{
    {L"PropSheet", L"Function"},
    {L"Diagnosis", L"Function"},
    {L"DescText", L"ResourceId"},
    {L"DescDefault", L"ResourceId"},
    {L"BaudrateResource", L"ResourceId"},
    {L"BusparamResource", L"ResourceId"},
}};

struct FolderKindRow
{
    std::wstring_view folder;
    std::wstring_view kind;
};

// Looked for anywhere in the path, in this order.
constexpr std::array<FolderKindRow, 4> FolderKindTable{{
    {L"Boards", L"brd"},
    {L"LogDevices", L"dev"},
    {L"DefaultLogDevices", L"dev"},
    {L"Protocols", L"pro"},
}};

std::wstring_view KindOfPath(std::wstring_view path)
{
    const auto row = std::find_if(FolderKindTable.begin(), FolderKindTable.end(),
                                  [=](const FolderKindRow& each) { return Holds(path, each.folder); });
    return row == FolderKindTable.end() ? std::wstring_view{} : row->kind;
}

// What a caller gives of a link; null where nothing is given.
struct Link
{
    const wchar_t* parameter;
    const wchar_t* assembly;
    const wchar_t* path;
    const wchar_t* function;
    const wchar_t* resourceId;

    [[nodiscard]] bool IsResource() const noexcept { return resourceId != nullptr || function == nullptr; }
    [[nodiscard]] std::wstring_view Element() const noexcept
    {
        return IsResource() ? L"Resource" : L"ParameterAssemblyLink";
    }
    [[nodiscard]] std::array<const wchar_t*, 4> Texts() const noexcept
    {
        return {assembly, path, function, resourceId};
    }
};

template <typename Test>
bool EachText(const Link& link, const Test& test)
{
    const auto texts = link.Texts();
    return std::all_of(texts.begin(), texts.end(),
                       [&](const wchar_t* text) { return test(TextOrEmpty(text)); });
}

// A child and what it is to hold; null leaves it alone.
struct LinkChild
{
    std::wstring_view element;
    const wchar_t* text;
};

using LinkChildren = std::array<LinkChild, 3>;

// Of a link that is there: its kind decides what is compared.
LinkChildren ComparedChildren(const Link& link)
{
    const LinkChild third =
        link.IsResource() ? LinkChild{L"ResourceId", link.resourceId} : LinkChild{L"Function", link.function};
    return {{{L"Assembly", link.assembly}, {L"Path", link.path}, third}};
}

// Of a new link: its name decides what it carries.
LinkChildren NewChildren(const Link& link)
{
    LinkChild third{{}, nullptr};
    for (const ThirdChildRow& row : ThirdChildTable)
    {
        if (EqualNoCase(row.parameter, link.parameter))
        {
            third = {row.child, row.child == L"Function" ? link.function : link.resourceId};
        }
    }
    return {{{L"Assembly", link.assembly}, {L"Path", link.path}, third}};
}

Node FindLink(const Node& section, const Link& link)
{
    for (const Node& child : section.Children())
    {
        if (child.IsNamed(link.Element()) && IsCalled(child, link.parameter))
        {
            return child;
        }
    }
    return {};
}

bool AppendText(const Document& document, const Node& parent, std::wstring_view element,
                std::wstring_view kind, std::wstring_view text)
{
    const Node child = NorvXMLCreateElement(element, kind, document);
    return child && child.SetText(text) && parent.Append(child);
}

// PGSP_ERR_SAME_VALUE when all that is given is there. A child that is absent counts as an empty one.
Result ReplaceTexts(const Document& document, const Node& element, const Link& link, std::wstring_view kind)
{
    Result result = PGSP_ERR_SAME_VALUE;
    for (const LinkChild& each : ComparedChildren(link))
    {
        if (each.text == nullptr || EqualNoCase(ChildText(element, each.element), each.text))
        {
            continue;
        }
        const Node child = ChildNamed(element, each.element);
        const bool done =
            child ? child.SetText(each.text) : AppendText(document, element, each.element, kind, each.text);
        if (!done)
        {
            return PGSP_ERR_CANT_SET_VALUE;
        }
        result = PGSP_OK;
    }
    return result;
}

bool AppendLink(const Document& document, const Node& section, const Link& link, std::wstring_view kind)
{
    const Node element = NorvXMLCreateElement(link.Element(), kind, document);
    if (!element || !section.Append(element) || !AppendText(document, element, L"Name", kind, link.parameter))
    {
        return false;
    }
    const LinkChildren children = NewChildren(link);
    return std::all_of(children.begin(), children.end(), [&](const LinkChild& each) {
        return each.text == nullptr || AppendText(document, element, each.element, kind, each.text);
    });
}

// The section that is there, or a new one behind all that the root holds.
Node SectionOfLinks(const Document& document, std::wstring_view name, std::wstring_view kind)
{
    if (Node section = FirstElement(document, name))
    {
        return section;
    }
    Node section = NorvXMLCreateElement(name, kind, document);
    return section && document.Root().Append(section) ? section : Node{};
}

Result SetLink(const Document& document, const Link& link, std::wstring_view sectionName,
               std::wstring_view kind)
{
    // Here, because a section that has been made must not stay without its link.
    if (!IsXmlText(link.parameter) || !EachText(link, IsXmlText))
    {
        return PGSP_ERR_CANT_SET_VALUE;
    }
    const Node section = SectionOfLinks(document, sectionName, kind);
    if (!section)
    {
        return PGSP_ERR_CANT_SET_VALUE;
    }
    if (const Node found = FindLink(section, link))
    {
        return ReplaceTexts(document, found, link, kind);
    }
    return AppendLink(document, section, link, kind) ? PGSP_OK : PGSP_ERR_CANT_SET_VALUE;
}

} // namespace

Result NorvXMLSetNdi(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* assembly,
                     const wchar_t* path, const wchar_t* function, const wchar_t* resourceId, int wide)
{
    if (IsMissing(filePath) || parameter == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    std::wstring file;
    if (const Result result = StoreFile(filePath, file); result != PGSP_OK)
    {
        return result;
    }
    const Link link{parameter, assembly, path, function, resourceId};
    if (!AreNameCharacters(parameter) || !EachText(link, AreValueCharacters))
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    Document document;
    if (const Result result = OpenDocument(source, file, document); result != PGSP_OK)
    {
        return result;
    }

    const Result result = SetLink(document, link, LinkSection(wide), KindOfPath(filePath));
    if (result == PGSP_OK)
    {
        static_cast<void>(document.Save(file));
    }
    return result;
}

} // namespace norvepa
