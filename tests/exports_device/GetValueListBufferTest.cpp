#include "GetLists.h"
#include "GetScene.h"

#include <algorithm>

namespace norvepa::test
{
namespace
{

constexpr std::uint32_t Kept = 260; // characters that come back when not every value fits

class GetValueListBuffer : public GetScene
{
protected:
    GetValueListBuffer()
    {
        store.WriteDevice(
            L"Presse",
            XmlContent().Element(
                L"LocalSettings",
                XmlContent().Text(L"a", L"eins").Text(L"b", L"").Text(L"c", L"drei").Text(L"d", longText)));
    }

    [[nodiscard]] std::int32_t GetList(const Names& parameters, OutputBuffer& values) const
    {
        const std::wstring list = Packed(parameters);
        return library.LogDeviceGetValueListBL(L"Presse", nullptr, list.c_str(), CountOf(list), values.data(),
                                               &values.length);
    }

    const std::wstring longText = std::wstring(300, L'v');
    const Names three{L"a", L"b",
                      L"c"}; // "eins", "", "drei": 5 + 1 + 5 characters, and the terminator behind
};

TEST_F(GetValueListBuffer, HoldsTheListExactly)
{
    OutputBuffer values(12);

    EXPECT_EQ(GetList(three, values), PGSP_OK);

    EXPECT_EQ(values.length, 12U);
    EXPECT_EQ(Written(values), Packed({L"eins", L"", L"drei"}));
    EXPECT_EQ(values.text(), L"eins");
}

TEST_F(GetValueListBuffer, WithoutRoomForTheLastTerminatorKeepsTheValuesAndTellsWhatIsWritten)
{
    OutputBuffer values(11);

    EXPECT_EQ(GetList(three, values), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(values.length, 11U);
    EXPECT_EQ(Written(values), std::wstring(L"eins\0\0drei\0", 11));
}

TEST_F(GetValueListBuffer, WithoutRoomForAValueComesBackAndTellsWhatIsNeeded)
{
    for (const std::uint32_t capacity : {10U, 6U, 5U, 4U, 1U, 0U})
    {
        OutputBuffer values(capacity);

        EXPECT_EQ(GetList(three, values), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;

        EXPECT_EQ(values.length, 12U) << capacity;
        EXPECT_TRUE(values.isUntouched()) << capacity;
    }
}

TEST_F(GetValueListBuffer, ComesBackForTheFirst260CharactersAlone)
{
    OutputBuffer values(400);
    const std::wstring before(values.data(), 400);

    EXPECT_EQ(GetList({L"d", L"d"}, values), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(values.length, 603U);
    EXPECT_EQ(std::wstring(values.data(), Kept), before.substr(0, Kept));
    EXPECT_EQ(std::wstring(values.data() + Kept, 41), std::wstring(40, L'v') + L'\0');
}

TEST_F(GetValueListBuffer, NeedsOneCharacterForAListWithoutValues)
{
    OutputBuffer values(1);
    OutputBuffer nothing(0);

    EXPECT_EQ(library.LogDeviceGetValueListBL(L"gone", nullptr, nullptr, 0, values.data(), &values.length),
              PGSP_OK);
    EXPECT_EQ(library.LogDeviceGetValueListBL(L"gone", nullptr, nullptr, 0, nothing.data(), &nothing.length),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(values.text(), L"");
    EXPECT_EQ(values.length, 1U);
    EXPECT_TRUE(nothing.isUntouched());
    EXPECT_EQ(nothing.length, 0U);
}

TEST_F(GetValueListBuffer, NeedsTwoCharactersForAnEmptyValue)
{
    OutputBuffer enough(2);
    EXPECT_EQ(GetList({L"b"}, enough), PGSP_OK);
    EXPECT_EQ(Written(enough), Packed({L""}));

    OutputBuffer noEnd(1);
    EXPECT_EQ(GetList({L"b"}, noEnd), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(noEnd.length, 1U);
    EXPECT_EQ(noEnd.text(), L"");

    OutputBuffer nothing(0);
    EXPECT_EQ(GetList({L"b"}, nothing), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(nothing.length, 2U);
    EXPECT_TRUE(nothing.isUntouched());
}

// Names and values of the enumeration are packed by the same rule.
TEST_F(GetValueListBuffer, HasTheSameTwoEdgesWhenAllIsEnumerated)
{
    store.WriteDevice(L"Band", {}, L"A", L"B");
    const auto getAll = [&](OutputBuffer& values) {
        return library.LogDeviceGetValueListBL(L"Band", nullptr, nullptr, 0, values.data(), &values.length);
    };
    const std::wstring all = Packed({L"CP_TYPE", L"B", L"DeviceId", L"A"}); // 22 characters

    OutputBuffer enough(22);
    EXPECT_EQ(getAll(enough), PGSP_OK);
    EXPECT_EQ(Written(enough), all);

    OutputBuffer noEnd(21);
    EXPECT_EQ(getAll(noEnd), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(Written(noEnd), all.substr(0, 21));

    OutputBuffer tooShort(20);
    EXPECT_EQ(getAll(tooShort), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(tooShort.length, 22U);
    EXPECT_TRUE(tooShort.isUntouched());
}

} // namespace
} // namespace norvepa::test
