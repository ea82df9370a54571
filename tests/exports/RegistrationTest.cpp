#include "LogNameScene.h"

namespace norvepa::test
{
namespace
{

class Registration : public LogNameScene
{
protected:
    Registration() { Write(L"Pumpe", XmlContent().Text(L"Station", L"Halle 2")); }

    [[nodiscard]] std::int32_t Add(const wchar_t* folderWord, const wchar_t* file, const wchar_t* event) const
    {
        return library.RegisterNotification(folderWord, file, event);
    }

    [[nodiscard]] std::int32_t Remove(const wchar_t* folderWord, const wchar_t* file,
                                      const wchar_t* event) const
    {
        return library.UnRegisterNotification(folderWord, file, event);
    }

    void Change()
    {
        EXPECT_EQ(library.LogNameSetValueBL(L"Pumpe", L"Station", std::to_wstring(++m_changes).c_str()),
                  PGSP_OK);
    }

private:
    int m_changes = 0;
};

TEST_F(Registration, NeedsAFolderWordAndAnEvent)
{
    EXPECT_EQ(Add(nullptr, L"Pumpe", L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Add(L"", L"Pumpe", L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Add(L"LogNames", L"Pumpe", nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Add(L"LogNames", L"Pumpe", L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Add(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Remove(L"LogNames", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);
}

TEST_F(Registration, IsRemovedByAFolderWordAndAnEvent)
{
    ASSERT_EQ(Add(L"LogNames", nullptr, L"event"), PGSP_OK);

    EXPECT_EQ(Remove(nullptr, nullptr, L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Remove(L"", nullptr, L"event"), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Remove(L"LogNames", nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Remove(L"LogNames", nullptr, L""), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Remove(nullptr, nullptr, nullptr), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Remove(L"LogNames", nullptr, L"event"), PGSP_OK);
}

TEST_F(Registration, IsRefusedForAnEventThatIsKnownWhateverItIsFor)
{
    ASSERT_EQ(Add(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    EXPECT_EQ(Add(L"LogNames", L"Pumpe", L"event"), PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(Add(L"LogDevices", nullptr, L"EVENT"), PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(Add(nullptr, nullptr, L"event"), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(Add(L"LogNames", L"Pumpe", L"another event"), PGSP_OK);
}

TEST_F(Registration, IsNotFoundAheadOfAnyAndBehindTheLast)
{
    EXPECT_EQ(Remove(L"LogNames", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);
    ASSERT_EQ(Add(L"LogNames", nullptr, L"event"), PGSP_OK);
    EXPECT_EQ(Remove(L"LogNames", nullptr, L"event"), PGSP_OK);

    EXPECT_EQ(Remove(L"LogNames", nullptr, L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(Add(L"LogNames", nullptr, L"event"), PGSP_OK);
}

TEST_F(Registration, IsFoundByWhatItWasMadeWithInAnyCase)
{
    ASSERT_EQ(Add(L"LogNames", L"Pumpe", L"event"), PGSP_OK);

    EXPECT_EQ(Remove(L"LogDevices", L"Pumpe", L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(Remove(L"LogNames", L"Presse", L"event"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(Remove(L"LogNames", L"Pumpe", L"another event"), PGSP_ERR_NOT_REGISTERED);

    EXPECT_EQ(Remove(L"LOGNAMES", L"PUMPE", L"EVENT"), PGSP_OK);
}

TEST_F(Registration, ForOneFileIsFoundWithoutItAndForAllNotByOne)
{
    ASSERT_EQ(Add(L"LogNames", L"Pumpe", L"of one"), PGSP_OK);
    ASSERT_EQ(Add(L"LogNames", nullptr, L"of all"), PGSP_OK);
    ASSERT_EQ(Add(L"LogNames", L"", L"of all too"), PGSP_OK);

    EXPECT_EQ(Remove(L"LogNames", L"Pumpe", L"of all"), PGSP_ERR_NOT_REGISTERED);
    EXPECT_EQ(Remove(L"LogNames", L"Pumpe", L"of all too"), PGSP_ERR_NOT_REGISTERED);

    EXPECT_EQ(Remove(L"LogNames", nullptr, L"of one"), PGSP_OK);
    EXPECT_EQ(Remove(L"LogNames", L"", L"of all"), PGSP_OK);
    EXPECT_EQ(Remove(L"LogNames", nullptr, L"of all too"), PGSP_OK);
}

TEST_F(Registration, EndsWhenItIsRemoved)
{
    const NamedEvent event;
    const NamedEvent other;
    Register(event, L"Pumpe");
    Register(other, L"Pumpe");
    Change();
    EXPECT_TRUE(IsTold(event));
    EXPECT_TRUE(IsTold(other));

    EXPECT_EQ(Remove(L"LogNames", L"Pumpe", event.c_str()), PGSP_OK);
    Change();

    EXPECT_FALSE(IsTold(event));
    EXPECT_TRUE(IsTold(other));
}

TEST_F(Registration, IsForAFolderWordInAnyCase)
{
    const NamedEvent event;
    Register(event, nullptr, L"LOGnames");

    Change();

    EXPECT_TRUE(IsTold(event));
}

TEST_F(Registration, ComparesSixtyFourCharactersOfAnEvent)
{
    const std::wstring first64(64, L'e');

    EXPECT_EQ(Add(L"LogNames", nullptr, (first64 + L"1").c_str()), PGSP_OK);
    EXPECT_EQ(Add(L"LogNames", nullptr, (first64 + L"2").c_str()), PGSP_ERR_DUPLICATE_EVENT);
    EXPECT_EQ(Add(L"LogNames", nullptr, first64.substr(1).c_str()), PGSP_OK);

    EXPECT_EQ(Remove(L"LogNames", nullptr, first64.c_str()), PGSP_OK);
    EXPECT_EQ(Remove(L"LogNames", nullptr, first64.c_str()), PGSP_ERR_NOT_REGISTERED);
}

TEST_F(Registration, KeepsNothingOfTheCallers)
{
    const NamedEvent event;
    {
        std::wstring folderWord = L"LogNames";
        std::wstring file = L"Pumpe";
        std::wstring name = event.name();
        ASSERT_EQ(Add(folderWord.c_str(), file.c_str(), name.c_str()), PGSP_OK);
        folderWord.assign(folderWord.size(), L'x');
        file.assign(file.size(), L'x');
        name.assign(name.size(), L'x');
    }

    Change();

    EXPECT_TRUE(IsTold(event));
}

TEST_F(Registration, OutlivesDeinit)
{
    ASSERT_EQ(Add(L"LogNames", nullptr, L"event"), PGSP_OK);

    library.NorvepaBl64x_deinit();

    EXPECT_EQ(Remove(L"LogNames", nullptr, L"event"), PGSP_OK);
}

} // namespace
} // namespace norvepa::test
