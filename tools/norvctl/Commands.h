#pragma once

// The verbs, a file per noun. Each adds itself to the parser; its answer goes through the report, its
// failure is an exception with the words for the user.

#include "Report.h"

#include <CLI/CLI.hpp>

namespace norvctl
{

// Makes an empty parser norvctl's. The report, which the options --json and --headings change, must
// outlive it.
void AddCommands(CLI::App& app, Report& report);

void AddDeviceCommands(CLI::App& app, const Report& report); // device list, show, get, set, unset
void AddNameCommands(CLI::App& app, const Report& report);   // name list, show, create, delete, get, set,
                                                             // unset, link, unlink
void AddBoardCommands(CLI::App& app, const Report& report);  // board list, show, values, get
void AddProtocolCommands(CLI::App& app,
                         const Report& report); // protocol list, show, profiles, baudrates, get
void AddTemplateCommands(CLI::App& app, const Report& report); // template list, show, get, set
void AddSettingsCommands(CLI::App& app, const Report& report); // settings get, set
void AddDataCommands(CLI::App& app, const Report& report);     // data list, get, set, unset
void AddWatchCommand(CLI::App& app, const Report& report);     // watch
void AddTraceCommands(CLI::App& app, const Report& report);    // trace status, on, off
void AddVersionCommand(CLI::App& app, const Report& report);   // version
void AddDoctorCommand(CLI::App& app, const Report& report);    // doctor
void AddCompletionCommands(CLI::App& app);                     // completion, complete
void AddReferenceCommand(CLI::App& app);                       // reference
void AddStoreCommands(CLI::App& app, const Report& report);    // store backup, restore
void AddReportCommand(CLI::App& app, const Report& report);    // report

// Verbs that have a file beside their noun's.
void AddDeviceLifeCommands(CLI::App& device, const Report& report); // device create, copy, delete
void AddDeviceEditCommands(CLI::App& device, const Report& report); // device edit begin, list, apply, discard
void AddNdiCommands(CLI::App& device, const Report& report);        // device ndi list, get, set, unset
void AddDeviceProfileCommands(CLI::App& device, const Report& report);   // device profile, busparams
void AddDeviceCatalogueCommands(CLI::App& device, const Report& report); // device choices, describe
void AddDriverReadCommand(CLI::App& device, const Report& report);       // device driver-read
void AddDeviceDiffCommand(CLI::App& device, const Report& report);       // device diff
void AddDeviceExportCommand(CLI::App& device);                           // device export
void AddDeviceImportCommand(CLI::App& device, const Report& report);     // device import

// TextCommands.cpp: the verb text of each of these nouns.
void AddDeviceTextCommand(CLI::App& device, const Report& report);
void AddNameTextCommand(CLI::App& name, const Report& report);
void AddBoardTextCommand(CLI::App& board, const Report& report);
void AddTemplateTextCommand(CLI::App& noun, const Report& report);

// XmlCommands.cpp: the verb xml of each of these nouns.
void AddDeviceXmlCommand(CLI::App& device, const Report& report);
void AddNameXmlCommand(CLI::App& name, const Report& report);
void AddBoardXmlCommand(CLI::App& board, const Report& report);
void AddProtocolXmlCommand(CLI::App& protocol, const Report& report);
void AddTemplateXmlCommand(CLI::App& noun, const Report& report);

} // namespace norvctl
