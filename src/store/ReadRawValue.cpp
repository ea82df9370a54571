#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/PullWalk.h"
#include "store/norvxml.h"

#include <array>
#include <vector>

namespace norvepa
{

namespace
{

// What kind of file a path leads to, told by the folder word in it.
enum class FileKind
{
    Template,
    Board,
    Protocol,
    Other
};

struct KindRow
{
    std::wstring_view folder;
    FileKind kind;
};

constexpr std::array<KindRow, 3> KindTable{{
    {L"DefaultLogDevices", FileKind::Template},
    {L"Boards", FileKind::Board},
    {L"Protocols", FileKind::Protocol},
}};

FileKind KindOf(std::wstring_view path)
{
    for (const KindRow& row : KindTable)
    {
        const std::size_t position = path.find(row.folder);
        if (position != std::wstring_view::npos && position > 0)
        {
            return row.kind;
        }
    }
    return FileKind::Other;
}

struct SectionPath
{
    std::wstring section;
    std::wstring subSection; // empty when there is none
};

SectionPath Split(const wchar_t* sectionPath)
{
    if (sectionPath == nullptr)
    {
        return {std::wstring(SpareSection), {}};
    }
    const std::vector<std::wstring> tokens = Tokenize(sectionPath);
    return {tokens.empty() ? std::wstring{} : tokens[0], tokens.size() < 2 ? std::wstring{} : tokens[1]};
}

// A board keeps constraint words in a `ParamSection` inside of a section.
bool SeekBoardWord(PullReader& reader, const SectionPath& path, std::wstring_view word, std::wstring& value)
{
    while (XmlSeekChild(reader, path.section, L"ParamSection"))
    {
        if (IsParamSectionOf(reader, path.subSection) && ReadChildText(reader, L"ParamSection", word, value))
        {
            return true;
        }
    }
    return false;
}

// A protocol keeps them in any `ParamSection`, whatever is around it.
Result ReadProtocolWord(const wchar_t* filePath, std::wstring_view section, std::wstring_view word,
                        std::wstring& value)
{
    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }
    while (SeekParamSection(reader, section))
    {
        if (ReadChildText(reader, L"ParamSection", word, value))
        {
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

bool SeekInSubSection(PullReader& reader, FileKind kind, const SectionPath& path, std::wstring_view parameter,
                      std::wstring& value)
{
    switch (kind)
    {
    case FileKind::Template:
        return XmlSeekChild(reader, path.section, path.subSection) &&
               SeekEntryValue(reader, path.subSection, parameter, value);
    case FileKind::Board:
        return SeekBoardWord(reader, path, parameter, value);
    case FileKind::Protocol:
    case FileKind::Other:
        return false;
    }
    return false;
}

} // namespace

Result NorvXMLGetValueRaw(const wchar_t* filePath, const wchar_t* sectionPath, const wchar_t* parameter,
                          std::wstring* value)
{
    if (IsMissing(filePath) || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    PullReader reader;
    if (const Result result = OpenStoreFile(filePath, reader); result != PGSP_OK)
    {
        return result;
    }

    value->clear();
    const SectionPath path = Split(sectionPath);
    const FileKind kind = KindOf(filePath);
    const std::wstring_view word = TextOrEmpty(parameter);
    while (SeekSection(reader, path.section))
    {
        if (path.subSection.empty())
        {
            if (SeekEntryValue(reader, path.section, word, *value))
            {
                return PGSP_OK;
            }
            continue;
        }
        if (kind == FileKind::Protocol)
        {
            return PGSP_ERR_PARAM_NOT_FOUND; // protocols have no sub-sections
        }
        if (SeekInSubSection(reader, kind, path, word, *value))
        {
            return PGSP_OK;
        }
    }

    return kind == FileKind::Protocol ? ReadProtocolWord(filePath, path.section, word, *value)
                                      : PGSP_ERR_PARAM_NOT_FOUND;
}

} // namespace norvepa
