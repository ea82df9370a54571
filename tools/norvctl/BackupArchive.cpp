#include "BackupArchive.h"

#include "BackupManifest.h"
#include "Cabinet.h"
#include "Text.h"

#include <algorithm>
#include <fmt/format.h>
#include <stdexcept>
#include <utility>
#include <vector>

namespace norvctl
{

namespace
{

constexpr std::string_view SealWord = "norvctl backup 1";

std::string Seal(std::string_view cabinet)
{
    const Sha256Digest digest = Sha256(cabinet);
    std::string seal(digest.begin(), digest.end());
    return seal += SealWord;
}

// The cabinet ahead of the seal.
std::string_view Unsealed(std::string_view bytes)
{
    constexpr std::size_t sealSize = std::tuple_size_v<Sha256Digest> + SealWord.size();
    if (bytes.size() < sealSize || !bytes.ends_with(SealWord))
    {
        throw std::runtime_error("it is not a backup, or its end is missing");
    }
    const std::string_view cabinet = bytes.substr(0, bytes.size() - sealSize);
    if (Seal(cabinet) != bytes.substr(cabinet.size()))
    {
        throw std::runtime_error("it is damaged");
    }
    return cabinet;
}

// A name that is too long for a cabinet is told by the list alone.
std::string MemberName(const std::wstring& name, std::size_t index)
{
    std::string utf8 = ToUtf8(name);
    return utf8.size() <= LongestCabinetName ? utf8 : fmt::format("norvctl-backup.{}", index);
}

KeptFile TakeFile(const ListedFile& listed, std::size_t index, UnpackedMember& member)
{
    if (member.name != MemberName(listed.name, index) || member.bytes.size() != listed.size ||
        Sha256Digits(member.bytes) != listed.sha256)
    {
        throw std::runtime_error(fmt::format("{} is not as its list says", ToUtf8(listed.name)));
    }
    return {listed.attributes, listed.writeTime, std::move(member.bytes)};
}

} // namespace

std::string PackBackup(const StoreBackup& backup,
                       const std::function<void(std::size_t done, const std::string& name)>& tell)
{
    const std::string manifest = WriteManifest(backup);
    std::vector<MemberToPack> members{{ManifestName, 0, backup.made, manifest}};
    for (const auto& [name, file] : backup.store.files)
    {
        members.push_back({MemberName(name, members.size()), file.attributes, file.writeTime, file.bytes});
    }
    std::string bytes = PackCabinet(members, [&](std::size_t done) { tell(done, members[done].name); });
    const std::string seal = Seal(bytes);
    return bytes += seal;
}

StoreBackup UnpackBackup(std::string_view bytes)
{
    std::vector<UnpackedMember> members = UnpackCabinet(Unsealed(bytes));
    if (members.empty() || members.front().name != ManifestName)
    {
        throw std::runtime_error("it has no list of what it holds");
    }
    Manifest manifest = ReadManifest(members.front().bytes);
    if (members.size() != manifest.files.size() + 1)
    {
        throw std::runtime_error("it does not hold the files of its list");
    }
    StoreBackup backup{manifest.made, {std::move(manifest.folders), {}}};
    std::size_t index = 0;
    for (const ListedFile& listed : manifest.files)
    {
        ++index;
        backup.store.files.emplace(listed.name, TakeFile(listed, index, members[index]));
    }
    return backup;
}

} // namespace norvctl
