// What the catalogue costs: a question by index from a warm cache, asked by one thread and by two at once,
// and parsing beside a bare pass of the same engine over the same file.

#include "BareEngines.h"
#include "CatalogueQuestions.h"
#include "PlantStore.h"
#include "Stopwatch.h"
#include "Table.h"
#include "Throughput.h"
#include "frame/Text.h"
#include "support/TemporaryFolder.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace
{

using namespace norvepa;
using namespace norvepa::bench;

void Require(bool isRight)
{
    if (!isRight)
    {
        throw std::runtime_error("another answer than expected");
    }
}

// As much of a thread's own work as a question, or about that: what the machine gives a second thread that
// shares nothing with the first.
void CompareOwnTexts()
{
    const std::array<wchar_t, 100> left{};
    const std::array<wchar_t, 100> right{};
    Require(EqualNoCase({left.data(), left.size()}, {right.data(), right.size()}));
}

template <typename Body>
void TellThroughput(const char* what, const Body& body)
{
    const Throughput best = BestThroughput(body);
    std::printf("%-62s %11.0f %14.0f %8.2f\n", what, best.ofOne, best.ofTwo, best.Ratio());
    std::fflush(stdout);
}

void TellWhatASecondThreadIsWorth(const std::wstring& file)
{
    std::printf("\n%-62s %11s %14s %8s\n", "answers a second of a warm cache, goal: 1.80 times as many",
                "one thread", "two threads", "ratio");
    TellThroughput("item of a value list", [&](std::wstring& item) { AskCollection(file, item); });
    TellThroughput("item of a section", [&](std::wstring&) { AskSection(file); });
    TellThroughput("constraint from the memo", [&](std::wstring& value) { AskConstraint(file, value); });
    TellThroughput("nothing of the catalogue's, nothing shared", [](std::wstring&) { CompareOwnTexts(); });
}

} // namespace

int main()
{
    const PlantStore store(1);
    const std::wstring file = store.protocolPath();

    const double pass = MedianNanoseconds([&] { Require(CountNodesWithXmlLite(file) > 0); });
    const double collection = MedianNanoseconds([&] {
        std::wstring item;
        AskCollection(file, item);
    });
    const Table questions("questions to a warm cache", "to a list item", collection);
    questions.Row("item of a value list", collection);
    questions.Row("item of a section", MedianNanoseconds([&] { AskSection(file); }));
    questions.Row("constraint from the memo", MedianNanoseconds([&] {
                      std::wstring value;
                      AskConstraint(file, value);
                  }));
    questions.Row("bare pass of XmlLite over the file", pass);

    TellWhatASecondThreadIsWorth(file);

    const double parse = MedianNanoseconds([&] { Parse(file); });
    const double bytes = static_cast<double>(test::ReadBytes(file).size());
    const Table parsing("parsing a protocol of 100 parameters", "to a bare pass", pass);
    parsing.Row("bare pass of XmlLite over the file", pass);
    parsing.Row("parsed to a tree", parse);
    std::printf("%.1f KB: %.1f MB/s bare, %.1f MB/s parsed\n", bytes / 1e3, bytes * 1e3 / pass,
                bytes * 1e3 / parse);
    return 0;
}
