#pragma once

// Log devices changed through the library: what their files say afterwards, and who is told.

#include "support/DeviceStore.h"
#include "support/LoadedLibrary.h"
#include "support/NamedEvent.h"
#include "support/Workers.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{

class SetScene : public testing::Test
{
protected:
    ~SetScene() override;

    // On the log device "Presse".
    [[nodiscard]] std::int32_t Set(const wchar_t* parameter, const wchar_t* value) const;
    [[nodiscard]] std::int32_t Delete(const wchar_t* parameter) const;

    // Writes that device, and compares what its file says now.
    void Write(const XmlContent& content) const;
    void ExpectSaved(const XmlContent& content) const;

    // What a set or a deletion of that device answers, and that its file stays byte for byte as it was and
    // nothing stands beside it.
    void ExpectSetChangesNothing(const wchar_t* parameter, const wchar_t* value, std::int32_t result) const;
    void ExpectDeletionChangesNothing(const wchar_t* parameter, std::int32_t result) const;

    // The names of all files in the folder of the log devices, with their extensions, sorted.
    [[nodiscard]] std::vector<std::wstring> Files() const;

    // Registers an event of this test; for all log devices unless one is named. Throws when it is refused.
    void Register(const NamedEvent& event, const wchar_t* logDevice = nullptr,
                  const wchar_t* folderWord = L"LogDevices") const;

    // Whether a change has been told since this was asked last, once all that is being told has been.
    [[nodiscard]] bool IsTold(const NamedEvent& event) const;

    StoreRoots roots;
    const DeviceStore store{roots};
    Exports library;
    Workers workers{library.module()};
};

// A device's name with each of the characters that a file name can't hold or that its codes are made of, and
// with letters outside ASCII; and how its file is called.
struct CodedName
{
    const wchar_t* name;
    const wchar_t* fileName;
};

inline constexpr CodedName CodedNames[] = {
    {L"Presse #3", L"Presse (nmbr)3"},
    {L"50% Dosierer", L"50#25 Dosierer"},
    {L"Halle 2: Pumpe", L"Halle 2#3a Pumpe"},
    {L"R\u00FChrwerk *Nord*", L"R\u00FChrwerk #2aNord#2a"},
    {L"St\u00F6rung?", L"St\u00F6rung#3f"},
    {L"F\u00FCllstand < 10", L"F\u00FCllstand #3c 10"},
    {L"Druck > 6 bar", L"Druck #3e 6 bar"},
    {L"Links|Rechts", L"Links#7cRechts"},
    {L"Silo 1/2", L"Silo 1#2f2"},
    {L"Gr\u00F6\u00DFe \u00B5\u03A9", L"Gr\u00F6\u00DFe \u00B5\u03A9"},
};

} // namespace norvepa::test
