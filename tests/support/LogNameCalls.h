#pragma once

// A store with log names, the library loaded on it, and LogNameGetValueBL called in one word.

#include "support/LoadedLibrary.h"
#include "support/OutputBuffer.h"
#include "support/StoreRoots.h"
#include "support/XmlFiles.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{

class LogNames : public testing::Test
{
protected:
    // The file of a log name; `fileName` is the name as the file has it, without extension.
    void Write(const std::wstring& fileName, const XmlContent& parameters) const
    {
        WriteBytes(roots.logName(fileName), LogNameFile(parameters));
    }

    // What the library answers, in a buffer of this test's own.
    [[nodiscard]] std::int32_t Read(const wchar_t* logName, const wchar_t* parameter,
                                    OutputBuffer& value) const
    {
        return library.LogNameGetValueBL(logName, parameter, value.data(), &value.length);
    }

    [[nodiscard]] std::int32_t Read(const std::wstring& logName, const std::wstring& parameter) const
    {
        OutputBuffer value(300);
        return Read(logName.c_str(), parameter.c_str(), value);
    }

    // The value, for reads that succeed; "(result N)" for those that don't.
    [[nodiscard]] std::wstring Value(const std::wstring& logName, const std::wstring& parameter) const
    {
        OutputBuffer value(300);
        const std::int32_t result = Read(logName.c_str(), parameter.c_str(), value);
        return result == PGSP_OK ? value.text() : L"(result " + std::to_wstring(result) + L")";
    }

    StoreRoots roots;
    Exports library;
};

} // namespace norvepa::test
