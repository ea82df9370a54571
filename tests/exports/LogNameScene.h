#pragma once

// Log names changed through the library: what their files say afterwards, and who is told.

#include "support/LogNameCalls.h"
#include "support/NamedEvent.h"
#include "support/Workers.h"

#include <string>
#include <vector>

namespace norvepa::test
{

class LogNameScene : public LogNames
{
protected:
    ~LogNameScene() override;

    // What a value is removed under.
    void UseOurSchemas() const;

    void TakeDataFolderAway() const;

    [[nodiscard]] std::wstring folder() const { return roots.data() + L"\\data\\LogNames"; }

    // A name with which the path of its file, escaped and without extension, has this many characters.
    [[nodiscard]] std::wstring NameForPathOf(std::size_t length) const;

    // The names of all files in the folder of the log names, with their extensions, sorted.
    [[nodiscard]] std::vector<std::wstring> Files() const;

    // What the file of a log name says now, to be compared with MeaningOf(); and its bytes, for what must
    // not be touched.
    [[nodiscard]] std::string Saved(const std::wstring& fileName = L"Pumpe") const;
    [[nodiscard]] std::string Bytes(const std::wstring& fileName = L"Pumpe") const;

    // Registers an event of this test; for all log names unless one is named. Throws when it is refused.
    void Register(const NamedEvent& event, const wchar_t* logName = nullptr,
                  const wchar_t* folderWord = L"LogNames") const;

    // Whether a change has been told since this was asked last, once all that is being told has been.
    [[nodiscard]] bool IsTold(const NamedEvent& event) const;

    Workers workers{library.module()};
};

} // namespace norvepa::test
