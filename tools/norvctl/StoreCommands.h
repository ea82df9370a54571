#pragma once

// What the verbs of the store do.

#include "Report.h"

#include <string>

namespace norvctl
{

struct BackupArguments
{
    std::string file;
    bool force = false;
};
void BackUpStore(const Report& report, const BackupArguments& arguments);

struct RestoreArguments
{
    std::string file;
    bool isDryRun = false;
    bool keepsOthers = false;
    bool yes = false;
};
void RestoreStore(const Report& report, const RestoreArguments& arguments);

// The data root that the machine names; throws when there is none, or when the archive lies below it: it
// would be a part of the store.
[[nodiscard]] std::wstring DataFolderFor(const std::wstring& archive);

} // namespace norvctl
