#include "EnumByDeviceIdScene.h"

namespace norvepa::test
{
namespace
{

class EnumByDeviceIdBuffer : public EnumByDeviceIdScene
{
protected:
    void ExpectUntouched(const OutputBuffer& buffer, std::uint32_t capacity) const
    {
        EXPECT_TRUE(buffer.isUntouched());
        EXPECT_EQ(buffer.length, capacity);
    }
};

TEST_F(EnumByDeviceIdBuffer, LeavesEverythingAsItWasPastTheEnd)
{
    WriteUnit(L"a", L"1");
    OutputBuffer name(260);
    OutputBuffer unit(260);

    EXPECT_EQ(Enum(L"AFK110", 1, name, unit), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Enum(L"AFK110", UINT32_MAX, name, unit), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Enum(L"AFK220", 0, name, unit), PGSP_ERR_NO_MORE_ITEMS);

    ExpectUntouched(name, 260);
    ExpectUntouched(unit, 260);
}

TEST_F(EnumByDeviceIdBuffer, LeavesTheUnitAsItWasWhenTheNameDoesNotFit)
{
    WriteUnit(L"Presse", L"12");

    for (const std::uint32_t capacity : {6U, 1U, 0U})
    {
        OutputBuffer name(capacity);
        OutputBuffer unit(1);
        EXPECT_EQ(Enum(L"AFK110", 0, name, unit), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;
        ExpectUntouched(name, 6);
        ExpectUntouched(unit, 1);
    }
}

TEST_F(EnumByDeviceIdBuffer, HasCopiedTheNameWhenTheUnitDoesNotFit)
{
    WriteUnit(L"Presse", L"12");

    for (const std::uint32_t capacity : {2U, 1U, 0U})
    {
        OutputBuffer name(7);
        OutputBuffer unit(capacity);
        EXPECT_EQ(Enum(L"AFK110", 0, name, unit), PGSP_ERR_BUFFER_TOO_SHORT) << capacity;
        EXPECT_EQ(name.text(), L"Presse");
        EXPECT_EQ(name.length, 6U);
        ExpectUntouched(unit, 2);
    }
}

TEST_F(EnumByDeviceIdBuffer, NeedsOneCharacterMoreThanNameAndUnit)
{
    WriteUnit(L"Presse", L"12");
    OutputBuffer name(7);
    OutputBuffer unit(3);

    EXPECT_EQ(Enum(L"AFK110", 0, name, unit), PGSP_OK);

    EXPECT_EQ(name.text(), L"Presse");
    EXPECT_EQ(name.length, 6U);
    EXPECT_EQ(unit.text(), L"12");
    EXPECT_EQ(unit.length, 2U);
}

TEST_F(EnumByDeviceIdBuffer, RefusesEveryPointerThatIsNull)
{
    WriteUnit(L"Presse", L"12");
    OutputBuffer name(20);
    OutputBuffer unit(20);
    const auto call = [&](const wchar_t* id, wchar_t* device, std::uint32_t* deviceLength, wchar_t* text,
                          std::uint32_t* length) {
        return library.LogDeviceGetEnumByDeviceIdBL(id, 0, device, deviceLength, text, length);
    };

    EXPECT_EQ(call(nullptr, name.data(), &name.length, unit.data(), &unit.length),
              PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(L"AFK110", nullptr, &name.length, unit.data(), &unit.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(L"AFK110", name.data(), nullptr, unit.data(), &unit.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(L"AFK110", name.data(), &name.length, nullptr, &unit.length), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(call(L"AFK110", name.data(), &name.length, unit.data(), nullptr), PGSP_ERR_INVALID_PARAMETERS);

    ExpectUntouched(name, 20);
    ExpectUntouched(unit, 20);
}

} // namespace
} // namespace norvepa::test
