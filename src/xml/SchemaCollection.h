#pragma once

// Schemas that documents are validated against.
//
// Callers may rely on: only the schemas added here decide; a location named inside of a document plays no
// part. A schema that doesn't declare the namespace it is added under leaves the collection without it, and
// a document of that namespace is then not valid. An engine without memory throws std::bad_alloc.

#include "xml/Document.h"

#include <msxml2.h>
#include <wrl/client.h>

#include <string>
#include <string_view>

namespace norvepa
{

struct ValidationOutcome
{
    bool valid = false;
    std::wstring reason; // the engine's words, when not valid
};

class SchemaCollection
{
public:
    [[nodiscard]] HRESULT Create();
    void Add(std::wstring_view namespaceUri, const Document& schema) const;
    [[nodiscard]] ValidationOutcome Validate(const Document& document) const;

private:
    Microsoft::WRL::ComPtr<IXMLDOMSchemaCollection> m_collection;
};

} // namespace norvepa
