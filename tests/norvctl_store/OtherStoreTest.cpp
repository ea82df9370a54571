#include "StoreScene.h"
#include "norvctl/StoreRoots.h"
#include "norvepa.h"

#include <array>
#include <stdexcept>

namespace norvepa::test
{
namespace
{

using testing::Contains;
using testing::Not;

using Names = std::vector<std::wstring>;

Names LogDevices()
{
    Names names;
    std::array<wchar_t, MAX_PATH> name{};
    auto length = static_cast<std::uint32_t>(name.size());
    while (LogDeviceGetEnumBL(nullptr, static_cast<std::uint32_t>(names.size()), name.data(), &length) ==
           PGSP_OK)
    {
        names.emplace_back(name.data());
        length = static_cast<std::uint32_t>(name.size());
    }
    return names;
}

Names ByIdentity(const wchar_t* identity)
{
    Names names;
    for (;;)
    {
        std::array<wchar_t, MAX_PATH> name{};
        std::array<wchar_t, MAX_PATH> unit{};
        auto length = static_cast<std::uint32_t>(name.size());
        auto unitLength = static_cast<std::uint32_t>(unit.size());
        if (LogDeviceGetEnumByDeviceIdBL(identity, static_cast<std::uint32_t>(names.size()), name.data(),
                                         &length, unit.data(), &unitLength) != PGSP_OK)
        {
            return names;
        }
        names.emplace_back(name.data());
    }
}

std::wstring LinkOf(const wchar_t* logName)
{
    std::array<wchar_t, MAX_PATH> value{};
    auto length = static_cast<std::uint32_t>(value.size());
    LogNameGetValueBL(logName, L"LogDevice", value.data(), &length);
    return value.data();
}

constexpr wchar_t Identity[] = L"KQZA010";

// All that the library may keep of a store.
struct Answers
{
    Names devices = LogDevices();
    Names byIdentity = ByIdentity(Identity);
    std::wstring link = LinkOf(L"Kessel#1");

    bool operator==(const Answers&) const = default;
};

// A backup of the sample store, which is changed behind it.
class NorvctlOtherStore : public NorvctlStore
{
protected:
    NorvctlOtherStore()
    {
        MakeArchive();
        m_kept = Answers{};
        std::filesystem::remove(LogDevicePath(L"Abf\u00FCllung Linie 2"));
        LogNameSetLogDeviceBL(L"Kessel#1", L"Labor");
    }

    Answers m_kept;
};

TEST_F(NorvctlOtherStore, IsSeenForAsLongAsItLives)
{
    const Answers present;
    ASSERT_NE(present.devices, m_kept.devices);
    ASSERT_NE(present.byIdentity, m_kept.byIdentity);
    ASSERT_EQ(present.link, L"Labor");
    {
        const norvctl::BackupReader backup(Archive());
        const norvctl::OtherStore other(backup.DataFolder());

        EXPECT_EQ(Answers{}, m_kept);
        EXPECT_EQ(norvctl::PathOf(norvctl::DataRoot), backup.DataFolder());
        EXPECT_EQ(norvctl::PathOf(norvctl::ProgramRoot), folder / L"program-root");
    }

    EXPECT_EQ(Answers{}, present);
}

TEST_F(NorvctlOtherStore, IsLeftAlsoByAnException)
{
    const Answers present;

    EXPECT_THROW(
        {
            const norvctl::BackupReader backup(Archive());
            const norvctl::OtherStore other(backup.DataFolder());
            throw std::runtime_error("any");
        },
        std::runtime_error);

    EXPECT_EQ(Answers{}, present);
}

TEST_F(NorvctlOtherStore, HidesNoChangeThatIsMadeMeanwhile)
{
    const Answers present;
    {
        const norvctl::BackupReader backup(Archive());
        const norvctl::OtherStore other(backup.DataFolder());
        EXPECT_EQ(Answers{}, m_kept);
        std::filesystem::remove(LogDevicePath(L"Abf\u00FCllung Linie 1"));
    }

    const Answers after;
    EXPECT_THAT(after.devices, Not(Contains(L"Abf\u00FCllung Linie 1")));
    EXPECT_THAT(after.byIdentity, Not(Contains(L"Abf\u00FCllung Linie 1")));
}

TEST_F(NorvctlOtherStore, LeavesNothingInTheRegistryAndNoFolder)
{
    const std::wstring key = L"Software\\norvctl-" + std::to_wstring(GetCurrentProcessId());
    std::wstring backupFolder;
    {
        const norvctl::BackupReader backup(Archive());
        const norvctl::OtherStore other(backup.DataFolder());
        backupFolder = backup.DataFolder();
    }

    HKEY opened = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &opened), ERROR_FILE_NOT_FOUND);
    EXPECT_FALSE(Exists(backupFolder));
}

TEST_F(NorvctlOtherStore, WithAPathThatNoRootMayHaveIsRefusedAndLeavesTheStoreInSight)
{
    const Answers present;

    EXPECT_THROW(norvctl::OtherStore(L"C:\\" + std::wstring(124, L'a')), std::runtime_error);

    EXPECT_EQ(Answers{}, present);
}

} // namespace
} // namespace norvepa::test
