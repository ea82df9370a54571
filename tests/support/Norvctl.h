#pragma once

// norvctl.exe on a copy of the sample store, which the machine's registry names for as long as the test runs.

#include "support/AnswerSchema.h"
#include "support/ChildProgram.h"
#include "support/MachineKey.h"
#include "support/StoreRoots.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{

using Words = std::vector<std::wstring>;

// Starts norvctl and leaves it running.
class RunningNorvctl : public ChildProgram
{
public:
    explicit RunningNorvctl(const Words& arguments) : ChildProgram(L"norvctl.exe", arguments) {}
};

// Runs norvctl to its end. The test fails when it answers with JSON that isn't as it is documented.
[[nodiscard]] inline ProgramEnd RunNorvctl(const Words& arguments)
{
    ProgramEnd end = RunningNorvctl(arguments).Finish();
    ExpectDocumentedAnswer(arguments, end.output);
    return end;
}

// For programs of which only the output counts: throws unless it has ended with 0.
inline std::string OutputOfNorvctl(const Words& arguments)
{
    const ProgramEnd end = RunNorvctl(arguments);
    if (end.exitCode != 0)
    {
        throw std::runtime_error("norvctl has failed: " + end.error);
    }
    return end.output;
}

// norvctl watch, from the moment at which it hears every change.
class Watch : public RunningNorvctl
{
public:
    explicit Watch(const Words& arguments) : RunningNorvctl(arguments), firstLine(ReadLine()) {}

    const std::string firstLine;
};

class Norvctl : public testing::Test
{
protected:
    Norvctl()
    {
        CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\data-root", folder / L"data-root");
        CopyTree(FromUtf8(NORV_SAMPLE_STORE) + L"\\program-root", folder / L"program-root");
        locations.Set(L"Corvane_Oam_Data", folder / L"data-root");
        locations.Set(L"Corvane_Oam", folder / L"program-root");
    }

    // The file of a log name; `fileName` is the name as the file has it, without extension.
    [[nodiscard]] std::wstring LogNamePath(const std::wstring& fileName) const
    {
        return folder / (L"data-root\\data\\LogNames\\" + fileName + L".xml");
    }

    // The same of a log device.
    [[nodiscard]] std::wstring LogDevicePath(const std::wstring& fileName) const
    {
        return folder / (L"data-root\\data\\LogDevices\\" + fileName + L".xml");
    }

    // A file of the catalogue, by its folder and its own name, without extension.
    [[nodiscard]] std::wstring CataloguePath(const std::wstring& fileName) const
    {
        return folder / (L"program-root\\meta\\" + fileName + L".xml");
    }

    // The libraries that the links to texts name, German and English.
    void LayOutTexts() const { CopyTree(FromUtf8(NORV_SAMPLE_RESOURCES), folder / L"program-root\\bin"); }

    TemporaryFolder folder;
    MachineKey locations{LocationsKey};
};

} // namespace norvepa::test
