#include "meta/cEpaBlCache.h"

#include "meta/Vocabulary.h"
#include "win/Undestroyed.h"

#include <algorithm>
#include <utility>

namespace norvepa
{

namespace
{

using Link = std::shared_ptr<const cEpaBlCache>;
using CacheList = std::vector<Link>;

win::Undestroyed<win::Published<CacheList>> caches;
win::Published<CacheList>& cacheList = caches.get();

template <typename List> // constant or not
auto FindFile(List& list, std::wstring_view filePath)
{
    return std::find_if(list.begin(), list.end(),
                        [&](const Link& link) { return EqualWords(link->filePath, filePath); });
}

// The file's answers as they are, to be added to; a new file has none.
cEpaBlCache AnswersOf(const CacheList& list, std::wstring_view filePath)
{
    const auto known = FindFile(list, filePath);
    return known == list.end() ? cEpaBlCache{std::wstring(filePath), {}} : **known;
}

void Replace(CacheList& list, cEpaBlCache&& cache)
{
    const auto known = FindFile(list, cache.filePath);
    auto link = std::make_shared<const cEpaBlCache>(std::move(cache));
    if (known == list.end())
    {
        list.push_back(std::move(link));
        return;
    }
    *known = std::move(link);
}

} // namespace

win::Borrowed<const Answer> MetaCacheFind(std::wstring_view filePath, std::wstring_view key, AnswerKind kind)
{
    auto list = cacheList.Get();
    const auto file = FindFile(*list, filePath);
    if (file == list->end())
    {
        return nullptr;
    }
    const auto ofKind = (*file)->answers.find(kind);
    if (ofKind == (*file)->answers.end())
    {
        return nullptr;
    }
    for (const cEpaBlCacheData& data : ofKind->second)
    {
        if (EqualWords(data.key, key))
        {
            return std::move(list).Along(data.values.get());
        }
    }
    return nullptr;
}

Result MetaCacheStore(std::wstring_view filePath, std::wstring_view key, AnswerKind kind,
                      std::shared_ptr<const Answer> values)
{
    Result result = PGSP_OK;
    cacheList.Update([&](CacheList& list) {
        cEpaBlCache cache = AnswersOf(list, filePath);
        std::vector<cEpaBlCacheData>& ofKind = cache.answers[kind];
        if (!ofKind.empty() && EqualWords(ofKind.front().key, key))
        {
            result = NotInCache;
            return false;
        }
        ofKind.push_back({std::wstring(key), values});
        Replace(list, std::move(cache));
        result = PGSP_OK;
        return true;
    });
    return result;
}

Result MetaCacheDropFile(std::wstring_view filePath)
{
    Result result = NotInCache;
    cacheList.Update([&](CacheList& list) {
        const auto known = FindFile(list, filePath);
        result = known == list.end() ? NotInCache : PGSP_OK;
        if (known == list.end())
        {
            return false;
        }
        list.erase(known);
        return true;
    });
    return result;
}

void MetaFreeAnswers() noexcept
{
    caches.Destroy();
}

} // namespace norvepa
