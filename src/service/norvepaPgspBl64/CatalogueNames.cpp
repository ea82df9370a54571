#include "frame/FileNames.h"
#include "frame/Text.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

#include <array>

namespace norvepa
{

namespace
{

struct ProfileRow
{
    std::wstring_view word;
    std::wstring_view number;
};

constexpr std::array<ProfileRow, 4> ProfileWords{{
    {L"DP", L"0"},
    {L"Std", L"1"},
    {L"Uni", L"2"},
    {L"User", L"3"},
}};

std::wstring WithPrefix(std::wstring_view name, std::wstring_view prefix)
{
    std::wstring whole(Holds(name, prefix) ? std::wstring_view{} : prefix);
    whole += name;
    return whole;
}

} // namespace

std::wstring_view WithoutStar(std::wstring_view name)
{
    return name.substr(name.starts_with(L'*') ? 1 : 0);
}

std::wstring MakeBoardNameTestFirst(std::wstring_view board)
{
    return Holds(board, BoardPrefix) ? std::wstring(board) : WithPrefix(WithoutStar(board), BoardPrefix);
}

std::wstring MakeBoardNameStripFirst(std::wstring_view board)
{
    return WithPrefix(WithoutStar(board), BoardPrefix);
}

std::wstring MakeProtocolName(std::wstring_view protocol)
{
    return WithPrefix(protocol, ProtocolPrefix);
}

std::wstring MakeTemplateName(std::wstring_view name)
{
    return WithPrefix(name, TemplatePrefix);
}

Result MakeTemplateNameEscaping(const wchar_t* name, std::wstring& made)
{
    if (Holds(name, TemplatePrefix))
    {
        made = name;
        return PGSP_OK;
    }
    return MakeEscapedTemplateName(name, made);
}

Result MakeEscapedTemplateName(const wchar_t* name, std::wstring& made)
{
    std::wstring escaped;
    const Result result = EscapePath(name, escaped);
    if (result == PGSP_OK)
    {
        made = std::wstring(TemplatePrefix).append(escaped);
    }
    return result;
}

std::wstring MapProfileWord(std::wstring_view profile)
{
    for (const ProfileRow& row : ProfileWords)
    {
        if (EqualNoCase(row.word, profile))
        {
            return std::wstring(row.number);
        }
    }
    return std::wstring(profile);
}

std::wstring CatalogueFolder(std::wstring_view programFolder, std::wstring_view folder)
{
    return MakeStoreFolder(programFolder, L"meta", folder);
}

std::wstring BoardFile(std::wstring_view programFolder, std::wstring_view name)
{
    return JoinPath(CatalogueFolder(programFolder, BoardsWord), name);
}

std::wstring ProtocolFile(std::wstring_view programFolder, std::wstring_view name)
{
    return JoinPath(CatalogueFolder(programFolder, ProtocolsWord), name);
}

std::wstring TemplateFile(std::wstring_view programFolder, std::wstring_view name)
{
    return JoinPath(CatalogueFolder(programFolder, TemplatesWord), name);
}

} // namespace norvepa
