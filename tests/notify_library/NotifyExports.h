#pragma once

// The exports that change log names, and those that register for the changes.

#include "support/LoadedLibrary.h"

namespace norvepa::test
{

struct NotifyExports : LoadedLibrary
{
    decltype(&::LogNameCreateBL) LogNameCreateBL = Find("LogNameCreateBL");
    decltype(&::LogNameDeleteBL) LogNameDeleteBL = Find("LogNameDeleteBL");
    decltype(&::LogNameGetEnumBL) LogNameGetEnumBL = Find("LogNameGetEnumBL");
    decltype(&::LogNameSetValueBL) LogNameSetValueBL = Find("LogNameSetValueBL");
    decltype(&::NorvepaBl64x_deinit) NorvepaBl64x_deinit = Find("NorvepaBl64x_deinit");
    decltype(&::RegisterNotification) RegisterNotification = Find("RegisterNotification");
    decltype(&::UnRegisterNotification) UnRegisterNotification = Find("UnRegisterNotification");
};

} // namespace norvepa::test
