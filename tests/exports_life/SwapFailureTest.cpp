#include "LifeScene.h"

#include <windows.h>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;

// What is on disk when a swap stops half-way.
class SwapFailure : public LifeScene
{
protected:
    SwapFailure()
    {
        WriteBytes(roots.logDevice(L"Presse"), "the device");
        WriteBytes(roots.logDevice(temporary), "the temporary one");
        Register(all);
    }

    ~SwapFailure() override
    {
        EXPECT_EQ(workers.count(), 0U);
        EXPECT_FALSE(IsTold(all));
    }

    [[nodiscard]] std::int32_t Run() const
    {
        return library.LogDeviceUpdateWithTempBL(temporary.c_str(), L"Presse");
    }

    void ExpectBothAsTheyWere() const
    {
        EXPECT_EQ(store.Bytes(L"Presse"), "the device");
        ExpectTemporaryAsItWas();
        EXPECT_THAT(Files(), ElementsAre(temporary + L".xml", L"Presse.xml"));
    }

    void ExpectDeviceGone() const
    {
        ExpectTemporaryAsItWas();
        EXPECT_THAT(Files(), ElementsAre(temporary + L".xml"));
    }

    void ExpectDeviceUpdatedAndTemporaryLeft() const
    {
        EXPECT_EQ(store.Bytes(L"Presse"), "the temporary one");
        ExpectTemporaryAsItWas();
        EXPECT_THAT(Files(), ElementsAre(temporary + L".xml", L"Presse.xml"));
    }

    void SetAttributes(const std::wstring& fileName, DWORD attributes) const
    {
        SetFileAttributesW(roots.logDevice(fileName).c_str(), attributes);
    }

    const std::wstring temporary = TemporaryName(0);
    const NamedEvent all;

private:
    void ExpectTemporaryAsItWas() const { EXPECT_EQ(store.Bytes(temporary), "the temporary one"); }
};

TEST_F(SwapFailure, AtADeviceThatAnotherProcessReadsChangesNothing)
{
    const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Reading);

    EXPECT_EQ(Run(), PGSP_ERR_FILE_NOT_FOUND);

    ExpectBothAsTheyWere();
}

TEST_F(SwapFailure, AtADeviceThatAnotherProcessKeepsToItselfChangesNothing)
{
    {
        const HeldElsewhere held(roots, roots.logDevice(L"Presse"), Sharing::Nothing);

        EXPECT_EQ(Run(), PGSP_ERR_FILE_NOT_FOUND);
    }

    ExpectBothAsTheyWere();
}

TEST_F(SwapFailure, AtAReadOnlyDeviceChangesNothing)
{
    SetAttributes(L"Presse", FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Run(), PGSP_ERR_FILE_NOT_FOUND);

    ExpectBothAsTheyWere();
    SetAttributes(L"Presse", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SwapFailure, AtADeviceThatIsMissingLeavesTheTemporaryOne)
{
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(temporary.c_str(), L"gone"), PGSP_ERR_FILE_NOT_FOUND);

    ExpectBothAsTheyWere();
}

TEST_F(SwapFailure, AtADeviceThatIsMissingIsToldAheadOfATemporaryOneThatIs)
{
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(L"gone", L"gone too"), PGSP_ERR_FILE_NOT_FOUND);

    ExpectBothAsTheyWere();
}

TEST_F(SwapFailure, AtADeviceOfTooLongAPathChangesNothing)
{
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(temporary.c_str(), store.DeviceForPathOf(260).c_str()),
              PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(
        library.LogDeviceUpdateWithTempBL(temporary.c_str(), (store.DeviceForPathOf(254) + L"#").c_str()),
        PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(temporary.c_str(), store.DeviceForPathOf(259).c_str()),
              PGSP_ERR_FILE_NOT_FOUND);

    ExpectBothAsTheyWere();
}

TEST_F(SwapFailure, AtTwoPathsThatAreTooLongChangesNothing)
{
    const std::wstring tooLong = store.DeviceForPathOf(260);

    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(tooLong.c_str(), tooLong.c_str()), PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectBothAsTheyWere();
}

// There is no way back: the temporary device's name is looked at when the device has gone.
TEST_F(SwapFailure, AtATemporaryOneOfTooLongAPathLosesTheDevice)
{
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(store.DeviceForPathOf(260).c_str(), L"Presse"),
              PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectDeviceGone();
}

TEST_F(SwapFailure, AtATemporaryOneWhoseEscapedPathIsTooLongLosesTheDevice)
{
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL((store.DeviceForPathOf(254) + L"#").c_str(), L"Presse"),
              PGSP_ERR_BUFFER_TOO_SHORT);

    ExpectDeviceGone();
}

TEST_F(SwapFailure, AtATemporaryOneThatIsMissingLosesTheDevice)
{
    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(TemporaryName(1).c_str(), L"Presse"),
              PGSP_ERR_CANT_COPY_FILE);

    ExpectDeviceGone();
}

TEST_F(SwapFailure, AtATemporaryOneThatAnotherProcessKeepsToItselfLosesTheDevice)
{
    {
        const HeldElsewhere held(roots, roots.logDevice(temporary), Sharing::Nothing);

        EXPECT_EQ(Run(), PGSP_ERR_CANT_COPY_FILE);
    }

    ExpectDeviceGone();
}

TEST_F(SwapFailure, ThatLostTheDeviceIsNotMendedByAnother)
{
    {
        const HeldElsewhere held(roots, roots.logDevice(temporary), Sharing::Nothing);
        ASSERT_EQ(Run(), PGSP_ERR_CANT_COPY_FILE);
    }

    EXPECT_EQ(Run(), PGSP_ERR_FILE_NOT_FOUND);

    ExpectDeviceGone();
}

TEST_F(SwapFailure, AtATemporaryOneThatAnotherProcessReadsLeavesItBesideTheUpdatedDevice)
{
    const HeldElsewhere held(roots, roots.logDevice(temporary), Sharing::Reading);

    EXPECT_EQ(Run(), PGSP_ERR_CANT_DELETE_FILE);

    ExpectDeviceUpdatedAndTemporaryLeft();
}

TEST_F(SwapFailure, AtAReadOnlyTemporaryOneLeavesItBesideTheUpdatedDevice)
{
    SetAttributes(temporary, FILE_ATTRIBUTE_READONLY);

    EXPECT_EQ(Run(), PGSP_ERR_CANT_DELETE_FILE);

    ExpectDeviceUpdatedAndTemporaryLeft();
    SetAttributes(temporary, FILE_ATTRIBUTE_NORMAL);
    SetAttributes(L"Presse", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SwapFailure, ThatLeftTheTemporaryDeviceCanBeRunAgain)
{
    {
        const HeldElsewhere held(roots, roots.logDevice(temporary), Sharing::Reading);
        ASSERT_EQ(Run(), PGSP_ERR_CANT_DELETE_FILE);
    }

    EXPECT_EQ(Run(), PGSP_OK);

    EXPECT_EQ(store.Bytes(L"Presse"), "the temporary one");
    EXPECT_THAT(Files(), ElementsAre(L"Presse.xml"));
}

} // namespace
} // namespace norvepa::test
