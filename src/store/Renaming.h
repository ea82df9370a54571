#pragma once

// The renaming of a file in two steps: what can run out of memory first, the renaming itself later. In
// between a caller may take the old file away.

#include "frame/Result.h"

#include <string>

namespace norvepa
{

class Renaming
{
public:
    // Paths as the store takes them; they must outlive the object.
    Renaming(const wchar_t* sourcePath, const wchar_t* destinationPath);

    // PGSP_ERR_INVALID_PARAMETERS or PGSP_ERR_BUFFER_TOO_SHORT for paths that can't be escaped,
    // PGSP_ERR_CANT_COPY_FILE; a destination that is there is not replaced.
    [[nodiscard]] Result Run() const noexcept;

private:
    const wchar_t* m_destinationPath;
    std::wstring m_oldFile;
    std::wstring m_newFile;
    Result m_escaping; // fills the two above
};

} // namespace norvepa
