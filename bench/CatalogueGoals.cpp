#include "BareEngines.h"
#include "CatalogueQuestions.h"
#include "FileAge.h"
#include "GoalGroups.h"
#include "PlantStore.h"
#include "Stopwatch.h"
#include "Table.h"

namespace norvepa::bench
{

void MeasureParsing(GoalTable& goals)
{
    const PlantStore store(1);
    const std::wstring file = store.protocolPath();
    WaitUntilOld(file);

    const auto [parse, pass] = MedianNanosecondsInTurns(
        [&] { Parse(file); }, [&] { static_cast<void>(CountNodesWithXmlLite(file)); });

    const Table table("a protocol of 100 parameters", "to a bare pass", pass);
    table.Row("parsed to a tree", parse);
    table.Row("bare pass of XmlLite over the file", pass);
    goals.Ratio("catalogue file parsed to a tree : bare pass", 1.3, parse / pass);
}

// The limits are a tenth above what the answers took on the machine that the goals were set on.
void MeasureAnswers(GoalTable& goals)
{
    constexpr double MicrosecondsOfACollection = 0.43;
    constexpr double MicrosecondsOfASection = 0.24;
    constexpr double MicrosecondsOfAConstraint = 0.18;
    constexpr double Leeway = 1.1;

    const PlantStore store(1);
    const std::wstring file = store.protocolPath();
    const auto askCollection = [&] {
        std::wstring item;
        AskCollection(file, item);
    };
    const auto askConstraint = [&] {
        std::wstring value;
        AskConstraint(file, value);
    };
    const auto [collection, section, constraint] = MedianNanosecondsInTurns(
        askCollection, [&] { AskSection(file); }, askConstraint);

    const Table table("warm answers of the catalogue", "to a list item", collection);
    table.Row("item of a value list", collection);
    table.Row("item of a section", section);
    table.Row("constraint from the memo", constraint);
    goals.Amount("warm catalogue, item of a value list", "us", Leeway * MicrosecondsOfACollection,
                 collection / 1000);
    goals.Amount("warm catalogue, item of a section", "us", Leeway * MicrosecondsOfASection, section / 1000);
    goals.Amount("warm catalogue, constraint from the memo", "us", Leeway * MicrosecondsOfAConstraint,
                 constraint / 1000);
}

} // namespace norvepa::bench
