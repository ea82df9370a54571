#include "FileTimes.h"
#include "Place.h"
#include "Questions.h"
#include "support/Answers.h"

#include <gmock/gmock.h>
#include <memory>

namespace norvepa::test
{
namespace
{

// Of the same length, of another, and one that was there before.
constexpr const wchar_t* Changes[] = {L"2", L"3", L"zwei", L"2"};

// What one call has done to a file the next one sees, whichever process made it. Each test has a log device
// and a log name of its own that hold 1, old and asked about, and a log device "NAME 2" that holds 2.
class CallSequence : public testing::Test
{
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite() { place.reset(); }

    void SetUp() override
    {
        for (int question = 0; question < 2; ++question)
        {
            ASSERT_EQ(Value(), L"1");
            ASSERT_EQ(NameValue(), L"1");
        }
    }

    [[nodiscard]] std::wstring ValueOf(const std::wstring& logDevice) const
    {
        return TextOf([&](wchar_t* value, std::uint32_t* length) {
            return library.LogDeviceGetValueBL(logDevice.c_str(), L"Ort", value, length);
        });
    }
    [[nodiscard]] std::wstring Value() const { return ValueOf(object); }

    [[nodiscard]] std::wstring NameValue() const
    {
        return TextOf([&](wchar_t* value, std::uint32_t* length) {
            return library.LogNameGetValueBL(object.c_str(), L"Ort", value, length);
        });
    }

    [[nodiscard]] std::int32_t Set(const std::wstring& logDevice, const wchar_t* value) const
    {
        return library.LogDeviceSetValueBL(logDevice.c_str(), L"Ort", value);
    }

    // A copy aside that holds another value.
    [[nodiscard]] std::wstring MakeTemporary(const wchar_t* value) const
    {
        const std::wstring temporary = TextOf([&](wchar_t* name, std::uint32_t* length) {
            return library.LogDeviceCreateTempBL(object.c_str(), name, length);
        });
        EXPECT_EQ(ValueOf(temporary), L"1");
        EXPECT_EQ(Set(temporary, value), PGSP_OK);
        EXPECT_EQ(ValueOf(temporary), value);
        return temporary;
    }

    static std::unique_ptr<Place> place;

    const Exports& library = place->library;
    const std::wstring object = ObjectOfThisTest();
    const std::wstring noDevice = Failed(PGSP_ERR_LOG_DEVICE_NOT_EXISTS);
};

std::unique_ptr<Place> CallSequence::place;

void CallSequence::SetUpTestSuite()
{
    place = std::make_unique<Place>();
    place->store.UseOurSchemas();
    std::vector<std::wstring> paths;
    for (const std::string& test : TestsToRun())
    {
        const std::wstring object = ObjectOf(test);
        const auto device = [](const wchar_t* value) {
            return XmlContent()
                .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1"))
                .Element(L"LocalSettings", XmlContent())
                .Element(L"Ndi", XmlContent().Bool(L"enable_delete", L"true").Bool(L"hidden", L"false"))
                .Element(L"SpareSection", XmlContent().Text(L"Ort", value));
        };
        place->store.WriteDevice(object, device(L"1"));
        place->store.WriteDevice(object + L" 2", device(L"2"));
        WriteBytes(place->roots.logName(object), LogNameFile(XmlContent().Text(L"Ort", L"1")));
        paths.insert(paths.end(), {place->roots.logDevice(object), place->roots.logDevice(object + L" 2"),
                                   place->roots.logName(object)});
    }
    AwaitSettled(paths);
}

TEST_F(CallSequence, ReadsWhatWasSetRightBefore)
{
    for (const wchar_t* const value : Changes)
    {
        EXPECT_EQ(Set(object, value), PGSP_OK);
        EXPECT_EQ(Value(), value);
    }
}

TEST_F(CallSequence, ReadsOfALogNameWhatWasSetRightBefore)
{
    for (const wchar_t* const value : Changes)
    {
        EXPECT_EQ(library.LogNameSetValueBL(object.c_str(), L"Ort", value), PGSP_OK);
        EXPECT_EQ(NameValue(), value);
    }
}

TEST_F(CallSequence, ReadsWhatAnotherProcessHasSet)
{
    for (const wchar_t* const value : Changes)
    {
        place->Elsewhere("set-device", {object, L"Ort", value});
        EXPECT_EQ(Value(), value);

        place->Elsewhere("set-name", {object, L"Ort", value});
        EXPECT_EQ(NameValue(), value);
    }
}

// A set that finds the value there already changes nothing: it has to find what is there now.
TEST_F(CallSequence, SetsAgainWhatAnotherProcessHasChanged)
{
    place->Elsewhere("set-device", {object, L"Ort", L"2"});

    EXPECT_EQ(Set(object, L"1"), PGSP_OK);

    EXPECT_EQ(Value(), L"1");
}

TEST_F(CallSequence, MissesAValueThatWasRemoved)
{
    EXPECT_EQ(library.LogDeviceDelValueBL(object.c_str(), L"Ort"), PGSP_OK);
    EXPECT_EQ(Value(), Failed(PGSP_ERR_PARAM_NOT_FOUND));

    EXPECT_EQ(Set(object, L"2"), PGSP_OK);
    EXPECT_EQ(Value(), L"2");
}

TEST_F(CallSequence, ReadsWhatATemporaryCopyHasBrought)
{
    const std::wstring temporary = MakeTemporary(L"2");
    EXPECT_EQ(Value(), L"1");

    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(temporary.c_str(), object.c_str()), PGSP_OK);

