#pragma once

// How often this program looks at files for as long as the object lives: the files and folders that it opens,
// and the pull engines that it makes to read them. One object at a time.

#include "support/ImportHook.h"

#include <windows.h>

#include <cstddef>
#include <string>

namespace norvepa::test
{

class FileLooks
{
public:
    FileLooks();
    FileLooks(const FileLooks&) = delete;
    FileLooks& operator=(const FileLooks&) = delete;
    ~FileLooks() = default;

    [[nodiscard]] static std::size_t engines();
    [[nodiscard]] static std::size_t openings(); // of whatever
    [[nodiscard]] static std::size_t openingsOf(const std::wstring& path);

private:
    ImportHook m_engine;
    ImportHook m_file;
};

} // namespace norvepa::test
