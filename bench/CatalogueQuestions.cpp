#include "CatalogueQuestions.h"

#include "PlantStore.h"
#include "catalogue/norvxmlCatalogue.h"
#include "meta/cMetaFiles.h"
#include "xml/ImageCache.h"

#include <stdexcept>

namespace norvepa::bench
{

namespace
{

const std::wstring parameter = ParameterName(ParametersOfADevice - 1);
const std::wstring key = L"Constraints\\" + parameter;

void Require(bool isRight)
{
    if (!isRight)
    {
        throw std::runtime_error("another answer than expected");
    }
}

} // namespace

void AskCollection(const std::wstring& file, std::wstring& item)
{
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

void AskConstraint(const std::wstring& file, std::wstring& value)
{
    Require(NorvXMLGetConstraint(file.c_str(), parameter.c_str(), L"max", &value) == PGSP_OK &&
            value == L"1000000");
}

void Parse(const std::wstring& file)
{
    MetaDropDocument(file);
    DropImages();
    Require(MetaGetDocument(file) != nullptr);
}

} // namespace norvepa::bench
