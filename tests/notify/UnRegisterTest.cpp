#include "NotifyScene.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

class UnRegister : public NotifyScene
{
};

TEST_F(UnRegister, RefusesAMissingFolderOrEvent)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(nullptr, L"Pumpe", L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(UnRegisterNotification(L"", L"Pumpe", L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Pumpe", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Pumpe", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_THAT(RegisteredEvents(), ElementsAre(L"event"));
}

TEST_F(UnRegister, FindsNothingAheadOfAnyRegistration)
{
    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_FALSE(HasList());
}

TEST_F(UnRegister, FindsNothingThatDiffersInOneOfTheThree)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"LogDevices", L"Pumpe", L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Presse", L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Pumpe", L"other"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(L"LogDevices", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"other"), PGSP_ERR_NOT_REGISTERED);

    EXPECT_THAT(RegisteredEvents(), ElementsAre(L"event"));
}

TEST_F(UnRegister, WithoutAFileFindsARegistrationForOne)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"first"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"second"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"first"), PGSP_OK);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"", L"second"), PGSP_OK);

    EXPECT_FALSE(HasList());
}

TEST_F(UnRegister, WithAFileDoesNotFindARegistrationForAll)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_ERR_NOT_REGISTERED);

    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);
}

TEST_F(UnRegister, ComparesWithoutRegardToCase)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"F\u00F6rderband", L"\u00C4nderung"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"lognames", L"F\u00D6RDERBAND", L"\u00E4NDERUNG"), PGSP_OK);
}

TEST_F(UnRegister, LeavesTheOthersInTheirOrder)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"first"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"second"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"third"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"second"), PGSP_OK);

    EXPECT_THAT(RegisteredEvents(), ElementsAre(L"first", L"third"));
}

TEST_F(UnRegister, TakesTheListAwayWithTheLast)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);

    EXPECT_FALSE(HasList());
    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);
}

TEST_F(UnRegister, MakesTheNameFreeAgain)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    EXPECT_EQ(RegisterNotification(L"LogDevices", nullptr, L"event"), PGSP_OK);
}

TEST_F(UnRegister, EndsTheNotification)
{
    const NamedEvent event;
    Register(L"LogNames", nullptr, event);
    ASSERT_EQ(UnRegisterNotification(L"LogNames", nullptr, event.c_str()), PGSP_OK);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_FALSE(event.IsSet());
}

} // namespace
} // namespace norvepa::test
