#include "WrapperScene.h"
#include "support/OpenFile.h"

#include <algorithm>
#include <type_traits>

namespace norvepa::test
{
namespace
{

using testing::StartsWith;

static_assert(!std::is_copy_constructible_v<EditCopy>);
static_assert(std::is_nothrow_move_constructible_v<EditCopy>);

const std::wstring Speed = L"baudrate";
const Error NotOwned("LogDeviceUpdateWithTempBL", PGSP_ERR_INVALID_PARAMETERS);

class WrapperEditCopy : public WrapperScene
{
protected:
    [[nodiscard]] bool IsAnyTemporaryThere() const
    {
        const std::vector<std::wstring> files = FileNames(roots.data() + L"\\data\\LogDevices");
        return std::ranges::any_of(
            files, [](const std::wstring& file) { return file.starts_with(L"PGSP_TEMP_LOG_DEVICE"); });
    }
};

TEST_F(WrapperEditCopy, ChangesNothingUntilItIsApplied)
{
    EditCopy copy = EditCopy::Of(Boiler).value();

    copy.Set(Speed, L"187500").value();

    EXPECT_THAT(copy.device().name(), StartsWith(L"PGSP_TEMP_LOG_DEVICE"));
    EXPECT_EQ(copy.Get(Speed).value(), L"187500");
    EXPECT_EQ(Boiler.Get(Speed).value(), L"1500000");
    EXPECT_TRUE(copy.Apply().has_value());
    EXPECT_EQ(Boiler.Get(Speed).value(), L"187500");
    EXPECT_FALSE(IsAnyTemporaryThere());
}

TEST_F(WrapperEditCopy, ThatIsNotAppliedIsDiscarded)
{
    {
        const EditCopy copy = EditCopy::Of(Boiler).value();
        copy.Set(Speed, L"187500").value();
        EXPECT_TRUE(IsAnyTemporaryThere());
    }

    EXPECT_FALSE(IsAnyTemporaryThere());
    EXPECT_EQ(Boiler.Get(Speed).value(), L"1500000");
}

TEST_F(WrapperEditCopy, IsDiscardedWhenItIsAskedTo)
{
    EditCopy copy = EditCopy::Of(Boiler).value();

    EXPECT_TRUE(copy.Discard().has_value());

    EXPECT_FALSE(IsAnyTemporaryThere());
    EXPECT_TRUE(copy.Discard().has_value()) << "nothing to do";
    EXPECT_EQ(copy.Apply().error(), NotOwned);
    EXPECT_TRUE(Boiler.Exists().value());
}

TEST_F(WrapperEditCopy, TellsWhenItCannotBeDiscarded)
{
    EditCopy copy = EditCopy::Of(Boiler).value();
    ASSERT_TRUE(DeleteFileW(roots.logDevice(copy.device().name()).c_str()));

    EXPECT_EQ(copy.Discard().error(), Error("LogDeviceDelTempBL", PGSP_ERR_CANT_DELETE_FILE));
}

TEST_F(WrapperEditCopy, RefusesWhatTheLogDeviceWouldRefuse)
{
    const EditCopy copy = EditCopy::Of(Boiler).value();

    EXPECT_EQ(copy.Set(L"watchdog", L"15").error(), Error("LogDeviceSetValueBL", PGSP_NOT_IN_STEP));
}

TEST_F(WrapperEditCopy, OwnsNothingAfterItWasApplied)
{
    EditCopy copy = EditCopy::Of(Boiler).value();
    copy.Apply().value();
    const EditCopy next = EditCopy::Of(LogDevice(L"Labor")).value(); // has the number now

    EXPECT_EQ(copy.device().name(), L"");
    EXPECT_FALSE(copy.Set(L"watchdog", L"300").has_value());
    EXPECT_EQ(copy.Apply().error(), NotOwned);
    EXPECT_TRUE(copy.Discard().has_value());

    EXPECT_TRUE(next.device().Exists().value());
    EXPECT_TRUE(Boiler.Exists().value());
}

TEST_F(WrapperEditCopy, OwnsNothingAfterItWasMovedFrom)
{
    EditCopy copy = EditCopy::Of(Boiler).value();

    EditCopy moved = std::move(copy);

    EXPECT_EQ(copy.Apply().error(), NotOwned); // NOLINT(bugprone-use-after-move)
    EXPECT_FALSE(copy.Get(Speed).has_value());
    moved.Set(Speed, L"187500").value();
    EXPECT_TRUE(moved.Apply().has_value());
    EXPECT_EQ(Boiler.Get(Speed).value(), L"187500");
}

TEST_F(WrapperEditCopy, DiscardsWhatItHasWhenItIsAssignedTo)
{
    EditCopy copy = EditCopy::Of(Boiler).value();
    const LogDevice first = copy.device();

    copy = EditCopy::Of(LogDevice(L"Labor")).value();

    EXPECT_FALSE(first.Exists().value());
    EXPECT_EQ(copy.Get(L"DeviceID").value(), L"*ANK300");
    copy.Apply().value();
    EXPECT_FALSE(IsAnyTemporaryThere());
}

TEST_F(WrapperEditCopy, OfAMissingLogDeviceIsNotMade)
{
    EXPECT_EQ(EditCopy::Of(Missing).error(),
              Error("LogDeviceCreateTempBL", PGSP_CANT_CREATE_TEMP_LOG_DEVICE));
}

TEST_F(WrapperEditCopy, OfATemplateTakesALogDevicesPlace)
{
    EditCopy copy = EditCopy::Of(Template(L"MPI-AFK110"), Boiler).value();

    EXPECT_TRUE(copy.Apply().has_value());

    EXPECT_EQ(Boiler.Get(L"CP_TYPE").value(), L"MPI");
    EXPECT_EQ(CodeOf(EditCopy::Of(Template(L"gone"), Boiler)), PGSP_CANT_CREATE_TEMP_LOG_DEVICE);
}

TEST_F(WrapperEditCopy, OfATemplateBecomesANewLogDevice)
{
    const EditCopy copy = EditCopy::Of(Template(L"MPI-AFK110"), LogDevice(L"neu")).value();
    copy.Set(L"watchdog", L"400").value();

    const LogDevice made = copy.device().CopyTo(L"neu").value();

    EXPECT_EQ(made.Get(L"watchdog").value(), L"400");
}

TEST_F(WrapperEditCopy, MayBeAppliedAgainWhenNothingHasChanged)
{
    EditCopy copy = EditCopy::Of(Template(L"MPI-AFK110"), Missing).value();

    EXPECT_EQ(copy.Apply().error(), Error("LogDeviceUpdateWithTempBL", PGSP_ERR_FILE_NOT_FOUND));
    LogDevice::Create(Missing.name(), Template(L"L2-AFK110")).value();

    EXPECT_TRUE(copy.Apply().has_value());
    EXPECT_EQ(Missing.Get(L"CP_TYPE").value(), L"MPI");
}

// The log device is removed ahead of the copy, and there is no way back.
TEST_F(WrapperEditCopy, IsKeptWhenItIsAllThatIsLeft)
{
    LogDevice kept(L"");
    {
        EditCopy copy = EditCopy::Of(Boiler).value();
        kept = copy.device();
        const OpenFile heldAlone(roots.logDevice(kept.name()), 0);

        EXPECT_EQ(copy.Apply().error(), Error("LogDeviceUpdateWithTempBL", PGSP_ERR_CANT_COPY_FILE));

        EXPECT_EQ(copy.device(), kept);
        EXPECT_EQ(copy.Apply().error(), NotOwned);
    }

    EXPECT_FALSE(Boiler.Exists().value());
    EXPECT_EQ(kept.CopyTo(L"Kesselhaus").value().Get(Speed).value(), L"1500000");
}

TEST_F(WrapperEditCopy, IsAppliedAndGoesWithTheObjectWhenSomebodyHoldsIt)
{
    {
        EditCopy copy = EditCopy::Of(Boiler).value();
        copy.Set(Speed, L"187500").value();
        {
            const OpenFile heldByAReader(roots.logDevice(copy.device().name()));

            EXPECT_TRUE(copy.Apply().has_value());
        }
    }

    EXPECT_EQ(Boiler.Get(Speed).value(), L"187500");
    EXPECT_FALSE(IsAnyTemporaryThere());
}

} // namespace
} // namespace norvepa::test