    EXPECT_EQ(Value(), L"2");
    EXPECT_EQ(ValueOf(temporary), noDevice);
}

TEST_F(CallSequence, ReadsWhatATemporaryCopyHasBroughtInAnotherProcess)
{
    const std::wstring temporary = MakeTemporary(L"2");

    place->Elsewhere("swap", {temporary, object});

    EXPECT_EQ(Value(), L"2");
    EXPECT_EQ(ValueOf(temporary), noDevice);
}

// The swap is of any two: both files are old.
TEST_F(CallSequence, ReadsWhatAnOldDeviceHasBrought)
{
    const std::wstring other = object + L" 2";
    ASSERT_EQ(ValueOf(other), L"2");
    ASSERT_EQ(ValueOf(other), L"2");

    EXPECT_EQ(library.LogDeviceUpdateWithTempBL(other.c_str(), object.c_str()), PGSP_OK);

    EXPECT_EQ(Value(), L"2");
    EXPECT_EQ(ValueOf(other), noDevice);
}

TEST_F(CallSequence, ReadsACopyInThePlaceOfADeviceThatWasRemoved)
{
    EXPECT_EQ(library.LogDeviceDelBL(object.c_str(), 0), PGSP_OK);
    EXPECT_EQ(Value(), noDevice);

    EXPECT_EQ(library.LogDeviceCopyBL((object + L" 2").c_str(), object.c_str()), PGSP_OK);
    EXPECT_EQ(Value(), L"2");
}

TEST_F(CallSequence, ReadsAcrossDeinit)
{
    EXPECT_EQ(Set(object, L"2"), PGSP_OK);
    library.NorvepaBl64x_deinit();
    EXPECT_EQ(Value(), L"2");

    library.NorvepaBl64x_deinit();
    place->Elsewhere("set-device", {object, L"Ort", L"3"});
    EXPECT_EQ(Value(), L"3");

    place->Elsewhere("set-device", {object, L"Ort", L"4"});
    library.NorvepaBl64x_deinit();
    EXPECT_EQ(Value(), L"4");
}

TEST_F(CallSequence, EnumeratesByWhatWasSetRightBefore)
{
    const auto setHidden = [&](const wchar_t* value) {
        return library.PGSP_LogDeviceSetNdiBL(object.c_str(), L"hidden", value, 0);
    };
    for (int round = 0; round < 2; ++round)
    {
        EXPECT_EQ(AskDeviceShown(*place, object), Listed);

        EXPECT_EQ(setHidden(L"true"), PGSP_OK);
        EXPECT_EQ(AskDeviceShown(*place, object), NotListed);

        EXPECT_EQ(setHidden(L"false"), PGSP_OK);
    }
}

TEST_F(CallSequence, FollowsALink)
{
    const auto link = [&] {
        return TextOf([&](wchar_t* logDevice, std::uint32_t* length) {
            return library.LogNameGetLogDeviceBL(object.c_str(), logDevice, length);
        });
    };
    ASSERT_EQ(link(), Failed(PGSP_ERR_PARAM_NOT_FOUND));

    for (const std::wstring& linked : {object, object + L" 2", object})
    {
        EXPECT_EQ(library.LogNameSetLogDeviceBL(object.c_str(), linked.c_str()), PGSP_OK);
        EXPECT_EQ(link(), linked);
    }
}

} // namespace
} // namespace norvepa::test
