#include "catalogue/CatalogueWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "meta/CachedMetaFile.h"
#include "store/PullWalk.h"

#include <optional>

namespace norvepa
{

namespace
{

// On to the first `ParamSection` of this parameter. A second one is never reached.
bool ReadToSection(PullReader& reader, std::wstring_view parameter)
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type == XmlNodeType_Element && EqualNoCase(reader.LocalName(), L"ParamSection") &&
            IsParamSectionOf(reader, parameter))
        {
            return true;
        }
    }
    return false;
}

// On to an element of this name, which is found in a nested section, too. Any end of a section gives up: the
// words of a section stand ahead of its values.
bool ReadToWord(PullReader& reader, std::wstring_view word)
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type == XmlNodeType_EndElement && EqualNoCase(reader.LocalName(), L"ParamSection"))
        {
            return false;
        }
        if (type == XmlNodeType_Element && EqualNoCase(reader.LocalName(), word))
        {
            return true;
        }
    }
    return false;
}

// The next text, whatever is in between: that of a following element when the word has none.
std::optional<std::wstring> ReadNextText(PullReader& reader)
{
    XmlNodeType type = XmlNodeType_None;
    while (reader.Read(type))
    {
        if (type == XmlNodeType_Text && !reader.Value().empty())
        {
            return std::wstring(reader.Value());
        }
    }
    return std::nullopt;
}

} // namespace

Result NorvXMLGetConstraint(const wchar_t* filePath, const wchar_t* parameter, const wchar_t* word,
                            std::wstring* value)
{
    if (IsMissing(filePath) || value == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }

    const std::wstring_view param = TextOrEmpty(parameter);
    const std::wstring_view constraint = TextOrEmpty(word);
    Result remembered = PGSP_OK;
    if (ConstraintExistsAlready(filePath, param, constraint, *value, remembered))
    {
        return remembered;
    }

    value->clear();
    PullReader reader;
    if (const Result result = reader.Open(CatalogueFile(filePath)); result != PGSP_OK)
    {
        return result; // the one outcome that isn't remembered
    }

    // A word whose text the file doesn't hold is there, but is remembered as one that isn't.
    const bool isThere = ReadToSection(reader, param) && ReadToWord(reader, constraint);
    const std::optional<std::wstring> text = isThere ? ReadNextText(reader) : std::nullopt;
    InsertConstraintToCachedMetaFile(filePath, param, constraint, text);
    *value = text.value_or(std::wstring{});
    return isThere ? PGSP_OK : PGSP_ERR_PARAM_NOT_FOUND;
}

} // namespace norvepa
