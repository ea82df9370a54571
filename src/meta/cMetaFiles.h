#pragma once

// The parsed catalogue files: each is read once and then answers from memory.
//
// Callers may rely on: a document stays readable for as long as it is held, also when the list has dropped
// it. Threads that ask for the same file at once may each parse it; one of the trees is kept, and all get
// that one. Callers must not: expect a document to follow its file; nothing here looks at the file again
// until the document was dropped.

#include "frame/Result.h"
#include "meta/cEpaBlXmlParser.h"
#include "win/Published.h"

#include <string>
#include <string_view>
#include <utility>

namespace norvepa
{

// One file of the list.
class cMetaFiles
{
public:
    cMetaFiles(std::wstring filePath, ParsedTree tree)
        : m_filePath(std::move(filePath)), m_tree(std::move(tree))
    {
    }

    // As it was asked for, with its extension; the name isn't escaped.
    [[nodiscard]] const std::wstring& filePath() const noexcept { return m_filePath; }

    [[nodiscard]] const cEpaBlElement* root() const noexcept { return m_tree.document; }

private:
    std::wstring m_filePath;
    ParsedTree m_tree;
};

// A document's root, borrowed with its tree.
using MetaDocument = win::Borrowed<const cEpaBlElement>;

// The document of a file, parsed at the first call. ".xml" is added by the anywhere rule, and the name on
// disk is the escaped one. Null when the file can't be opened or holds nothing that is known, of which
// nothing is remembered.
[[nodiscard]] MetaDocument MetaGetDocument(std::wstring_view filePath);

// Forgets a document, if there is one. Always PGSP_OK.
Result MetaDropDocument(std::wstring_view filePath);

void MetaDropAllDocuments() noexcept;

// When the module goes.
void MetaFreeDocuments() noexcept;

} // namespace norvepa
