#include "BackupManifest.h"

#include "HexDump.h"
#include "Report.h"
#include "Text.h"

#include <fmt/format.h>
#include <set>
#include <stdexcept>

namespace norvctl
{

namespace
{

constexpr char Format[] = "norvctl-backup";
constexpr int Version = 1;

[[noreturn]] void Refuse(const std::string& why)
{
    throw std::runtime_error("its list is wrong: " + why);
}

std::uint32_t ReadAttributes(const Json& entry)
{
    const auto attributes = entry.at("attributes").get<std::uint32_t>();
    return (attributes & ~KeptAttributes) == 0 ? attributes : throw std::runtime_error("unknown attributes");
}

// Names that have been met, and those of folders.
class Names
{
public:
    std::wstring Take(const Json& entry)
    {
        const auto& utf8 = entry.at("name").get_ref<const std::string&>();
        if (!IsUtf8(utf8))
        {
            Refuse("a name is not Unicode");
        }
        std::wstring name = ToWide(utf8);
        if (const std::string why = WhyRefused(name); !why.empty())
        {
            Refuse(fmt::format("the name {}: {}", utf8, why));
        }
        if (!m_all.insert(name).second)
        {
            Refuse(fmt::format("the name {} stands there twice", utf8));
        }
        const std::wstring_view parent = ParentOf(name);
        if (!parent.empty() && !m_folders.contains(parent))
        {
            Refuse(fmt::format("the folder of {} is missing", utf8));
        }
        return name;
    }

    std::wstring TakeFolder(const Json& entry) { return *m_folders.insert(Take(entry)).first; }

private:
    std::set<std::wstring, NameOrder> m_all;
    std::set<std::wstring, NameOrder> m_folders;
};

Manifest ReadContent(const Json& document)
{
    if (document.at("format") != Format)
    {
        Refuse("it is not that of a backup");
    }
    if (document.at("version") != Version)
    {
        Refuse("a later norvctl has made it");
    }
    Manifest manifest{document.at("made").get<std::uint64_t>(), {}, {}};
    Names names;
    for (const Json& folder : document.at("folders"))
    {
        manifest.folders.emplace(names.TakeFolder(folder), ReadAttributes(folder));
    }
    for (const Json& file : document.at("files"))
    {
        manifest.files.push_back({names.Take(file), ReadAttributes(file),
                                  file.at("written").get<std::uint64_t>(), file.at("size").get<std::size_t>(),
                                  file.at("sha256").get<std::string>()});
    }
    return manifest;
}

} // namespace

std::string Sha256Digits(std::string_view bytes)
{
    return HexDigits(Sha256(bytes));
}

std::string WriteManifest(const StoreBackup& backup)
{
    Json document = {{"format", Format},
                     {"version", Version},
                     {"made", backup.made},
                     {"folders", Json::array()},
                     {"files", Json::array()}};
    for (const auto& [name, attributes] : backup.store.folders)
    {
        document["folders"].push_back({{"name", ToUtf8(name)}, {"attributes", attributes}});
    }
    for (const auto& [name, file] : backup.store.files)
    {
        document["files"].push_back({{"name", ToUtf8(name)},
                                     {"size", file.bytes.size()},
                                     {"sha256", Sha256Digits(file.bytes)},
                                     {"written", file.writeTime},
                                     {"attributes", file.attributes}});
    }
    return document.dump(1);
}

Manifest ReadManifest(std::string_view text)
try
{
    return ReadContent(Json::parse(text));
}
catch (const Json::exception&)
{
    Refuse("it is not one of a backup's form");
}

} // namespace norvctl
