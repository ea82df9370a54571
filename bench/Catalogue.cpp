// What the catalogue costs: a question by index from a warm cache, and parsing beside a bare pass of the same
// engine over the same file.

#include "BareEngines.h"
#include "PlantStore.h"
#include "Stopwatch.h"
#include "Table.h"
#include "catalogue/norvxmlCatalogue.h"
#include "meta/cMetaFiles.h"
#include "support/TemporaryFolder.h"

#include <cstdio>
#include <stdexcept>

namespace
{

using namespace norvepa;
using namespace norvepa::bench;

const std::wstring parameter = ParameterName(ParametersOfADevice - 1);
const std::wstring key = L"Constraints\\" + parameter;

void Require(bool isRight)
{
    if (!isRight)
    {
        throw std::runtime_error("another answer than expected");
    }
}

void AskCollection(const std::wstring& file)
{
    std::wstring item;
    Require(NorvXMLEnumValueCollectionRaw(file.c_str(), key.c_str(), 3, &item) == PGSP_OK &&
            item == L"100/schnell");
}

void AskSection(const std::wstring& file)
{
    wchar_t name[64];
    wchar_t value[64];
    uint32_t nameLength = 64;
    uint32_t valueLength = 64;
    Require(NorvXMLEnumProtocolParameter(file.c_str(), parameter.c_str(), 0,
                                         {name, &nameLength, value, &valueLength}) == PGSP_OK);
}

void AskConstraint(const std::wstring& file)
{
    std::wstring value;
    Require(NorvXMLGetConstraint(file.c_str(), parameter.c_str(), L"max", &value) == PGSP_OK &&
            value == L"1000000");
}

void Parse(const std::wstring& file)
{
    MetaDropDocument(file);
    Require(MetaGetDocument(file) != nullptr);
}

} // namespace

int main()
{
    const PlantStore store(1);
    const std::wstring file = store.protocolPath();

    const double pass = MedianNanoseconds([&] { Require(CountNodesWithXmlLite(file) > 0); });
    const double collection = MedianNanoseconds([&] { AskCollection(file); });
    const Table questions("questions to a warm cache", "to a list item", collection);
    questions.Row("item of a value list", collection);
    questions.Row("item of a section", MedianNanoseconds([&] { AskSection(file); }));
    questions.Row("constraint from the memo", MedianNanoseconds([&] { AskConstraint(file); }));
    questions.Row("bare pass of XmlLite over the file", pass);

    const double parse = MedianNanoseconds([&] { Parse(file); });
    const double bytes = static_cast<double>(test::ReadBytes(file).size());
    const Table parsing("parsing a protocol of 100 parameters", "to a bare pass", pass);
    parsing.Row("bare pass of XmlLite over the file", pass);
    parsing.Row("parsed to a tree", parse);
    std::printf("%.1f KB: %.1f MB/s bare, %.1f MB/s parsed\n", bytes / 1e3, bytes * 1e3 / pass,
                bytes * 1e3 / parse);
    return 0;
}
