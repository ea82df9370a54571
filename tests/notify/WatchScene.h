#pragma once

// An empty store, no watch at first, and the listings asked for by path.

#include "WatchCalls.h"
#include "notify/directoryCache.h"
#include "support/Peer.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa::test
{

using Names = std::vector<std::wstring>;

class WatchScene : public testing::Test
{
protected:
    WatchScene();
    ~WatchScene() override;

    [[nodiscard]] std::wstring logDevices() const { return roots.data() + L"\\data\\LogDevices"; }
    [[nodiscard]] std::wstring logNames() const { return roots.data() + L"\\data\\LogNames"; }
    [[nodiscard]] std::wstring boards() const { return roots.program() + L"\\meta\\Boards"; }

    // What the cache answers, in its order; none where it answers a failure.
    [[nodiscard]] Names Listing(const std::wstring& folder) const;

    // One poll.
    [[nodiscard]] Result Poll() const;

    StoreRoots roots;
    WatchCalls calls;
};

// An empty file of the store, without a word to the watch.
void MakeFile(const std::wstring& folder, const std::wstring& name);

// The index of log devices, in the state that rebuilding it leaves: usable, with one entry.
void FillDeviceIdIndex();
[[nodiscard]] bool IsDeviceIdIndexValid();

// The same, with a second process to do the changes.
class WatchedPeer : public WatchScene
{
protected:
    // Paths of files in the log device and the log name folder, and the peer's answer.
    void PeerDoes(const std::string& command, const std::wstring& arguments);

    Peer peer{L"notify_peer.exe", roots.registry()};
};

} // namespace norvepa::test
