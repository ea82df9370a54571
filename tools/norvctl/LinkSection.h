#pragma once

// A file has two sections of links to libraries: UserInterface, and UserInterface64 for 64-bit processes. The
// verbs mean that for 64-bit processes, as norvctl is one, and with --32 the other.

#include <CLI/CLI.hpp>
#include <cstdint>

namespace norvctl
{

struct LinkSection
{
    bool is32 = false;

    [[nodiscard]] int32_t Flag() const { return is32 ? 1 : 0; } // as the library takes it
    [[nodiscard]] const char* Name() const { return is32 ? "UserInterface" : "UserInterface64"; }
};

void AddLinkSection(CLI::App& command, LinkSection& section); // --32

} // namespace norvctl
