#pragma once

// A store, the library loaded on it, and a second process that edits the same store. They are made once for a
// suite: its files have to grow old before anybody asks for them.
//
// A dozen hidden log devices and log names stand ahead of all others, so that each enumeration is one of many
// files: what is read of few may be read of many in another way.

#include "support/DeviceStore.h"
#include "support/LoadedLibrary.h"
#include "support/Peer.h"
#include "support/StoreRoots.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace norvepa::test
{

struct Place
{
    Place();
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    ~Place();

    // Done by the other process, as soon as no reader is in its way. Throws when it stays refused.
    void Elsewhere(const std::string& command, std::initializer_list<std::wstring> arguments = {});

    StoreRoots roots;
    const DeviceStore store{roots};
    const Exports library;
    Peer editor{L"store_editor.exe", roots.registry()};
};

// Those of the present suite that will run, by their own names.
[[nodiscard]] std::vector<std::string> TestsToRun();

// A name in a store that no other test of the program has: its own.
[[nodiscard]] std::wstring ObjectOf(const std::string& test);
[[nodiscard]] std::wstring ObjectOfThisTest();

} // namespace norvepa::test
