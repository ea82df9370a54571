#pragma once

// Whether a log device would take a value, told without offering it: what the library checks ahead of a
// change, from the words and the lists that the catalogue has for a parameter.

#include "IntegerLimits.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace norvctl
{

// What begins the file names of boards and protocols.
inline constexpr wchar_t BoardPrefix[] = L"Automation-OnlineAccess-BT-";
inline constexpr wchar_t ProtocolPrefix[] = L"Automation-OnlineAccess-PT-";

// What the catalogue says of a parameter's values; what it doesn't say is empty.
struct ValueType
{
    std::wstring word;
    bool isOfBoard = false;
};

// How a value is checked.
enum class ValueKind
{
    Anything, // not at all
    Bool,
    Integer,
    Listed
};

// Where a log device keeps a parameter.
struct Place
{
    std::wstring section; // empty: wherever it is
    std::wstring name;
};

// The check of all log devices that have a board and a protocol in common. A word of the board's wins over
// the protocol's. A file that isn't there says nothing.
class ValueCheck
{
public:
    // As a log device names them: its DeviceID and its CP_TYPE.
    ValueCheck(const std::string& deviceId, const std::string& cpType);

    // PGSP_OK, or the code with which LogDeviceSetValueBL would refuse the value.
    [[nodiscard]] int32_t Check(const std::wstring& parameter, const std::wstring& value) const;

    [[nodiscard]] ValueKind KindOf(const std::wstring& parameter) const;

    // False for a parameter that takes any value.
    [[nodiscard]] bool HasLimits(const std::wstring& parameter) const
    {
        return KindOf(parameter) != ValueKind::Anything;
    }

    // Whether two values of a parameter mean the same to the checks.
    [[nodiscard]] bool IsSame(const std::wstring& parameter, const std::wstring& left,
                              const std::wstring& right) const;

    // The limits of a whole number, and the default of any parameter.
    [[nodiscard]] const ValueLimits& LimitsOf(const std::wstring& parameter) const;

    // Of a parameter that is checked by a list: the values that it takes.
    [[nodiscard]] std::vector<std::wstring> ListOf(const std::wstring& parameter) const;

    [[nodiscard]] const Place& PlaceOf(const std::wstring& parameter) const;

    // Parameters that both files tell of, with repetitions. A file tells of those ahead of the first one that
    // has no default. Both files must be there.
    [[nodiscard]] const std::vector<std::wstring>& Parameters() const;

private:
    [[nodiscard]] const ValueType& TypeOf(const std::wstring& parameter) const;
    [[nodiscard]] ValueType ReadType(const std::wstring& parameter) const;
    [[nodiscard]] Place ReadPlace(const std::wstring& parameter) const;
    [[nodiscard]] ValueLimits ReadLimits(const std::wstring& parameter) const;
    [[nodiscard]] std::wstring Word(const std::wstring& parameter, const wchar_t* word) const;
    [[nodiscard]] bool IsListed(const std::wstring& parameter, const std::wstring& value) const;

    std::wstring m_board; // the names of the files
    std::wstring m_protocol;

    // By the parameter in small letters. Each word costs a look at both files, so that none is read ahead of
    // its need.
    mutable std::optional<std::vector<std::wstring>> m_parameters;
    mutable std::map<std::wstring, ValueType> m_types;
    mutable std::map<std::wstring, Place> m_places;
    mutable std::map<std::wstring, ValueLimits> m_limits;
};

} // namespace norvctl
