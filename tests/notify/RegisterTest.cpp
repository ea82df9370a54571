#include "NotifyScene.h"
#include "frame/Result.h"
#include "notify/NotifyRegistration.h"
#include "robustness/FailingNew.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class Register : public NotifyScene
{
};

class RegisterOutOfMemory : public NotifyScene, public testing::WithParamInterface<Shortage>
{
protected:
    // How the first registration ends when its nth allocation fails.
    [[nodiscard]] static std::int32_t RegisterFirst(std::size_t nth)
    {
        const FailingNew memory(nth, GetParam());
        return RegisterNotification(L"LogNames", nullptr, L"event");
    }
};

TEST_F(Register, RefusesAMissingFolderOrEvent)
{
    EXPECT_EQ(RegisterNotification(nullptr, L"Pumpe", L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(RegisterNotification(L"", L"Pumpe", L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(RegisterNotification(L"LogNames", L"Pumpe", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L""), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_FALSE(HasList());
}

TEST_F(Register, TakesABlankForAName)
{
    EXPECT_EQ(RegisterNotification(L" ", L" ", L" "), PGSP_OK);

    EXPECT_THAT(RegisteredEvents(), ElementsAre(L" "));
}

TEST_F(Register, KeepsEachTextInItsField)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    const std::lock_guard lock(notifyRegisterMutex);
    ASSERT_EQ(notifyRegisterList->size(), 1U);
    EXPECT_EQ(notifyRegisterList->front()->FolderName.view(), L"LogNames");
    EXPECT_EQ(notifyRegisterList->front()->FileName.view(), L"Pumpe");
    EXPECT_EQ(notifyRegisterList->front()->EventName.view(), L"event");
}

TEST_F(Register, MeansEveryFileWhereNoneIsNamed)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"first"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", L"", L"second"), PGSP_OK);

    const std::lock_guard lock(notifyRegisterMutex);
    EXPECT_TRUE(notifyRegisterList->front()->FileName.empty());
    EXPECT_TRUE(notifyRegisterList->back()->FileName.empty());
}

TEST_F(Register, KeepsTheOrder)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"second"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogDevices", nullptr, L"first"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"third"), PGSP_OK);

    EXPECT_THAT(RegisteredEvents(), ElementsAre(L"second", L"first", L"third"));
}

TEST_F(Register, RefusesAnEventThatIsKnown)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    EXPECT_EQ(RegisterNotification(L"LogNames", L"Pumpe", L"event"), PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(RegisterNotification(L"LogNames", L"Presse", L"event"), PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(RegisterNotification(L"LogDevices", nullptr, L"event"), PGSP_ERR_DUPLICATE_EVENT);

    EXPECT_THAT(RegisteredEvents(), ElementsAre(L"event"));
}

TEST_F(Register, KnowsAnEventInAnyCase)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"M\u00FCller.Event"), PGSP_OK);

    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"m\u00DCLLER.eVENT"), PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"Muller.Event"), PGSP_OK);
}

TEST_F(Register, TellsANameFromItsBeginning)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"event"), PGSP_OK);

    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"even"), PGSP_OK);
    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"events"), PGSP_OK);
}

TEST_F(Register, AsksForAnEventOnlyWhenSomethingChanges)
{
    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, L"not there"), PGSP_OK);

    EXPECT_THAT(RegisteredEvents(), ElementsAre(L"not there"));
}

TEST_F(Register, AndUnloadingFreesThemAll)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"first"), PGSP_OK);
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, L"second"), PGSP_OK);

    FreeNotifyRegistrations();
    FreeNotifyRegistrations();

    EXPECT_FALSE(HasList());
    EXPECT_THAT(RegisteredEvents(), IsEmpty());
}

TEST_P(RegisterOutOfMemory, LeavesNoListBehindTheFirst)
{
    std::size_t nth = 1;
    for (; RegisterFirst(nth) == OutOfMemory; ++nth)
    {
        EXPECT_FALSE(HasList()) << nth;
    }

    EXPECT_GT(nth, 1U);
    EXPECT_THAT(RegisteredEvents(), ElementsAre(L"event"));
}

INSTANTIATE_TEST_SUITE_P(EachShortage, RegisterOutOfMemory,
                         testing::Values(Shortage::Passing, Shortage::Lasting));

} // namespace
} // namespace norvepa::test
