#include "SheetAnswer.h"

#include <functional>
#include <string>

namespace norvctl
{

namespace
{

constexpr char Indent[] = "  ";
constexpr std::size_t IndentedNameWidth = 30; // names line up with those of other lists, and are indented

void AddSections(Table& table, const std::vector<SheetSection>& sections,
                 const std::function<std::vector<std::string>(const SheetValue&)>& asRow)
{
    for (const SheetSection& section : sections)
    {
        if (!section.name.empty())
        {
            table.AddTitle(section.name);
        }
        for (const SheetValue& value : section.values)
        {
            table.Add(asRow(value));
        }
    }
}

Json AsArray(const std::vector<SheetSection>& sections, const std::function<Json(const SheetValue&)>& asJson)
{
    Json array = Json::array();
    for (const SheetSection& section : sections)
    {
        Json values = Json::array();
        for (const SheetValue& value : section.values)
        {
            values.push_back(asJson(value));
        }
        array.push_back({{"name", section.name}, {"values", std::move(values)}});
    }
    return array;
}

Json AsJson(const SheetValue& value)
{
    return {{"name", value.name}, {"value", value.value}};
}

Json AsJsonWithLimits(const SheetValue& value)
{
    Json json = AsJson(value);
    json["allowed"] = value.allowed;
    json["default"] = value.standard ? Json(*value.standard) : Json();
    json["differs"] = value.differs;
    return json;
}

} // namespace

Table AsTable(const std::vector<SheetSection>& sections)
{
    Table table({{"PARAMETER", IndentedNameWidth}, {"VALUE", 0}});
    AddSections(table, sections, [](const SheetValue& value) {
        return std::vector<std::string>{Indent + value.name, value.value};
    });
    return table;
}

Table AsTableWithLimits(const std::vector<SheetSection>& sections)
{
    Table table({{"PARAMETER", IndentedNameWidth}, {"VALUE", 16}, {"", 1}, {"DEFAULT", 16}, {"ALLOWED", 0}});
    AddSections(table, sections, [](const SheetValue& value) {
        return std::vector<std::string>{Indent + value.name, value.value, value.differs ? "*" : "",
                                        value.standard.value_or(""), value.allowed};
    });
    return table;
}

Json AsArray(const std::vector<SheetSection>& sections)
{
    return AsArray(sections, &AsJson);
}

Json AsArrayWithLimits(const std::vector<SheetSection>& sections)
{
    return AsArray(sections, &AsJsonWithLimits);
}

} // namespace norvctl
