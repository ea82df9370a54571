#include "meta/cMetaFiles.h"

#include "frame/FileNames.h"
#include "frame/PathText.h"
#include "win/Undestroyed.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace norvepa
{

namespace
{

using Link = std::shared_ptr<const cMetaFiles>;
using DocumentList = std::vector<Link>;

win::Undestroyed<win::Published<DocumentList>> documents;
win::Published<DocumentList>& documentList = documents.get();

auto FindLink(const DocumentList& list, std::wstring_view filePath)
{
    return std::find_if(list.begin(), list.end(),
                        [&](const Link& link) { return EqualWords(link->filePath(), filePath); });
}

// Null when the list doesn't hold the file.
MetaDocument RootOf(win::Borrowed<const DocumentList> list, std::wstring_view filePath)
{
    const auto known = FindLink(*list, filePath);
    return known == list->end() ? nullptr : std::move(list).Along((*known)->root());
}

// Null when there is nothing to keep.
Link ParseFile(const std::wstring& filePath)
{
    std::wstring nameOnDisk;
    PullReader reader;
    if (EscapePath(filePath.c_str(), nameOnDisk) != PGSP_OK || reader.Open(nameOnDisk) != PGSP_OK)
    {
        return nullptr;
    }
    ParsedTree tree = cEpaBlXmlParser().Parse(reader);
    return tree.document == nullptr ? nullptr : std::make_shared<const cMetaFiles>(filePath, std::move(tree));
}

// The document of this file that the list ends up with: another thread may have been faster.
MetaDocument Keep(const Link& parsed)
{
    auto list = documentList.UpdateAndGet([&](DocumentList& changed) {
        if (FindLink(changed, parsed->filePath()) != changed.end())
        {
            return false;
        }
        changed.push_back(parsed);
        return true;
    });
    return RootOf(std::move(list), parsed->filePath());
}

} // namespace

MetaDocument MetaGetDocument(std::wstring_view filePath)
{
    PathText file(filePath);
    ExtendByAnywhereRule(file);
    if (MetaDocument known = RootOf(documentList.Get(), file.view()))
    {
        return known;
    }
    const Link parsed = ParseFile(std::wstring(file.view()));
    return parsed == nullptr ? nullptr : Keep(parsed);
}

Result MetaDropDocument(std::wstring_view filePath)
{
    PathText file(filePath);
    ExtendByAnywhereRule(file);
    documentList.Update([&](DocumentList& list) {
        const auto known = FindLink(list, file.view());
        if (known == list.end())
        {
            return false;
        }
        list.erase(known);
        return true;
    });
    return PGSP_OK;
}

void MetaDropAllDocuments() noexcept
{
    documentList.Clear();
}

void MetaFreeDocuments() noexcept
{
    documents.Destroy();
}

} // namespace norvepa
