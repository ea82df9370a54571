#pragma once

// Opening a file that others of us may have open for a moment.

#include "win/Handle.h"
#include "win/Patience.h"

#include <windows.h>

#include <algorithm>
#include <initializer_list>

namespace norvepa::win
{

// Runs `step`, which answers something false when the system refused, again for as long as the file is in
// use, by the codes given, and it is worth it. The reason of the last refusal stays in the system's last
// error.
template <typename Patient, typename Step>
[[nodiscard]] auto WhenFree(FileNumber file, std::initializer_list<DWORD> inUse, const Step& step)
{
    Patient patience(file);
    for (;;)
    {
        auto done = step();
        if (done)
        {
            patience.Opened();
            return done;
        }
        const DWORD error = GetLastError();
        const bool isInUse = std::find(inUse.begin(), inUse.end(), error) != inUse.end();
        if (!isInUse || !patience.IsWorthAnotherTry())
        {
            SetLastError(error);
            return done;
        }
    }
}

// How a file is opened, by the system's words.
struct FileUse
{
    DWORD access;
    DWORD sharing;
    DWORD disposition;
};

// Empty, with the reason in the system's last error, when it can't be opened.
[[nodiscard]] inline Handle Open(const wchar_t* file, const FileUse& use) noexcept
{
    return Handle(
        CreateFileW(file, use.access, use.sharing, nullptr, use.disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// The same once it is free.
[[nodiscard]] inline Handle OpenWhenFree(const wchar_t* file, const FileUse& use)
{
    return WhenFree<Patience>(NumberOfFile(file), {ERROR_SHARING_VIOLATION}, [&] { return Open(file, use); });
}

} // namespace norvepa::win
