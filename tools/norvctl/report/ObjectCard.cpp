#include "report/ObjectCard.h"

#include "Text.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

namespace norvctl::report
{

namespace
{

std::size_t CountDiffering(const MarkedObject& object)
{
    std::size_t count = 0;
    for (const MarkedSection& section : object.sections)
    {
        count += static_cast<std::size_t>(
            std::count_if(section.values.begin(), section.values.end(),
                          [](const MarkedValue& value) { return value.present.differs; }));
    }
    return count;
}

void WriteTag(Html& html, const std::string& text, const std::string& look)
{
    html.Element("span", text, {{"class", look.empty() ? "tag" : "tag " + look}});
}

std::string Counted(std::size_t count, const char* one, const char* many)
{
    return fmt::format("{} {}", count, count == 1 ? one : many);
}

void WriteTags(Html& html, const MarkedObject& marked, const FindingCounts& findings)
{
    if (marked.object.isHidden)
    {
        WriteTag(html, "hidden", "");
    }
    if (findings.errors != 0)
    {
        WriteTag(html, Counted(findings.errors, "error", "errors"), "error");
    }
    if (findings.warnings != 0)
    {
        WriteTag(html, Counted(findings.warnings, "warning", "warnings"), "warning");
    }
    if (const std::size_t differing = CountDiffering(marked); differing != 0)
    {
        WriteTag(html, Counted(differing, "value differs", "values differ"), "differs");
    }
    if (marked.change != Change::None)
    {
        WriteTag(html, WordOf(marked.change), WordOf(marked.change));
    }
}

// What the object belongs to. An object isn't linked to itself.
void WriteRelations(Html& html, const Object& object, const Places& places)
{
    if (!object.device.empty())
    {
        WriteLink(html, object.device, places.Of(Kind::LogDevice, object.device));
    }
    if (!object.type.empty() && object.kind != Kind::Protocol)
    {
        WriteLink(html, object.type, places.Of(Kind::Protocol, object.type));
    }
    if (!object.board.empty() && object.kind != Kind::Board)
    {
        WriteLink(html, object.board, places.Of(Kind::Board, object.board));
    }
    if (!object.unit.empty())
    {
        html.Element("span", "unit " + object.unit, {{"class", "quiet"}});
    }
}

void WriteValue(Html& html, const MarkedValue& value)
{
    switch (value.change)
    {
    case Change::Changed:
        html.Element("del", value.before).Text(" ").Element("ins", value.present.value);
        return;
    case Change::Added:
        html.Element("ins", value.present.value);
        return;
    case Change::Removed:
        html.Element("del", value.present.value);
        return;
    case Change::None:
        html.Text(value.present.value);
    }
}

struct Heading
{
    const char* text;
    const char* word; // beside a value where there is no room for columns
};
constexpr std::array<Heading, 2> PlainHeadings{{{"Parameter", ""}, {"Value", ""}}};
constexpr std::array<Heading, 4> LimitHeadings{
    {{"Parameter", ""}, {"Value", ""}, {"Allowed", "allowed"}, {"Default", "default"}}};

bool HasLimits(const MarkedSection& section)
{
    return std::any_of(section.values.begin(), section.values.end(), [](const MarkedValue& value) {
        return !value.present.allowed.empty() || value.present.standard;
    });
}

std::string LookOf(const MarkedValue& value)
{
    std::string look = value.present.differs ? "differs" : "";
    if (value.change != Change::None)
    {
        look += std::string(look.empty() ? "" : " ") + WordOf(value.change);
    }
    return look;
}

void WriteRowStart(Html& html, const MarkedValue& value)
{
    const std::string look = LookOf(value);
    look.empty() ? html.Open("tr") : html.Open("tr", {{"class", look}});
    html.Element("th", value.present.name, {{"scope", "row"}}).Open("td");
    WriteValue(html, value);
    html.Close("td");
}

void WriteLimits(Html& html, const SheetValue& value)
{
    html.Element("td", value.allowed, {{"data-word", LimitHeadings[2].word}});
    html.Element("td", value.standard.value_or(""), {{"data-word", LimitHeadings[3].word}});
}

template <std::size_t Count>
void WriteHeadings(Html& html, const std::array<Heading, Count>& headings)
{
    html.Open("thead").Open("tr");
    for (const Heading& heading : headings)
    {
        html.Element("th", heading.text, {{"scope", "col"}});
    }
    html.Close("tr").Close("thead");
}

void WriteSection(Html& html, const MarkedSection& section)
{
    if (section.values.empty())
    {
        return;
    }
    const bool hasLimits = HasLimits(section);
    html.Open("table", {{"class", "values"}});
    if (!section.name.empty())
    {
        html.Element("caption", section.name);
    }
    hasLimits ? WriteHeadings(html, LimitHeadings) : WriteHeadings(html, PlainHeadings);
    html.Open("tbody").Verbatim("\n");
    for (const MarkedValue& value : section.values)
    {
        WriteRowStart(html, value);
        if (hasLimits)
        {
            WriteLimits(html, value.present);
        }
        html.Close("tr").Verbatim("\n");
    }
    html.Close("tbody").Close("table");
}

} // namespace

Places::Places(const MarkedObjects& objects)
{
    for (const MarkedObject& marked : objects)
    {
        const Object& object = marked.object;
        m_anchors.emplace(std::pair{object.kind, ToLower(ToWide(object.name))},
                          fmt::format("{}-{}", WordsOf(object.kind).anchor, AsAnchor(object.name)));
    }
}

std::string Places::Of(Kind kind, const std::string& name) const
{
    const std::wstring lower = ToLower(ToWide(name));
    const auto found = m_anchors.find({kind, lower});
    if (found != m_anchors.end())
    {
        return found->second;
    }
    // A board's identity may begin with an asterisk that its name doesn't have, or the other way about.
    const auto other = m_anchors.find({kind, lower.starts_with(L'*') ? lower.substr(1) : L'*' + lower});
    return kind == Kind::Board && other != m_anchors.end() ? other->second : std::string();
}

std::string Places::Of(const std::string& word, const std::string& name) const
{
    const auto kind = std::find_if(AllKinds.begin(), AllKinds.end(),
                                   [&](const KindWords& words) { return words.word == word; });
    return kind == AllKinds.end() ? std::string() : Of(kind->kind, name);
}

const char* WordOf(Change change)
{
    switch (change)
    {
    case Change::Added:
        return "added";
    case Change::Changed:
        return "changed";
    case Change::Removed:
        return "removed";
    case Change::None:
        break;
    }
    return "";
}

void WriteLink(Html& html, const std::string& text, const std::string& anchor)
{
    if (anchor.empty())
    {
        html.Element("span", text);
        return;
    }
    html.Element("a", text, {{"href", "#" + anchor}});
}

void WriteCard(Html& html, const MarkedObject& marked, const Places& places, const FindingCounts& findings)
{
    const Object& object = marked.object;
    std::string look = "object";
    look += CountDiffering(marked) != 0 ? " differs" : "";
    look += marked.change != Change::None ? std::string(" ") + WordOf(marked.change) : "";
    html.Open("details", {{"class", look}, {"id", places.Of(object.kind, object.name)}});
    html.Open("summary").Element("span", object.name, {{"class", "name"}});
    WriteRelations(html, object, places);
    WriteTags(html, marked, findings);
    html.Close("summary").Open("section");
    for (const MarkedSection& section : marked.sections)
    {
        WriteSection(html, section);
    }
    html.Close("section").Close("details").Verbatim("\n");
}

} // namespace norvctl::report
