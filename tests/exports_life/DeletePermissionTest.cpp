#include "DeleteScene.h"

#include <limits>

namespace norvepa::test
{
namespace
{

using testing::IsEmpty;

using DeletePermission = DeleteScene;

TEST_F(DeletePermission, IsAllowedByTrueInAnyCase)
{
    for (const wchar_t* const value : {L"true", L"TRUE", L"True", L"tRuE"})
    {
        WritePermission(value);

        EXPECT_EQ(Remove(L"Presse", Ask), PGSP_OK) << ToUtf8(value);

        EXPECT_THAT(Files(), IsEmpty()) << ToUtf8(value);
    }
}

TEST_F(DeletePermission, IsRefusedByAnythingElse)
{
    for (const wchar_t* const value : {L"false", L"", L"1", L"yes", L"true ", L" true", L"tru", L"truex"})
    {
        WritePermission(value);

        SCOPED_TRACE(ToUtf8(value));
        ExpectKept(Ask, PGSP_ERR_LOG_DEVICE_NOT_DELETABLE);
    }
}

TEST_F(DeletePermission, FindsThePermissionInAnyEntryOfAnyCase)
{
    Write(XmlContent().Element(L"ndi", XmlContent().Bool(L"ENABLE_DELETE", L"true")));

    EXPECT_EQ(Remove(L"Presse", Ask), PGSP_OK);
}

TEST_F(DeletePermission, NeedsThePermissionToBeThere)
{
    Write(XmlContent().Element(L"Ndi", XmlContent().Bool(L"hidden", L"false")));
    ExpectKept(Ask, PGSP_ERR_PARAM_NOT_FOUND);

    Write(XmlContent().Element(L"LocalSettings", XmlContent().Bool(L"enable_delete", L"true")));
    ExpectKept(Ask, PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DeletePermission, TakesNoPermissionFromTheCatalogue)
{
    store.WriteBoard(
        Catalogue().Parameter(L"enable_delete", {{L"default", L"true"}, {L"section", L"LocalSettings"}}));
    Write(XmlContent().Element(L"LocalSettings", XmlContent().Bool(L"enable_delete", L"true")));

    ExpectKept(Ask, PGSP_ERR_PARAM_NOT_FOUND);
}

// A reader stops where the file is malformed, and has found nothing up to there.
TEST_F(DeletePermission, FindsNoPermissionInAFileThatIsNoXml)
{
    WriteBytes(roots.logDevice(L"Presse"), "no XML");

    ExpectKept(Ask, PGSP_ERR_PARAM_NOT_FOUND);
}

TEST_F(DeletePermission, GoesOverThePermissionForAnyNumberThatIsNotZero)
{
    for (const std::int32_t allow :
         {1, 2, -1, 256, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()})
    {
        WritePermission(L"false");

        EXPECT_EQ(Remove(L"Presse", allow), PGSP_OK) << allow;

        EXPECT_THAT(Files(), IsEmpty()) << allow;
    }
}

TEST_F(DeletePermission, AsksNotWhatItGoesOver)
{
    Write({});
    WriteBytes(roots.logDevice(L"kein XML"), "no XML");

    EXPECT_EQ(Remove(L"Presse", Override), PGSP_OK);
    EXPECT_EQ(Remove(L"kein XML", Override), PGSP_OK);

    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(DeletePermission, TakesWhateverHoldsTheWordForTemporary)
{
    for (const wchar_t* const name : {L"PGSP_TEMP_LOG_DEVICE____000", L"PGSP_TEMP_LOG_DEVICE",
                                      L"PGSP_TEMP_LOG_DEVICE_1", L"Alte PGSP_TEMP_LOG_DEVICE Presse"})
    {
        WriteBytes(roots.logDevice(name), "no permission");

        EXPECT_EQ(Remove(name, Ask), PGSP_OK) << ToUtf8(name);

        EXPECT_THAT(Files(), IsEmpty()) << ToUtf8(name);
    }
}

TEST_F(DeletePermission, KnowsTheWordInItsOwnCaseOnly)
{
    for (const wchar_t* const name :
         {L"pgsp_temp_log_device____000", L"PGSP_TEMP_LOG_Device____000", L"PGSP_TEMP_LOG_DEVIC____000"})
    {
        store.WriteDevice(name, {});

        EXPECT_EQ(Remove(name, Ask), PGSP_ERR_PARAM_NOT_FOUND) << ToUtf8(name);

        EXPECT_TRUE(IsThere(name)) << ToUtf8(name);
    }
}

} // namespace
} // namespace norvepa::test
