#include "ValueCheck.h"

#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace norvctl
{

namespace
{

constexpr wchar_t BoardsFolder[] = L"Boards";
constexpr wchar_t ProtocolsFolder[] = L"Protocols";

std::optional<std::wstring> WordOf(const wchar_t* folder, const std::wstring& file,
                                   const std::wstring& parameter, const wchar_t* word)
{
    const ReadResult read = ReadText([&](wchar_t* text, uint32_t* length) {
        return PGSP_TemplateGetConstraintBL(folder, file.c_str(), parameter.c_str(), word, text, length);
    });
    return read.result == PGSP_OK ? std::optional(ToWide(read.value)) : std::nullopt;
}

// What is known of a parameter, read when it is first asked for.
template <typename Known, typename Read>
const Known& ReadOnce(std::map<std::wstring, Known>& all, const std::wstring& parameter, const Read& read)
{
    const std::wstring key = ToLower(parameter);
    const auto known = all.find(key);
    return known == all.end() ? all.emplace(key, read()).first->second : known->second;
}

std::vector<std::wstring> ParametersOf(const std::wstring& board, const std::wstring& protocol)
{
    const std::wstring ofBoard = board + L"\\ConstraintsWithDefault";
    std::vector<NameAndValue> pairs =
        EnumeratePairs(ToUtf8(board), [&](uint32_t index, wchar_t* name, uint32_t* nameLength, wchar_t* value,
                                          uint32_t* valueLength) {
            return PGSP_BoardGetEnumValueBL(ofBoard.c_str(), index, name, nameLength, value, valueLength);
        });
    const std::vector<NameAndValue> ofProtocol =
        EnumeratePairs(ToUtf8(protocol), [&](uint32_t index, wchar_t* name, uint32_t* nameLength,
                                             wchar_t* value, uint32_t* valueLength) {
            return PGSP_ProtocolGetEnumValueBL(protocol.c_str(), nullptr, nullptr, nullptr, nullptr, index,
                                               name, nameLength, value, valueLength);
        });
    pairs.insert(pairs.end(), ofProtocol.begin(), ofProtocol.end());

    std::vector<std::wstring> names;
    names.reserve(pairs.size());
    for (const NameAndValue& pair : pairs)
    {
        names.push_back(ToWide(pair.name));
    }
    return names;
}

// What stands ahead of a "/", leading ones left out.
std::wstring FirstToken(const std::wstring& entry)
{
    const std::size_t begin = entry.find_first_not_of(L'/');
    return begin == std::wstring::npos ? std::wstring{}
                                       : entry.substr(begin, entry.find(L'/', begin) - begin);
}

// The values of a list; none when it can't be read.
std::vector<std::wstring> TokensOf(const wchar_t* folder, const std::wstring& file,
                                   const std::wstring& parameter)
{
    const std::wstring list = L"Constraints\\" + parameter;
    std::vector<std::wstring> tokens;
    for (uint32_t index = 0;; ++index)
    {
        const ReadResult read = ReadText([&](wchar_t* text, uint32_t* length) {
            return PGSP_TemplateGetEnumValueRawBL(folder, file.c_str(), list.c_str(), index, text, length);
        });
        if (read.result != PGSP_OK)
        {
            return tokens;
        }
        tokens.push_back(FirstToken(ToWide(read.value)));
    }
}

bool Holds(const std::vector<std::wstring>& tokens, const std::wstring& value)
{
    return std::any_of(tokens.begin(), tokens.end(),
                       [&](const std::wstring& token) { return EqualNoCase(token, value); });
}

// A list that is made of sections can't be read, only asked; and of any list of the board that is one.
bool IsSectionOfAList(const std::wstring& board, const std::wstring& value)
{
    const std::wstring key = L"ValueCollection\\" + value;
    return PGSP_TemplateKeyExistsBL(BoardsFolder, board.c_str(), key.c_str(), 0) == PGSP_OK;
}

// Compared in the user's language, as the library does it here and nowhere else.
bool IsBool(const std::wstring& value)
{
    return lstrcmpiW(value.c_str(), L"true") == 0 || lstrcmpiW(value.c_str(), L"false") == 0;
}

bool IsBaudrate(const std::wstring& parameter)
{
    return EqualNoCase(parameter, L"baudrate");
}

// An empty value is refused ahead of the list.
int32_t CheckListed(const std::wstring& value, bool isListed)
{
    if (value.empty())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    return isListed ? PGSP_OK : PGSP_NOT_IN_LIST;
}

} // namespace

ValueCheck::ValueCheck(const std::string& deviceId, const std::string& cpType)
    : m_board(BoardPrefix + ToWide(deviceId.starts_with('*') ? deviceId.substr(1) : deviceId)),
      m_protocol(ProtocolPrefix + ToWide(cpType))
{
}

int32_t ValueCheck::Check(const std::wstring& parameter, const std::wstring& value) const
{
    switch (KindOf(parameter))
    {
    case ValueKind::Bool:
        return IsBool(value) ? PGSP_OK : PGSP_NOT_A_BOOL;
    case ValueKind::Integer:
        return CheckInteger(LimitsOf(parameter), value);
    case ValueKind::Listed:
        return CheckListed(value, IsListed(parameter, value));
    default:
        return PGSP_OK;
    }
}

ValueKind ValueCheck::KindOf(const std::wstring& parameter) const
{
    const std::wstring& type = TypeOf(parameter).word;
    if (EqualNoCase(type, L"bool"))
    {
        return ValueKind::Bool;
    }
    if (!EqualNoCase(type, L"int"))
    {
        return ValueKind::Anything;
    }
    return IsBaudrate(parameter) || EqualNoCase(parameter, L"l4_timeout") ? ValueKind::Listed
                                                                          : ValueKind::Integer;
}

bool ValueCheck::IsSame(const std::wstring& parameter, const std::wstring& left,
                        const std::wstring& right) const
{
    switch (KindOf(parameter))
    {
    case ValueKind::Bool:
        return lstrcmpiW(left.c_str(), right.c_str()) == 0;
    case ValueKind::Integer:
        return IsSameInteger(LimitsOf(parameter), left, right);
    case ValueKind::Listed:
        return EqualNoCase(left, right);
    default:
        return left == right;
    }
}

// The values of both lists that the check takes: what it looks up isn't always a list that can be read.
std::vector<std::wstring> ValueCheck::ListOf(const std::wstring& parameter) const
{
    std::vector<std::wstring> listed;
    for (const auto& [folder, file] :
         {std::pair(BoardsFolder, &m_board), std::pair(ProtocolsFolder, &m_protocol)})
    {
        for (const std::wstring& token : TokensOf(folder, *file, parameter))
        {
            if (!Holds(listed, token) && Check(parameter, token) == PGSP_OK)
            {
                listed.push_back(token);
            }
        }
    }
    return listed;
}

const std::vector<std::wstring>& ValueCheck::Parameters() const
{
    if (!m_parameters)
    {
        m_parameters = ParametersOf(m_board, m_protocol);
    }
    return *m_parameters;
}

const ValueType& ValueCheck::TypeOf(const std::wstring& parameter) const
{
    return ReadOnce(m_types, parameter, [&] { return ReadType(parameter); });
}

const Place& ValueCheck::PlaceOf(const std::wstring& parameter) const
{
    return ReadOnce(m_places, parameter, [&] { return ReadPlace(parameter); });
}

const ValueLimits& ValueCheck::LimitsOf(const std::wstring& parameter) const
{
    return ReadOnce(m_limits, parameter, [&] { return ReadLimits(parameter); });
}

ValueType ValueCheck::ReadType(const std::wstring& parameter) const
{
    if (const auto ofBoard = WordOf(BoardsFolder, m_board, parameter, L"type"))
    {
        return {*ofBoard, true};
    }
    return {WordOf(ProtocolsFolder, m_protocol, parameter, L"type").value_or(std::wstring{}), false};
}

Place ValueCheck::ReadPlace(const std::wstring& parameter) const
{
    const std::wstring map = Word(parameter, L"map");
    return {Word(parameter, L"section"), map.empty() ? parameter : map};
}

ValueLimits ValueCheck::ReadLimits(const std::wstring& parameter) const
{
    return {.min = Word(parameter, L"min"),
            .max = Word(parameter, L"max"),
            .step = Word(parameter, L"step"),
            .base = Word(parameter, L"base"),
            .standard = Word(parameter, L"default")};
}

std::wstring ValueCheck::Word(const std::wstring& parameter, const wchar_t* word) const
{
    const auto ofBoard = WordOf(BoardsFolder, m_board, parameter, word);
    return ofBoard ? *ofBoard : WordOf(ProtocolsFolder, m_protocol, parameter, word).value_or(std::wstring{});
}

// The list is that of the file that tells the type. But that of baud rates is the board's, whichever does.
bool ValueCheck::IsListed(const std::wstring& parameter, const std::wstring& value) const
{
    if (TypeOf(parameter).isOfBoard)
    {
        return Holds(TokensOf(BoardsFolder, m_board, parameter), value);
    }
    return IsBaudrate(parameter) ? IsSectionOfAList(m_board, value)
                                 : Holds(TokensOf(ProtocolsFolder, m_protocol, parameter), value);
}

} // namespace norvctl
