#include "meta/cMetaFiles.h"

#include "frame/FileNames.h"
#include "frame/StoreLocations.h"
#include "meta/Published.h"

#include <algorithm>
#include <vector>

namespace norvepa
{

namespace
{

using Link = std::shared_ptr<const cMetaFiles>;
using DocumentList = std::vector<Link>;

Published<DocumentList> documentList;

auto FindLink(const DocumentList& list, const std::wstring& filePath)
{
    return std::find_if(list.begin(), list.end(),
                        [&](const Link& link) { return EqualWords(link->filePath(), filePath); });
}

MetaDocument RootOf(const Link& link)
{
    return {link, link->root()};
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

// The link of this file that the list ends up with: another thread may have been faster.
Link Keep(Link parsed)
{
    documentList.Update([&](DocumentList& list) {
        if (const auto known = FindLink(list, parsed->filePath()); known != list.end())
        {
            parsed = *known;
            return false;
        }
        list.push_back(parsed);
        return true;
    });
    return parsed;
}

} // namespace

MetaDocument MetaGetDocument(std::wstring filePath)
{
    ExtendByAnywhereRule(filePath);
    const auto list = documentList.Get();
    if (const auto known = FindLink(*list, filePath); known != list->end())
    {
        return RootOf(*known);
    }
    Link parsed = ParseFile(filePath);
    return parsed == nullptr ? nullptr : RootOf(Keep(std::move(parsed)));
}

Result MetaDropDocument(std::wstring filePath)
{
    ExtendByAnywhereRule(filePath);
    documentList.Update([&](DocumentList& list) {
        const auto known = FindLink(list, filePath);
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

} // namespace norvepa
