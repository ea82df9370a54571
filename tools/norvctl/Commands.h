#pragma once

// The verbs, a file per noun. Each adds itself to the parser; its answer goes through the report, its
// failure is an exception with the words for the user.

#include "Report.h"

#include <CLI/CLI.hpp>

namespace norvctl
{

void AddDeviceCommands(CLI::App& app, const Report& report); // device list, show, get, set, unset
void AddNameCommands(CLI::App& app, const Report& report);   // name list, show, create, delete, get, set,
                                                             // unset, link, unlink
void AddBoardCommands(CLI::App& app, const Report& report);  // board list, show, values, get
void AddProtocolCommands(CLI::App& app,
                         const Report& report);              // protocol list, show, profiles, baudrates, get
void AddWatchCommand(CLI::App& app, const Report& report);   // watch
void AddTraceCommands(CLI::App& app, const Report& report);  // trace status, on, off
void AddVersionCommand(CLI::App& app, const Report& report); // version

} // namespace norvctl
