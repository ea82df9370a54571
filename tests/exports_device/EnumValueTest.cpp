#include "GetScene.h"

#include <filesystem>
#include <utility>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class EnumValue : public GetScene
{
protected:
    [[nodiscard]] std::int32_t Enum(const wchar_t* device, std::uint32_t index, OutputBuffer& name,
                                    OutputBuffer& value) const
    {
        return library.LogDeviceGetEnumValueBL(device, index, name.data(), &name.length, value.data(),
                                               &value.length);
    }

    // What index after index gives, up to the end.
    [[nodiscard]] Pairs All(const wchar_t* device = L"Presse") const
    {
        return AllPairs([&](std::uint32_t index, OutputBuffer& name, OutputBuffer& value) {
            return Enum(device, index, name, value);
        });
    }
};

TEST_F(EnumValue, GivesTheSectionsInTheStoresOrderAndTheAttributesLast)
{
    store.WriteDevice(
        L"Presse",
        Section(L"SpareSection", L"e", L"5")
            .Raw(Section(L"Ndi", L"hidden", L"true").utf8())
            .Raw(Section(L"Bindings", L"d", L"4").utf8())
            .Raw(Section(L"NetworkSettings", L"c", L"3;33;333").utf8())
            .Raw(
                XmlContent()
                    .Element(
                        L"DeviceHeader",
                        XmlContent().Bool(L"a3", L"true").Int(L"a2", L"2").Text(L"a1", L"1").Text(L"a1", L""))
                    .utf8()));

    EXPECT_THAT(All(), ElementsAre(std::pair(L"a1", L"1"), std::pair(L"a1", L""), std::pair(L"a3", L"true"),
                                   std::pair(L"a2", L"2"), std::pair(L"c", L"3;33;333"),
                                   std::pair(L"d", L"4"), std::pair(L"e", L"5"),
                                   std::pair(L"CP_TYPE", L"MPI"), std::pair(L"DeviceId", L"AFK110")));
}

TEST_F(EnumValue, LeavesNothingOutOfAHiddenDevice)
{
    store.WriteDevice(
        L"Presse",
        Section(L"LocalSettings", L"hidden", L"true").Raw(Section(L"Ndi", L"hidden", L"true").utf8()));

    EXPECT_THAT(All(), testing::Contains(std::pair(L"hidden", L"true")));
}

TEST_F(EnumValue, EndsAtOnceInADeviceWithoutParametersAndAttributes)
{
    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {}, {}));

    EXPECT_THAT(All(), IsEmpty());
}

TEST_F(EnumValue, SeesAChangedFileOnceItHasBeenWalkedToTheEnd)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle 2"));
    EXPECT_EQ(All().size(), 3U);

    WriteBytes(roots.logDevice(L"Presse"), XmlFile(L"LogDevice", {}, Section(L"Bindings", L"Stufe", L"3")));

    EXPECT_THAT(All(), ElementsAre(std::pair(L"Stufe", L"3")));
}

TEST_F(EnumValue, LeavesEverythingAsItWasPastTheEnd)
{
    store.WriteDevice(L"Presse", {});
    OutputBuffer name(20);
    OutputBuffer value(20);

    EXPECT_EQ(Enum(L"Presse", 2, name, value), PGSP_ERR_NO_MORE_ITEMS);
    EXPECT_EQ(Enum(L"Presse", UINT32_MAX, name, value), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(name.length, 20U);
    EXPECT_EQ(value.length, 20U);
}

TEST_F(EnumValue, MissesAFileThatIsNotThereOrCanNotBeRead)
{
    WriteBytes(roots.logDevice(L"text"), "no XML");
    OutputBuffer name(20);
    OutputBuffer value(20);

    for (const wchar_t* const device :
         {L"gone", L"text", L"no such folder\\gone", L"Presse\\subdevices\\Achse"})
    {
        EXPECT_EQ(Enum(device, 0, name, value), PGSP_ERR_FILE_NOT_FOUND) << device;
    }

    EXPECT_TRUE(name.isUntouched());
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(name.length, 20U);
    EXPECT_EQ(value.length, 20U);
}

TEST_F(EnumValue, NeedsOneCharacterMoreThanNameAndValue)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle"));
    for (int call = 0; call < 2; ++call) // the call that builds the list, and one that has it
    {
        OutputBuffer name(4);
        OutputBuffer value(6);
        EXPECT_EQ(Enum(L"Presse", 0, name, value), PGSP_OK);
        EXPECT_EQ(name.text(), L"Ort");
        EXPECT_EQ(value.text(), L"Halle");
        EXPECT_EQ(name.length, 3U);
        EXPECT_EQ(value.length, 5U);
    }
}

TEST_F(EnumValue, LeavesTheValueAsItWasWhenTheNameDoesNotFit)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle"));
    OutputBuffer name(3);
    OutputBuffer value(2);

    EXPECT_EQ(Enum(L"Presse", 0, name, value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_EQ(name.length, 3U);
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 2U);
}

TEST_F(EnumValue, HasCopiedTheNameWhenTheValueDoesNotFit)
{
    store.WriteDevice(L"Presse", Section(L"LocalSettings", L"Ort", L"Halle"));
    OutputBuffer name(20);
    OutputBuffer value(5);

    EXPECT_EQ(Enum(L"Presse", 0, name, value), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(name.text(), L"Ort");
    EXPECT_EQ(name.length, 3U);
    EXPECT_TRUE(value.isUntouched());
    EXPECT_EQ(value.length, 5U);
}

TEST_F(EnumValue, RefusesBadArgumentsAheadOfLookingForTheFile)
{
    store.WriteDevice(L"Presse", {});
    OutputBuffer name(20);
    OutputBuffer value(20);
    OutputBuffer none(0);
    const auto call = [&](const wchar_t* device, wchar_t* parameter, std::uint32_t* parLen, wchar_t* text,
                          std::uint32_t* valLen) {
        return library.LogDeviceGetEnumValueBL(device, 0, parameter, parLen, text, valLen);
    };

    for (const wchar_t* const device : {L"Presse", L"gone"})
    {
        EXPECT_EQ(call(device, nullptr, &name.length, value.data(), &value.length),
                  PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(call(device, name.data(), nullptr, value.data(), &value.length),
                  PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(call(device, name.data(), &name.length, nullptr, &value.length),
                  PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(call(device, name.data(), &name.length, value.data(), nullptr),
                  PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Enum(device, 0, none, value), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(Enum(device, 0, name, none), PGSP_ERR_INVALID_PARAMETERS);
    }
    EXPECT_EQ(Enum(nullptr, 0, name, value), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(Enum(L"", 0, name, value), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_TRUE(name.isUntouched());
    EXPECT_TRUE(value.isUntouched());
}

TEST_F(EnumValue, GoesOnByARelativePathWithoutTheDataFolder)
{
    WriteBytes(roots.folder() / L"data\\LogDevices\\Presse.xml",
               XmlFile(L"LogDevice", {}, Section(L"Bindings", L"Ort", L"relative")));
    store.TakeDataFolderAway();
    OutputBuffer name(20);
    OutputBuffer value(20);
    EXPECT_EQ(Enum(L"Presse", 0, name, value), PGSP_ERR_FILE_NOT_FOUND);

    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(roots.folder().path());
    EXPECT_THAT(All(), ElementsAre(std::pair(L"Ort", L"relative")));
    std::filesystem::current_path(before);
}

} // namespace
} // namespace norvepa::test
