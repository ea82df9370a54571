#include "meta/CachedMetaFile.h"

#include "frame/Text.h"
#include "meta/GrowingList.h"
#include "trace/TraceStatement.h"
#include "win/Published.h"
#include "win/Undestroyed.h"

#include <algorithm>
#include <vector>

namespace norvepa
{

namespace
{

constexpr std::size_t MaxRecords = 65'536; // of files, and of constraints in a file

struct CachedConstraint
{
    std::wstring param;
    std::wstring constraint;
    std::optional<std::wstring> value; // none: looked for and not found
};

struct CachedMetaFile
{
    explicit CachedMetaFile(std::wstring_view path) : filePath(path) {}

    const std::wstring filePath; // as the caller gave it
    GrowingList<CachedConstraint> constraints{MaxRecords};
};

using FileList = std::vector<std::shared_ptr<CachedMetaFile>>;

win::Undestroyed<win::Published<FileList>> files;
win::Published<FileList>& cachedFiles = files.get();

// Null when there is none. What is found stays for good: no file is ever taken out of the list.
CachedMetaFile* FindFile(const FileList& list, std::wstring_view filePath)
{
    const auto known = std::find_if(list.begin(), list.end(),
                                    [&](const auto& file) { return EqualNoCase(file->filePath, filePath); });
    return known == list.end() ? nullptr : known->get();
}

const CachedConstraint* FindConstraint(std::wstring_view filePath, std::wstring_view param,
                                       std::wstring_view constraint)
{
    const CachedMetaFile* const file = FindFile(*cachedFiles.Get(), filePath);
    return file == nullptr ? nullptr : file->constraints.Find([&](const CachedConstraint& known) {
        return EqualNoCase(known.param, param) && EqualNoCase(known.constraint, constraint);
    });
}

// Also when another thread has been faster. Null when no more can be remembered.
CachedMetaFile* AddFile(std::wstring_view filePath)
{
    CachedMetaFile* file = nullptr;
    cachedFiles.Update([&](FileList& list) {
        file = FindFile(list, filePath);
        if (file != nullptr || list.size() >= MaxRecords)
        {
            return false;
        }
        file = list.emplace_back(std::make_shared<CachedMetaFile>(filePath)).get();
        return true;
    });
    return file;
}

} // namespace

bool ConstraintExistsAlready(std::wstring_view filePath, std::wstring_view param,
                             std::wstring_view constraint, std::wstring& value, Result& result)
{
    constexpr TraceSource source{"ConstraintExistsAlready: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> filePath = %s", TraceToAnsi(filePath.data(), filePath.size()));
    const CachedConstraint* const known = FindConstraint(filePath, param, constraint);
    if (known == nullptr)
    {
        return false;
    }
    if (!known->value.has_value())
    {
        result = PGSP_ERR_PARAM_NOT_FOUND;
        NORV_TRACE(source, TraceInfo, "<< PGSP_ERR_PARAM_NOT_FOUND");
        return true;
    }
    value = *known->value;
    result = PGSP_OK;
    NORV_TRACE(source, TraceInfo, "<< PGSP_OK");
    return true;
}

void InsertConstraintToCachedMetaFile(std::wstring_view filePath, std::wstring_view param,
                                      std::wstring_view constraint, const std::optional<std::wstring>& value)
{
    constexpr TraceSource source{"InsertConstraintToCachedMetaFile: ", "XML"};

    NORV_TRACE(source, TraceEntry, ">> filePath = %s", TraceToAnsi(filePath.data(), filePath.size()));
    CachedMetaFile* file = FindFile(*cachedFiles.Get(), filePath);
    NORV_TRACE(source, TraceInfo, "%s", file == nullptr ? "create new file" : "file exists - ok");
    if (file == nullptr)
    {
        file = AddFile(filePath);
    }
    if (file != nullptr)
    {
        file->constraints.Append({std::wstring(param), std::wstring(constraint), value});
    }
}

void FreeConstraints() noexcept
{
    files.Destroy();
}

} // namespace norvepa
