#pragma once

// A file and the place of its copy.

#include "support/StoppedClock.h"
#include "support/TemporaryFolder.h"
#include "win/Handle.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{

class CopyScene : public testing::Test
{
protected:
    CopyScene() { WriteBytes(source, "bytes"); }
    ~CopyScene() override
    {
        for (const std::wstring& file : {source, copy})
        {
            SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
        }
    }

    [[nodiscard]] static WIN32_FILE_ATTRIBUTE_DATA Data(const std::wstring& file)
    {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        EXPECT_TRUE(GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data));
        return data;
    }

    void SetWriteTime(const FILETIME& time) const
    {
        const win::Handle handle(CreateFileW(source.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
        EXPECT_TRUE(SetFileTime(handle.get(), nullptr, nullptr, &time));
    }

    StoppedClock clock;
    TemporaryFolder folder;
    const std::wstring source = folder / L"source.xml";
    const std::wstring copy = folder / L"copy.xml";
};

} // namespace norvepa::test
