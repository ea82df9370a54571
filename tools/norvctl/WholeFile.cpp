#include "WholeFile.h"

#include "FileFailure.h"
#include "OwnedFile.h"
#include "StoreFiles.h"

#include <windows.h>

#include <filesystem>

namespace norvctl
{

void SaveWholeFile(const std::wstring& path, std::string_view bytes)
{
    const std::wstring file = AnyLengthPath(path);
    if (!std::filesystem::is_directory(std::filesystem::path(file).parent_path()))
    {
        throw FileFailure(path, ERROR_PATH_NOT_FOUND);
    }
    FileInTheMaking made(PlaceBeside(file));
    made.Write(bytes);
    if (!made.TryToBecome(file, Existing::IsReplaced))
    {
        throw FileFailure(path);
    }
}

} // namespace norvctl
