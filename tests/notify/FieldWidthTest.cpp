#include "NotifyScene.h"

namespace norvepa::test
{
namespace
{

// Names of an exact length: they are equal but for their end.
std::wstring Name(std::size_t length, wchar_t last)
{
    std::wstring name(length, L'n');
    name.back() = last;
    return name;
}

// An event's name of an exact length that no other run uses.
std::wstring EventName(std::size_t length, wchar_t last = L'x')
{
    std::wstring name = FreshEventName();
    name.resize(length, L'n');
    name.back() = last;
    return name;
}

class FieldWidth : public NotifyScene
{
};

TEST_F(FieldWidth, OfAnEventIsSixtyFourInARegistration)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, Name(64, L'a').c_str()), PGSP_OK);

    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, Name(64, L'b').c_str()), PGSP_OK);
    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, Name(63, L'n').c_str()), PGSP_OK);
    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, (Name(64, L'a') + L"tail").c_str()),
              PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(RegisterNotification(L"LogNames", nullptr, (Name(64, L'b') + L"t").c_str()),
              PGSP_ERR_DUPLICATE_EVENT);
}

TEST_F(FieldWidth, OfAnEventIsSixtyFourWhenTakenBack)
{
    ASSERT_EQ(RegisterNotification(L"LogNames", nullptr, Name(64, L'a').c_str()), PGSP_OK);

    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, Name(64, L'b').c_str()), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, Name(63, L'n').c_str()), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", nullptr, (Name(64, L'a') + L"tail").c_str()), PGSP_OK);
}

TEST_F(FieldWidth, LetsAnEventOfSixtyThreeAndOfSixtyFourBeOpened)
{
    const NamedEvent shorter(EventName(63));
    const NamedEvent whole(EventName(64));
    Register(L"LogNames", nullptr, shorter);
    Register(L"LogNames", nullptr, whole);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(shorter.IsSet());
    EXPECT_TRUE(whole.IsSet());
}

TEST_F(FieldWidth, OpensALongerEventByItsFirstSixtyFour)
{
    const NamedEvent cut(EventName(64));
    const NamedEvent asGiven(cut.name() + L"tail");
    Register(L"LogNames", nullptr, asGiven);

    Announce(L"LogNames", L"Pumpe");

    EXPECT_TRUE(cut.IsSet());
    EXPECT_FALSE(asGiven.IsSet());
}

TEST_F(FieldWidth, OfAFolderIs128)
{
    const std::wstring folder = Name(128, L'a');
    const NamedEvent event;
    Register(folder.c_str(), nullptr, event);

    Announce(Name(128, L'b').c_str(), L"Pumpe");
    Announce(Name(127, L'n').c_str(), L"Pumpe");
    EXPECT_FALSE(event.IsSet());

    Announce(folder.c_str(), L"Pumpe");
    EXPECT_TRUE(event.IsSet());

    Announce((folder + L"tail").c_str(), L"Pumpe");
    EXPECT_TRUE(event.IsSet());
}

TEST_F(FieldWidth, OfALongerFolderIs128AsWell)
{
    const std::wstring folder = Name(128, L'a');
    const NamedEvent event;
    Register((folder + L"tail").c_str(), nullptr, event);

    Announce((folder + L"other").c_str(), L"Pumpe");
    EXPECT_TRUE(event.IsSet());

    EXPECT_EQ(UnRegisterNotification(Name(128, L'b').c_str(), nullptr, event.c_str()),
              PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(folder.c_str(), nullptr, event.c_str()), PGSP_OK);
}

TEST_F(FieldWidth, IsFullyComparedOneShortOfTheFolder)
{
    const std::wstring folder = Name(127, L'a');
    const NamedEvent event;
    Register(folder.c_str(), nullptr, event);

    Announce((folder + L"b").c_str(), L"Pumpe");
    EXPECT_FALSE(event.IsSet());

    Announce(folder.c_str(), L"Pumpe");
    EXPECT_TRUE(event.IsSet());
}

TEST_F(FieldWidth, OfAFileIs256)
{
    const std::wstring file = Name(256, L'a');
    const NamedEvent event;
    Register(L"LogNames", file.c_str(), event);

    Announce(L"LogNames", Name(256, L'b').c_str());
    Announce(L"LogNames", Name(255, L'n').c_str());
    EXPECT_FALSE(event.IsSet());

    Announce(L"LogNames", file.c_str());
    EXPECT_TRUE(event.IsSet());

    Announce(L"LogNames", (file + L"tail").c_str());
    EXPECT_TRUE(event.IsSet());
}

TEST_F(FieldWidth, OfALongerFileIs256AsWell)
{
    const std::wstring file = Name(256, L'a');
    const NamedEvent event;
    Register(L"LogNames", (file + L"tail").c_str(), event);

    Announce(L"LogNames", (file + L"other").c_str());
    EXPECT_TRUE(event.IsSet());

    EXPECT_EQ(UnRegisterNotification(L"LogNames", Name(256, L'b').c_str(), event.c_str()),
              PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(UnRegisterNotification(L"LogNames", file.c_str(), event.c_str()), PGSP_OK);
}

TEST_F(FieldWidth, IsFullyComparedOneShortOfTheFile)
{
    const std::wstring file = Name(255, L'a');
    const NamedEvent event;
    Register(L"LogNames", file.c_str(), event);

    Announce(L"LogNames", (file + L"b").c_str());
    EXPECT_FALSE(event.IsSet());

    Announce(L"LogNames", file.c_str());
    EXPECT_TRUE(event.IsSet());
}

TEST_F(FieldWidth, IsNoLimitToWhatACallerMayGive)
{
    const std::wstring huge(100'000, L'n');

    EXPECT_EQ(RegisterNotification(huge.c_str(), huge.c_str(), huge.c_str()), PGSP_OK);
    EXPECT_EQ(RegisterNotification(huge.c_str(), nullptr, huge.c_str()), PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(UnRegisterNotification(huge.c_str(), huge.c_str(), huge.c_str()), PGSP_OK);
    Announce(huge.c_str(), huge.c_str());
    EXPECT_FALSE(HasList());
}

} // namespace
} // namespace norvepa::test
