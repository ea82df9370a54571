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
#include <vector>

namespace norvepa
{

namespace
{

constexpr TraceSource source{"NorvXMLSetNdi: ", "XML"};

struct FolderKindRow
{
    std::wstring_view folder;
    std::wstring_view kind;
};

// Looked for anywhere in the path, in this order. "DefaultLogDevices" holds the second.
constexpr std::array<FolderKindRow, 3> FolderKindTable{{
    {L"Boards", L"brd"},
    {L"LogDevices", L"dev"},
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
bool AllTexts(const Link& link, const Test& test)
{
    const auto texts = link.Texts();
    return std::all_of(texts.begin(), texts.end(),
                       [&](const wchar_t* text) { return test(TextOrEmpty(text)); });
}

// A child of a link, and what a caller gives for it.
struct LinkChild
{
    std::wstring_view element;
    const wchar_t* Link::*text;
};

constexpr LinkChild AssemblyChild{L"Assembly", &Link::assembly};
constexpr LinkChild PathChild{L"Path", &Link::path};
constexpr LinkChild FunctionChild{L"Function", &Link::function};
constexpr LinkChild ResourceIdChild{L"ResourceId", &Link::resourceId};

// The names whose links carry a third child when they are made, and which.
struct ThirdChildRow
{
    std::wstring_view parameter;
    LinkChild child;
};

constexpr std::array<ThirdChildRow, 6> ThirdChildTable{{
    {L"PropSheet", FunctionChild},
    {L"Diagnosis", FunctionChild},
    {L"DescText", ResourceIdChild},
    {L"DescDefault", ResourceIdChild},
    {L"BaudrateResource", ResourceIdChild},
    {L"BusparamResource", ResourceIdChild},
}};

std::vector<LinkChild> CarriedChildren(const Link& link)
{
    std::vector<LinkChild> children{AssemblyChild, PathChild};
    const auto row = std::find_if(ThirdChildTable.begin(), ThirdChildTable.end(), [&](const auto& each) {
        return EqualNoCase(each.parameter, link.parameter);
    });
    if (row != ThirdChildTable.end())
    {
        children.push_back(row->child);
    }
    return children;
}

bool Carries(const Link& link, const LinkChild& child)
{
    const auto carried = CarriedChildren(link);
    return std::any_of(carried.begin(), carried.end(),
                       [&](const LinkChild& each) { return each.element == child.element; });
}

bool AppendText(const Document& document, const Node& parent, std::wstring_view element,
                std::wstring_view kind, std::wstring_view text)
{
    const Node child = NorvXMLCreateElement(element, kind, document);
    return child && child.SetText(text) && parent.Append(child);
}

// PGSP_ERR_SAME_VALUE when all that is given is there. A child that is absent counts as an empty one, and is
// made where a new link would carry it.
Result ReplaceText(const Document& document, const Node& element, const Link& link, const LinkChild& wanted,
                   std::wstring_view kind)
{
    const wchar_t* const text = link.*wanted.text;
    const Node child = ChildNamed(element, wanted.element);
    if (text == nullptr || (!child && !Carries(link, wanted)) ||
        EqualNoCase(child ? child.Text().view() : std::wstring_view{}, text))
    {
        return PGSP_ERR_SAME_VALUE;
    }
    const bool done = child ? child.SetText(text) : AppendText(document, element, wanted.element, kind, text);
    return done ? PGSP_OK : PGSP_ERR_CANT_SET_VALUE;
}

// The kind of a link that is there decides what is compared.
Result ReplaceTexts(const Document& document, const Node& element, const Link& link, std::wstring_view kind)
{
    Result whole = PGSP_ERR_SAME_VALUE;
    for (const LinkChild& wanted :
         {AssemblyChild, PathChild, link.IsResource() ? ResourceIdChild : FunctionChild})
    {
        const Result result = ReplaceText(document, element, link, wanted, kind);
        if (result == PGSP_ERR_CANT_SET_VALUE)
        {
            return result;
        }
        whole = result == PGSP_OK ? PGSP_OK : whole;
    }
    return whole;
}

bool AppendLink(const Document& document, const Node& section, const Link& link, std::wstring_view kind)
{
    const Node element = NorvXMLCreateElement(link.Element(), kind, document);
    if (!element || !section.Append(element) || !AppendText(document, element, L"Name", kind, link.parameter))
    {
        return false;
    }
    const auto children = CarriedChildren(link);
    return std::all_of(children.begin(), children.end(), [&](const LinkChild& each) {
        const wchar_t* const text = link.*each.text;
        return text == nullptr || AppendText(document, element, each.element, kind, text);
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
    // Of all that is given, also what no child takes.
    if (!IsXmlText(link.parameter) || !AllTexts(link, IsXmlText))
    {
        return PGSP_ERR_CANT_SET_VALUE;
    }
    const Node section = SectionOfLinks(document, sectionName, kind);
    if (!section)
    {
        return PGSP_ERR_CANT_SET_VALUE;
    }
    if (const Node found = ChildCalled(section, link.Element(), link.parameter))
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
    if (!AreNameCharacters(parameter) || !AllTexts(link, AreValueCharacters))
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
