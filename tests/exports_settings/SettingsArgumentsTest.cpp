#include "SettingsScene.h"
#include "exports_device/Registrants.h"
#include "support/OutputBuffer.h"

namespace norvepa::test
{
namespace
{

class SettingsArguments : public SettingsScene
{
protected:
    SettingsArguments() { WriteSettings({.common = XmlContent().Text(L"Language", L"Deutsch")}); }

    // With each of them missing in turn, and with all.
    void ExpectGetIsRefused() const
    {
        OutputBuffer value(20);

        EXPECT_EQ(library.GetValueInPGSP_BL(nullptr, value.data(), &value.length),
                  PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(library.GetValueInPGSP_BL(L"", value.data(), &value.length), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(library.GetValueInPGSP_BL(L"Language", nullptr, &value.length),
                  PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(library.GetValueInPGSP_BL(L"Language", value.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(library.GetValueInPGSP_BL(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 20U);
    }

    void ExpectSetIsRefused() const
    {
        ExpectSettingsKept(nullptr, L"English", PGSP_ERR_INVALID_PARAMETERS);
        ExpectSettingsKept(L"", L"English", PGSP_ERR_INVALID_PARAMETERS);
        ExpectSettingsKept(L"Language", nullptr, PGSP_ERR_INVALID_PARAMETERS);
        ExpectSettingsKept(nullptr, nullptr, PGSP_ERR_INVALID_PARAMETERS);
    }
};

TEST_F(SettingsArguments, AreAllNeeded)
{
    ExpectGetIsRefused();
    ExpectSetIsRefused();
}

TEST_F(SettingsArguments, AreTestedAheadOfTheDataFolder)
{
    store.TakeDataFolderAway();

    ExpectGetIsRefused();
    ExpectSetIsRefused();
}

TEST_F(SettingsArguments, AreTestedAheadOfTheFileThatIsMade)
{
    DeleteFileW(settingsFile().c_str());

    EXPECT_EQ(SetSetting(L"", L"English"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(SetSetting(L"Language", nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_FALSE(Exists(settingsFile()));
}

using SettingsNotification = WithRegistrants<SettingsScene>;

TEST_F(SettingsNotification, IsGivenToNobody)
{
    EXPECT_EQ(SetSetting(L"Language", L"Deutsch"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"Language", L"English"), PGSP_OK);
    EXPECT_EQ(SetSetting(L"LastChangeDate", L"1"), PGSP_OK);

    ExpectNobodyTold();
}

} // namespace
} // namespace norvepa::test
