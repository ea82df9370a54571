#include "norvctl/BackupArchive.h"

#include "norvctl/BackupManifest.h"
#include "norvctl/Cabinet.h"
#include "norvctl/Sha256.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;
using testing::ThrowsMessage;

norvctl::StoreBackup SomeBackup()
{
    norvctl::StoreBackup backup{132'000'000'000'000'001, {}};
    backup.store.folders[L"data"] = 0;
    backup.store.folders[L"leer"] = 2;
    backup.store.files[L"data\\\u00DCber #3a.xml"] = {1, 131'000'000'012'345'678,
                                                      "<a>some text, some text</a>"};
    backup.store.files[L"data\\empty"] = {0, 131'000'000'000'000'000, ""};
    return backup;
}

std::string Packed(const norvctl::StoreBackup& backup)
{
    return norvctl::PackBackup(backup, [](std::size_t, const std::string&) {});
}

std::string PackedMembers(const std::vector<norvctl::MemberToPack>& members)
{
    return norvctl::PackCabinet(members, [](std::size_t) {});
}

std::string Sealed(std::string cabinet)
{
    const auto digest = norvctl::Sha256(cabinet);
    cabinet.append(digest.begin(), digest.end());
    return cabinet + "norvctl backup 1";
}

// What a stranger may have made: any list, with the files that he likes.
std::string Forged(const std::string& manifest, const std::string& name = "a", const std::string& bytes = "x")
{
    return Sealed(
        PackedMembers({{norvctl::ManifestName, 0, 0, manifest}, {name, 0, 131'000'000'000'000'000, bytes}}));
}

json ManifestOf(const std::string& name)
{
    return {{"format", "norvctl-backup"},
            {"version", 1},
            {"made", 1},
            {"folders", json::array()},
            {"files",
             {{{"name", name},
               {"size", 1},
               {"sha256", norvctl::Sha256Digits("x")},
               {"written", 1},
               {"attributes", 0}}}}};
}

auto Refused(const std::string& why)
{
    return ThrowsMessage<std::runtime_error>(HasSubstr(why));
}

auto Unpacking(const std::string& bytes)
{
    return [bytes] { static_cast<void>(norvctl::UnpackBackup(bytes)); };
}

TEST(NorvctlBackupArchive, HoldsAllThatWasPackedAndNothingElse)
{
    const norvctl::StoreBackup backup = SomeBackup();

    const norvctl::StoreBackup unpacked = norvctl::UnpackBackup(Packed(backup));

    EXPECT_EQ(unpacked.made, backup.made);
    EXPECT_EQ(unpacked.store.folders, backup.store.folders);
    EXPECT_EQ(unpacked.store.files, backup.store.files);
}

TEST(NorvctlBackupArchive, HoldsFiveThousandFilesAndNamesOfAnyLength)
{
    norvctl::StoreBackup backup = SomeBackup();
    for (int i = 0; i < 5000; ++i)
    {
        backup.store.files[L"data\\" + std::wstring(200, L'\u6F22') + std::to_wstring(i)] = {
            0, 131'000'000'000'000'000, "content " + std::to_string(i)};
    }

    EXPECT_EQ(norvctl::UnpackBackup(Packed(backup)).store.files, backup.store.files);
}

TEST(NorvctlBackupArchive, OfAnEmptyStoreIsWhole)
{
    EXPECT_TRUE(norvctl::UnpackBackup(Packed({1, {}})).store.files.empty());
}

TEST(NorvctlBackupArchive, CutAnywhereIsRefused)
{
    const std::string whole = Packed(SomeBackup());

    for (std::size_t length = 0; length < whole.size(); ++length)
    {
        EXPECT_THAT(Unpacking(whole.substr(0, length)), Refused("its end is missing")) << length;
    }
}

TEST(NorvctlBackupArchive, WithAnyByteFlippedIsRefused)
{
    const std::string whole = Packed(SomeBackup());

    for (std::size_t place = 0; place < whole.size(); ++place)
    {
        std::string flipped = whole;
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << place % 8));
        EXPECT_THAT(Unpacking(flipped), ThrowsMessage<std::runtime_error>(HasSubstr("it is "))) << place;
    }
}

// Damage that somebody has sealed.
TEST(NorvctlBackupArchive, CutOrFlippedBeforeItIsSealedIsRefusedOrHarmless)
{
    const norvctl::StoreBackup backup = SomeBackup();
    const std::string whole = Packed(backup);
    const std::string cabinet = whole.substr(0, whole.size() - 48);

    for (std::size_t place = 0; place < cabinet.size(); ++place)
    {
        std::string flipped = cabinet;
        flipped[place] = static_cast<char>(flipped[place] ^ (1 << place % 8));
        for (const std::string& damaged : {flipped, cabinet.substr(0, place)})
        {
            try
            {
                EXPECT_EQ(norvctl::UnpackBackup(Sealed(damaged)).store.files.size(), 2U);
            }
            catch (const std::runtime_error&)
            {
            }
        }
    }
}

class NorvctlHostileName : public testing::TestWithParam<const char*>
{
};

TEST_P(NorvctlHostileName, IsRefused)
{
    EXPECT_THAT(Unpacking(Forged(ManifestOf(GetParam()).dump(), GetParam())), Refused("its list is wrong"));
}

INSTANTIATE_TEST_SUITE_P(Any, NorvctlHostileName,
                         testing::Values("", ".", "..", "..\\a", "a\\..\\b", "a/../b", "/a", "\\a",
                                         "\\\\server\\share\\a", "C:", "C:a", "C:\\a", "\\\\?\\C:\\a",
                                         "\\\\.\\C:", "a:stream", "NUL", "nul.txt", "aux .xml", "COM1",
                                         "lpt\xC2\xB2.x", "CONOUT$", "con\\a", "a\\", "a\\\\b", "a.", "a ",
                                         "a\tb", "a\"b", "a*", "a?", "a<b", "a|b", "~a.new", "nowhere\\a"));

TEST(NorvctlHostileArchive, WithANameThatIsNotUtf8IsRefused)
{
    std::string manifest = ManifestOf("aXb").dump();
    manifest[manifest.find("aXb") + 1] = '\xFF';

    EXPECT_THAT(Unpacking(Forged(manifest)), Refused("its list is wrong"));
}

TEST(NorvctlHostileArchive, WithANameTwiceIsRefused)
{
    json manifest = ManifestOf("a");
    manifest["files"].push_back(manifest["files"][0]);
    manifest["files"][1]["name"] = "A";

    EXPECT_THAT(Unpacking(Forged(manifest.dump())), Refused("stands there twice"));
}

TEST(NorvctlHostileArchive, WithAFileInAFileIsRefused)
{
    json manifest = ManifestOf("a");
    manifest["files"].push_back(manifest["files"][0]);
    manifest["files"][1]["name"] = "a\\b";

    EXPECT_THAT(Unpacking(Forged(manifest.dump())), Refused("the folder of a\\b is missing"));
}

TEST(NorvctlHostileArchive, WithOtherBytesThanItsListSaysIsRefused)
{
    EXPECT_THAT(Unpacking(Forged(ManifestOf("a").dump(), "a", "y")), Refused("a is not as its list says"));
    EXPECT_THAT(Unpacking(Forged(ManifestOf("a").dump(), "a", "xx")), Refused("a is not as its list says"));
    EXPECT_THAT(Unpacking(Forged(ManifestOf("a").dump(), "b", "x")), Refused("a is not as its list says"));
}

TEST(NorvctlHostileArchive, WithFewerFilesThanItsListSaysIsRefused)
{
    EXPECT_THAT(Unpacking(Sealed(PackedMembers({{norvctl::ManifestName, 0, 0, ManifestOf("a").dump()}}))),
                Refused("it does not hold the files of its list"));
}

TEST(NorvctlHostileArchive, WithoutAListIsRefused)
{
    EXPECT_THAT(Unpacking(Sealed(PackedMembers({{"a", 0, 0, "x"}}))), Refused("it has no list"));
    EXPECT_THAT(Unpacking(Sealed("")), Refused("it cannot be unpacked"));
}

TEST(NorvctlHostileArchive, WithAListOfAnotherFormIsRefused)
{
    for (const char* const manifest :
         {"", "{", "[]", "null", "{}", "{\"format\":1}", "{\"format\":\"norvctl-backup\",\"version\":\"1\"}"})
    {
        EXPECT_THAT(Unpacking(Forged(manifest)), Refused("its list is wrong")) << manifest;
    }
}

TEST(NorvctlHostileArchive, OfALaterVersionIsRefused)
{
    json manifest = ManifestOf("a");
    manifest["version"] = 2;

    EXPECT_THAT(Unpacking(Forged(manifest.dump())), Refused("a later norvctl has made it"));
}

TEST(NorvctlHostileArchive, WithAttributesThatAreNotKeptIsRefused)
{
    json manifest = ManifestOf("a");
    manifest["files"][0]["attributes"] = 0x400; // a link

    EXPECT_THAT(Unpacking(Forged(manifest.dump())), Refused("attributes"));
}

} // namespace
} // namespace norvepa::test
