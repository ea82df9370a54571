#pragma once

// Answers that have been worked out from a parsed file: a question by index costs no walk a second time.
//
// Callers may rely on: an answer stays readable for as long as it is held, also when it was dropped. Callers
// must not: take an answer for what the file says now; an answer outlives its document, and goes only with
// MetaCacheDropFile.

#include "frame/Result.h"
#include "win/Published.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norvepa
{

// What was asked, and what its key is.
enum class AnswerKind : std::int32_t
{
    ValueCollection = 0, // a path for WalkPath: the texts of the collection
    Section = 1,         // the `Param` of a section: its children, each as word, ";", text
    WholeFile = 2        // empty: all parameters, each as name, ";", value
};

// In the order in which the answer was built: the index is the position.
using Answer = std::vector<std::wstring>;

struct cEpaBlCacheData
{
    std::wstring key;
    std::shared_ptr<const Answer> values;
};

// All answers of one file.
struct cEpaBlCache
{
    std::wstring filePath; // with its extension, as in the list of documents
    std::map<AnswerKind, std::vector<cEpaBlCacheData>> answers;
};

// What MetaCacheStore and MetaCacheDropFile answer when there was nothing to do: no code of the table.
inline constexpr Result NotInCache{-1};

// Null when the answer isn't there.
[[nodiscard]] win::Borrowed<const Answer> MetaCacheFind(std::wstring_view filePath, std::wstring_view key,
                                                        AnswerKind kind);

// PGSP_OK, or NotInCache when the file's first answer of this kind has this key. Only the first is looked at:
// who stores has just looked for the key and not found it.
Result MetaCacheStore(std::wstring_view filePath, std::wstring_view key, AnswerKind kind,
                      std::shared_ptr<const Answer> values);

// Forgets all answers of a file. PGSP_OK, or NotInCache when there were none.
Result MetaCacheDropFile(std::wstring_view filePath);

// When the module goes.
void MetaFreeAnswers() noexcept;

} // namespace norvepa
