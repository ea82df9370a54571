#include "report/Page.h"

#include "Resources.h"
#include "report/ObjectCard.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <utility>

namespace norvctl::report
{

namespace
{

using CountsByAnchor = std::map<std::string, FindingCounts>;

const char* WordOfSeverity(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

CountsByAnchor CountFindings(const Findings& findings, const Places& places)
{
    CountsByAnchor counts;
    for (const Finding& finding : findings)
    {
        FindingCounts& of = counts[places.Of(finding.kind, finding.name)];
        ++(finding.severity == Severity::Error ? of.errors : of.warnings);
    }
    return counts;
}

// Nothing is loaded, from wherever. Texts are kept from becoming markup by their escaping alone.
constexpr char Nonce[] = "norvctl";
constexpr char Policy[] = "default-src 'none'; style-src 'nonce-norvctl'; script-src 'nonce-norvctl'; "
                          "base-uri 'none'; form-action 'none'";

void WriteHead(Html& html, const Facts& facts)
{
    html.Verbatim("<!DOCTYPE html>\n").Open("html", {{"lang", "en"}}).Open("head");
    html.Open("meta", {{"charset", "utf-8"}});
    html.Open("meta", {{"http-equiv", "Content-Security-Policy"}, {"content", Policy}});
    html.Open("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
    html.Element("title", "Configuration store of " + facts.computer);
    html.Open("style", {{"nonce", Nonce}}).Verbatim("\n").Verbatim(PageStyle()).Close("style");
    html.Close("head").Verbatim("\n");
}

void WriteFact(Html& html, const char* what, const std::string& text)
{
    if (!text.empty())
    {
        html.Element("dt", what).Element("dd", text);
    }
}

std::size_t CountOf(const MarkedObjects& objects, Kind kind)
{
    return static_cast<std::size_t>(
        std::count_if(objects.begin(), objects.end(), [=](const MarkedObject& marked) {
            return marked.object.kind == kind && marked.change != Change::Removed;
        }));
}

bool IsChanged(const MarkedObject& object)
{
    return object.change != Change::None;
}

void WriteNavigation(Html& html, const Facts& facts, const Findings& findings, const MarkedObjects& objects)
{
    html.Open("nav", {{"aria-label", "Parts of the report"}});
    html.Element("a", fmt::format("Findings {}", findings.size()), {{"href", "#findings"}});
    if (!facts.since.empty())
    {
        html.Element("a",
                     fmt::format("Changes {}", std::count_if(objects.begin(), objects.end(), &IsChanged)),
                     {{"href", "#changes"}});
    }
    for (const KindWords& words : AllKinds)
    {
        html.Element("a", fmt::format("{} {}", words.heading, CountOf(objects, words.kind)),
                     {{"href", fmt::format("#{}", words.anchor)}});
    }
    html.Close("nav");
}

void WriteTop(Html& html, const Facts& facts, const Findings& findings, const MarkedObjects& objects)
{
    html.Open("header", {{"class", "top"}}).Element("h1", "Configuration store of " + facts.computer);
    html.Open("dl", {{"class", "facts"}});
    WriteFact(html, "Made", facts.time);
    WriteFact(html, "Compared with", facts.since);
    WriteFact(html, "Data folder", facts.dataRoot);
    WriteFact(html, "Program folder", facts.programRoot);
    WriteFact(html, "Library", facts.library);
    html.Close("dl");
    WriteNavigation(html, facts, findings, objects);
    html.Close("header").Verbatim("\n");
}

void WriteBox(Html& html, const char* id, const char* label)
{
    html.Open("label").Open("input", {{"type", "checkbox"}, {"id", id}});
    html.Text(std::string(" ") + label).Close("label");
}

void WriteBar(Html& html, const Facts& facts)
{
    html.Open("div", {{"class", "bar"}}).Open("form", {{"role", "search"}});
    html.Open("input", {{"type", "search"},
                        {"id", "search"},
                        {"placeholder", "Search names, parameters and values ( / )"},
                        {"aria-label", "Search names, parameters and values"}});
    html.Element("output", "", {{"id", "hits"}, {"for", "search"}});
    html.Element("button", "Unfold all", {{"type", "button"}, {"id", "unfold"}});
    html.Element("button", "Fold all", {{"type", "button"}, {"id", "fold"}});
    WriteBox(html, "only-differing", "only what differs from its default");
    if (!facts.since.empty())
    {
        WriteBox(html, "only-changed", "only what has changed");
    }
    html.Close("form").Close("div").Verbatim("\n");
}

void OpenList(Html& html, std::initializer_list<const char*> headings)
{
    html.Open("table", {{"class", "list"}}).Open("thead").Open("tr");
    for (const char* const heading : headings)
    {
        html.Element("th", heading, {{"scope", "col"}});
    }
    html.Close("tr").Close("thead").Open("tbody").Verbatim("\n");
}

void CloseList(Html& html)
{
    html.Close("tbody").Close("table");
}

void WriteFindings(Html& html, const Findings& findings, const Places& places)
{
    html.Open("section", {{"id", "findings"}}).Element("h2", "Findings");
    if (findings.empty())
    {
        html.Element("p", "Nothing is wrong.", {{"class", "fine"}}).Close("section");
        return;
    }
    OpenList(html, {"", "Where", "What is wrong", "What to do"});
    for (const Finding& finding : findings)
    {
        const char* const severity = WordOfSeverity(finding.severity);
        html.Open("tr").Open("td").Element("span", severity, {{"class", std::string("tag ") + severity}});
        html.Close("td").Open("td").Text(finding.kind + " ");
        WriteLink(html, finding.name, places.Of(finding.kind, finding.name));
        html.Close("td").Element("td", finding.what).Element("td", finding.advice).Close("tr").Verbatim("\n");
    }
    CloseList(html);
    html.Close("section");
}

void WriteChanges(Html& html, const Facts& facts, const MarkedObjects& objects, const Places& places)
{
    if (facts.since.empty())
    {
        return;
    }
    html.Open("section", {{"id", "changes"}}).Element("h2", "Changes since " + facts.since);
    if (std::none_of(objects.begin(), objects.end(), &IsChanged))
    {
        html.Element("p", "Nothing has changed.").Close("section");
        return;
    }
    OpenList(html, {"", "Where", "Values"});
    for (const MarkedObject& marked : objects)
    {
        if (!IsChanged(marked))
        {
            continue;
        }
        std::size_t values = 0;
        for (const MarkedSection& section : marked.sections)
        {
            values += static_cast<std::size_t>(
                std::count_if(section.values.begin(), section.values.end(),
                              [](const MarkedValue& value) { return value.change != Change::None; }));
        }
        const std::string word = WordOf(marked.change);
        html.Open("tr").Open("td").Element("span", word, {{"class", "tag " + word}}).Close("td");
        html.Open("td").Text(std::string(WordsOf(marked.object.kind).word) + " ");
        WriteLink(html, marked.object.name, places.Of(marked.object.kind, marked.object.name));
        html.Close("td").Element("td", fmt::format("{}", values)).Close("tr").Verbatim("\n");
    }
    CloseList(html);
    html.Close("section");
}

void WriteObjects(Html& html, const MarkedObjects& objects, const Places& places,
                  const CountsByAnchor& counts)
{
    for (const KindWords& words : AllKinds)
    {
        html.Open("section", {{"id", words.anchor}}).Open("h2").Text(words.heading).Text(" ");
        html.Element("span", fmt::format("{}", CountOf(objects, words.kind)), {{"class", "count"}});
        html.Close("h2").Verbatim("\n");
        for (const MarkedObject& marked : objects)
        {
            if (marked.object.kind != words.kind)
            {
                continue;
            }
            const auto found = counts.find(places.Of(words.kind, marked.object.name));
            WriteCard(html, marked, places, found == counts.end() ? FindingCounts{} : found->second);
        }
        html.Close("section");
    }
}

} // namespace

std::string PageOf(const Facts& facts, const Findings& findings, const MarkedObjects& objects)
{
    const Places places(objects);
    Html html;
    WriteHead(html, facts);
    html.Open("body");
    WriteTop(html, facts, findings, objects);
    WriteBar(html, facts);
    html.Open("main").Verbatim("\n");
    WriteFindings(html, findings, places);
    WriteChanges(html, facts, objects, places);
    WriteObjects(html, objects, places, CountFindings(findings, places));
    html.Close("main").Open("footer").Text("Made by norvctl report. The page is complete in itself.");
    html.Close("footer").Open("script", {{"nonce", Nonce}}).Verbatim("\n").Verbatim(PageScript());
    html.Close("script").Close("body").Close("html").Verbatim("\n");
    return html.Page();
}

} // namespace norvctl::report
