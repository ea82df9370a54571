#include "catalogue/CatalogueWalk.h"
#include "catalogue/norvxmlCatalogue.h"
#include "frame/Arguments.h"
#include "frame/Text.h"
#include "store/PullWalk.h"

#include <algorithm>
#include <array>
#include <vector>

namespace norvepa
{

namespace
{

constexpr std::size_t MaxTokens = 8;

// A key's parts; those that it doesn't have are empty.
using Tokens = std::array<std::wstring, MaxTokens>;

bool SeekSectionOf(PullReader& reader, std::wstring_view endName, std::wstring_view param)
{
    while (XmlSeekChild(reader, endName, L"ParamSection"))
    {
        if (IsParamSectionOf(reader, param))
        {
            return true;
        }
    }
    return false;
}

// Each walk begins inside of an element of the first token, and ends well at the first token that is empty.

bool IsInBoard(PullReader& reader, const Tokens& key)
{
    return key[1].empty() || SeekSectionOf(reader, key[0], key[1]); // a third token is not looked at
}

bool IsInTemplate(PullReader& reader, const Tokens& key)
{
    if (key[1].empty())
    {
        return true;
    }
    if (!XmlSeekChild(reader, key[0], key[1]))
    {
        return false;
    }
    if (key[2].empty())
    {
        return true;
    }
    std::wstring name;
    while (XmlSeekChild(reader, key[1], L"Subdevice"))
    {
        if (XmlGetAttribute(reader, L"SubdevName", name) && EqualNoCase(name, key[2]))
        {
            return true;
        }
    }
    return false;
}

// A fifth token asks for the last step, but it is the fourth that is compared there once more.
bool IsSubValueInProtocol(PullReader& reader, const Tokens& key)
{
    if (key[3].empty())
    {
        return true;
    }
    if (!SeekSectionOf(reader, L"ParamSection", key[3]))
    {
        return false;
    }
    return key[4].empty() || (XmlSeekChild(reader, L"ParamSection", L"ValueCollection") &&
                              SeekSectionOf(reader, L"ParamSection", key[3]));
}

bool IsInProtocol(PullReader& reader, const Tokens& key)
{
    if (key[1].empty())
    {
        return true;
    }
    if (!SeekSectionOf(reader, key[0], key[1]))
    {
        return false;
    }
    if (key[2].empty())
    {
        return true;
    }
    return XmlSeekChild(reader, L"ParamSection", L"ValueCollection") &&
           SeekSectionOf(reader, L"ValueCollection", key[2]) && IsSubValueInProtocol(reader, key);
}

using Walk = bool (*)(PullReader&, const Tokens&);

// The file has been opened: a key with too many tokens is told only then.
Result KeyExists(PullReader& reader, const wchar_t* key, std::size_t maxTokens, Walk isThere)
{
    std::vector<std::wstring> parts = Tokenize(key);
    if (parts.size() > maxTokens)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    Tokens tokens;
    std::move(parts.begin(), parts.end(), tokens.begin());
    while (SeekSection(reader, tokens[0]))
    {
        if (isThere(reader, tokens))
        {
            return PGSP_OK;
        }
    }
    return PGSP_ERR_PARAM_NOT_FOUND;
}

} // namespace

Result NorvXMLBoardKeyExists(const wchar_t* filePath, const wchar_t* key, [[maybe_unused]] std::int32_t flag)
{
    if (IsMissing(filePath) || key == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    PullReader reader;
    const Result result = OpenStoreFile(filePath, reader);
    return result == PGSP_OK ? KeyExists(reader, key, 3, &IsInBoard) : result;
}

Result NorvXMLProtocolKeyExists(const wchar_t* filePath, const wchar_t* key,
                                [[maybe_unused]] std::int32_t flag)
{
    if (IsMissing(filePath) || key == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    PullReader reader;
    const Result result = OpenStoreFile(filePath, reader);
    return result == PGSP_OK ? KeyExists(reader, key, 5, &IsInProtocol) : result;
}

// The name isn't escaped here, unlike in the other two.
Result NorvXMLTemplateKeyExists(const wchar_t* filePath, const wchar_t* key,
                                [[maybe_unused]] std::int32_t flag)
{
    if (IsMissing(filePath) || key == nullptr)
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    PullReader reader;
    const Result result = reader.Open(CatalogueFile(filePath));
    return result == PGSP_OK ? KeyExists(reader, key, 3, &IsInTemplate) : result;
}

} // namespace norvepa
