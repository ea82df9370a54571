#include "ValueCheck.h"

#include "Reads.h"
#include "Text.h"
#include "norvepa.h"

#include <windows.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <optional>

namespace norvctl
{

namespace
{

constexpr wchar_t BoardsFolder[] = L"Boards";
constexpr wchar_t ProtocolsFolder[] = L"Protocols";
constexpr int DecimalBase = 10;

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

bool IsListed(const wchar_t* folder, const std::wstring& file, const wchar_t* list, const std::wstring& value)
{
    const std::vector<std::string> entries =
        EnumerateTexts(ToUtf8(file), [&](uint32_t index, wchar_t* text, uint32_t* length) {
            return PGSP_TemplateGetEnumValueRawBL(folder, file.c_str(), list, index, text, length);
        });
    return std::any_of(entries.begin(), entries.end(), [&](const std::string& entry) {
        return EqualNoCase(FirstToken(ToWide(entry)), value);
    });
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

// A text counts by its leading digits, and without any as 0.
double ToNumber(const std::wstring& text, const std::wstring& base)
{
    const long given = std::wcstol(base.c_str(), nullptr, DecimalBase);
    const int radix = given < 2 || given > 35 ? DecimalBase : static_cast<int>(given);
    return static_cast<double>(std::wcstol(text.c_str(), nullptr, radix));
}

// In any base it is stored as a decimal one.
bool IsStorable(const std::wstring& value)
{
    wchar_t* end = nullptr;
    static_cast<void>(std::wcstol(value.c_str(), &end, DecimalBase));
    return *end == L'\0';
}

// Words stand for values of the catalogue's.
std::wstring Replaced(const ValueLimits& limits, const std::wstring& value)
{
    if (EqualNoCase(value, L"min"))
    {
        return limits.min;
    }
    if (EqualNoCase(value, L"max"))
    {
        return limits.max;
    }
    return EqualNoCase(value, L"default") ? limits.standard : value;
}

int32_t CheckInteger(const ValueLimits& limits, const std::wstring& value)
{
    if (value.empty())
    {
        return PGSP_ERR_INVALID_PARAMETERS;
    }
    // Without a minimum the value isn't looked at: a maximum alone is compared with 0.
    const bool hasMin = !limits.min.empty();
    const double number = hasMin ? ToNumber(value, limits.base) : 0;
    const double minimum = hasMin ? ToNumber(limits.min, limits.base) : 0;
    if (number < minimum)
    {
        return PGSP_SET_VAL_LESS_THAN_MIN;
    }
    if (!limits.max.empty() && number > ToNumber(limits.max, limits.base))
    {
        return PGSP_SET_VAL_BIGGER_THAN_MAX;
    }
    const double step = hasMin ? ToNumber(limits.step, limits.base) : 0;
    if (step >= 2 && std::fmod(number - minimum, step) != 0)
    {
        return PGSP_NOT_IN_STEP;
    }
    return IsStorable(value) ? PGSP_OK : PGSP_ERR_INVALID_PARAMETERS;
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
      m_protocol(ProtocolPrefix + ToWide(cpType)),
      m_parameters(ParametersOf(m_board, m_protocol))
{
}

int32_t ValueCheck::Check(const std::wstring& parameter, const std::wstring& value) const
{
    const ValueType& type = TypeOf(parameter);
    if (EqualNoCase(type.word, L"bool"))
    {
        return IsBool(value) ? PGSP_OK : PGSP_NOT_A_BOOL;
    }
    if (!EqualNoCase(type.word, L"int"))
    {
        return PGSP_OK;
    }
    if (EqualNoCase(parameter, L"baudrate"))
    {
        return CheckListed(value, IsBaudrate(type, value));
    }
    if (EqualNoCase(parameter, L"l4_timeout"))
    {
        return CheckListed(value, IsTimeout(type, value));
    }
    const ValueLimits& limits = LimitsOf(parameter);
    return CheckInteger(limits, Replaced(limits, value));
}

bool ValueCheck::HasLimits(const std::wstring& parameter) const
{
    const std::wstring& type = TypeOf(parameter).word;
    return EqualNoCase(type, L"int") || EqualNoCase(type, L"bool");
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

// The list is the board's, whichever of the two tells the type.
bool ValueCheck::IsBaudrate(const ValueType& type, const std::wstring& value) const
{
    return type.isOfBoard ? IsListed(BoardsFolder, m_board, L"Constraints\\baudrate", value)
                          : IsSectionOfAList(m_board, value);
}

bool ValueCheck::IsTimeout(const ValueType& type, const std::wstring& value) const
{
    constexpr wchar_t list[] = L"Constraints\\l4_timeout";

    return type.isOfBoard ? IsListed(BoardsFolder, m_board, list, value)
                          : IsListed(ProtocolsFolder, m_protocol, list, value);
}

} // namespace norvctl
