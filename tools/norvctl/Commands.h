#pragma once

// The verbs, a file per noun. Each adds itself to the parser; its answer goes through the report, its
// failure is an exception with the words for the user.

#include "Report.h"

#include <CLI/CLI.hpp>

namespace norvctl
{

void AddNameCommands(CLI::App& app, const Report& report); // name list, show, create, delete, get, set, unset
void AddWatchCommand(CLI::App& app, const Report& report); // watch
void AddTraceCommands(CLI::App& app, const Report& report);  // trace status, on, off
void AddVersionCommand(CLI::App& app, const Report& report); // version

} // namespace norvctl
