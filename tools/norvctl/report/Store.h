#pragma once

// The whole store as a report shows it: every object with its values in groups, whatever its kind.

#include "DeviceSheet.h"
#include "Progress.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace norvctl::report
{

// What an object can be. The order is that of the page.
enum class Kind
{
    LogName,
    LogDevice,
    Board,
    Protocol,
    Template
};

struct KindWords
{
    Kind kind;
    const char* word;    // "log device", as findings name it
    const char* heading; // "Log devices"
    const char* anchor;  // "log-device"
};
extern const std::array<KindWords, 5> AllKinds;

[[nodiscard]] const KindWords& WordsOf(Kind kind);

struct Object
{
    Kind kind{};
    std::string name;
    std::string device; // that a log name is linked to
    std::string type;   // CP_TYPE
    std::string board;  // DeviceID, as the object has it
    std::string unit;
    bool isHidden = false;
    std::vector<SheetSection> sections;
};
using Objects = std::vector<Object>;

// All objects, kind by kind. What can't be read is there without values: the findings tell why.
[[nodiscard]] Objects ReadStore(Progress& progress);

// The same without what the catalogue says of the values, of log names and log devices alone: what a backup
// holds.
[[nodiscard]] Objects ReadData(Progress& progress);

} // namespace norvctl::report
