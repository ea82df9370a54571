#pragma once

// What the catalogue allows the values of log devices, in words, read once for all devices that have a board
// and a protocol in common.

#include "ValueCheck.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace norvctl
{

// "10 to 30000 in steps of 10", "9600, 19200", "true, false"; empty when anything goes.
[[nodiscard]] std::string AllowedInWords(const ValueCheck& check, const std::wstring& parameter);

struct ParameterLimits
{
    std::string allowed;                 // as above
    std::optional<std::string> standard; // the default, if there is one
};

// The limits that one board and one protocol set.
class LimitsOfPair
{
public:
    // As a log device names them: its DeviceID and its CP_TYPE.
    LimitsOfPair(const std::string& deviceId, const std::string& cpType) : m_check(deviceId, cpType) {}

    // Of a value that stands in a section. Those of a parameter hold where the catalogue says that it's kept,
    // and nowhere else.
    [[nodiscard]] const ParameterLimits& Of(const std::string& section, const std::string& parameter);

    [[nodiscard]] const ValueCheck& check() const { return m_check; }

private:
    [[nodiscard]] ParameterLimits Read(const std::string& section, const std::wstring& parameter) const;

    ValueCheck m_check;
    std::map<std::pair<std::string, std::string>, ParameterLimits> m_known; // by section and parameter
};

// Of all pairs that have been asked for. For one thread at a time.
class CatalogueLimits
{
public:
    [[nodiscard]] LimitsOfPair& Of(const std::string& deviceId, const std::string& cpType);

private:
    std::map<std::pair<std::string, std::string>, std::unique_ptr<LimitsOfPair>> m_pairs;
};

} // namespace norvctl
