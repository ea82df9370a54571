#pragma once

// Protocols of which some parameters decide others, and log devices on which such a choice is made:
//
//     const XmlContent rates = SubParameter(L"baudrate", {{L"9600", XmlContent().Int(L"gap", L"1")}});
//     store.WriteProtocol(
//         Catalogue()
//             .Parameter(L"baudrate", {}, Profiles({{L"19200", XmlContent().Int(L"gap", L"2")}}))
//             .Parameter(L"busparam", {}, Profiles({{L"1/Standard", rates}, {L"3"}})));
//     store.WriteDevice(L"Presse", Spare(XmlContent().Text(L"busparam", L"1").Text(L"baudrate", L"9600")));

#include "support/DeviceStore.h"

#include <initializer_list>
#include <string_view>

namespace norvepa::test
{

// A value that a parameter may take, and what its section holds: pairs, sub-parameters, or nothing. The
// section is named by what is ahead of a "/".
struct Profile
{
    std::wstring_view value;
    XmlContent content = {};
};

// A collection that lists each value and has a section for it.
[[nodiscard]] XmlContent Profiles(std::initializer_list<Profile> profiles);

// A parameter below a value of another one, with a collection of its own.
[[nodiscard]] XmlContent SubParameter(std::wstring_view name, std::initializer_list<Profile> profiles);

// The section in which parameters stand that no catalogue says anything of.
[[nodiscard]] XmlContent Spare(const XmlContent& entries);

} // namespace norvepa::test
