#pragma once

// A log device as a JSON document, to be kept, compared and put back.
//
//     {
//       "format": "norvctl log device",
//       "version": 1,
//       "name": "Kesselhaus",
//       "board": "*AFK220",
//       "protocol": "L2",
//       "sections": {"LocalSettings": {"baudrate": "1500000", "twice": ["first", "second"]}},
//       "subdevices": {"Brenner 1": {"address": "12"}},
//       "links": {"UserInterface64": {"DescText": "AuentalTexte.dll,1001"}}
//     }
//
// All are in the order of the file; a name that a section holds several times has an array of its values.
// What isn't carried: the types of values, further attributes, lists and constraints, what the driver loads,
// and of UserInterface and UserInterface64 all but the libraries and targets of TransferredLinks.

#include "FileValues.h"
#include "Report.h"

#include <array>
#include <string>
#include <string_view>

namespace norvctl
{

// The links that can be set.
inline constexpr std::array<std::string_view, 4> TransferredLinks{"DescDefault", "DescText", "PropSheet",
                                                                  "Diagnosis"};

struct DeviceDocument
{
    std::string name;
    FileValues content; // of the attributes DeviceID and CP_TYPE only; without a fingerprint
};

// The part of a file that a document holds.
[[nodiscard]] FileValues TransferredPart(const FileValues& file);

// An attribute's value; empty when it isn't there.
[[nodiscard]] std::string AttributeOf(const FileValues& file, std::string_view name);

[[nodiscard]] Json AsJson(const DeviceDocument& document);

// Throws with the place of what is no such document, after `source`, the file's name.
[[nodiscard]] DeviceDocument ParseDeviceDocument(const std::string& source, const std::string& bytes);

} // namespace norvctl
