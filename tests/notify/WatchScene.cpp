#include "WatchScene.h"

#include "notify/DeviceIdIndex.h"

#include <stdexcept>

namespace norvepa::test
{

WatchScene::WatchScene()
{
    deinitWatchDirectories();
}

WatchScene::~WatchScene()
{
    deinitWatchDirectories(); // which would keep the folders from being removed
}

Names WatchScene::Listing(const std::wstring& folder) const
{
    std::shared_ptr<const DirectoryListing> listing;
    const Result result = getDirectoryContent(folder, roots.data(), listing);
    return result == PGSP_OK ? *listing : Names{};
}

Result WatchScene::Poll() const
{
    return getDirectoryChange(roots.data());
}

void MakeFile(const std::wstring& folder, const std::wstring& name)
{
    WriteBytes(folder + L"\\" + name, "");
}

void FillDeviceIdIndex()
{
    const std::lock_guard lock(deviceIdMutex);
    static_cast<void>(deviceIdIndex.IsValid()); // empties what is stale
    deviceIdIndex.Add(L"*A7C0100000500", L"Pumpe", L"1");
}

bool IsDeviceIdIndexValid()
{
    const std::lock_guard lock(deviceIdMutex);
    return deviceIdIndex.IsValid();
}

void WatchedPeer::PeerDoes(const std::string& command, const std::wstring& arguments)
{
    const std::string answer = peer.Ask(command + " " + ToUtf8(arguments));
    if (answer != "done")
    {
        throw std::runtime_error("the peer answers " + answer);
    }
}

} // namespace norvepa::test
