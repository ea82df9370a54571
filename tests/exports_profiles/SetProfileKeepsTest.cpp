#include "ProfileScene.h"
#include "support/Answers.h"
#include "support/XmlMeaning.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace norvepa::test
{
namespace
{

// What a profile doesn't name stays as it is, in every part of the file.
class SetProfileKeeps : public ProfileScene
{
protected:
    // A device of everything that a file may hold, with these values of the profile's three parameters.
    [[nodiscard]] static XmlContent Device(std::wstring_view slot, std::wstring_view gap,
                                           std::wstring_view retry)
    {
        const Link text{
            .name = L"slot", .assembly = L"Texte.dll", .path = L"%commonpath%", .resourceId = L"7"};
        const XmlContent settings =
            XmlContent()
                .Int(L"baudrate", L"9600")
                .Comment(L"as measured")
                .Int(L"busparam", L"1")
                .Element(L"ParameterInt", {{L"unit", L"bits"}},
                         XmlContent().Element(L"Name", L"slot").Element(L"Value", slot))
                .Bool(L"master", L"true");
        return XmlContent()
            .Comment(L"press in hall 2")
            .Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1").Text(L"Größe", L"50 µm & mehr"))
            .Element(L"LocalSettings", settings)
            .Element(L"NetworkSettings", XmlContent().Text(L"gap", gap).Bool(L"retry", retry))
            .Element(
                L"Bindings",
                XmlContent().Text(L"Adapter", L"x").Subdevice(L"Ventil", XmlContent().Int(L"slot", L"1")))
            .Element(L"UserInterface", XmlContent().Resource(text).Text(L"slot", L"of the page"))
            .Element(L"Foreign", {{L"slot", L"1"}}, XmlContent().Text(L"slot", L"of somebody else"))
            .Raw(Spare(XmlContent().Text(L"slot", L"spare")).utf8())
            .Load({L"DeviceHeader", L"Busparameter"});
    }

    SetProfileKeeps()
    {
        const XmlContent pairs = XmlContent().Int(L"slot", L"100").Int(L"gap", L"2").Bool(L"retry", L"true");
        store.WriteBoard(Catalogue()
                             .Parameter(L"baudrate", {{L"section", L"LocalSettings"}})
                             .Parameter(L"busparam", {{L"section", L"LocalSettings"}}));
        store.WriteProtocol(
            Catalogue()
                .Parameter(L"baudrate", {}, Profiles({{L"9600", pairs}}))
                .Parameter(L"busparam", {},
                           Profiles({{L"1", SubParameter(L"baudrate", {{L"9600", pairs}})}})));
    }
};

TEST_F(SetProfileKeeps, AllOfTheFileButThePairs)
{
    for (const wchar_t* const choice : {L"baudrate", L"busparam"})
    {
        Write(Device(L"1", L"1", L"false"));

        EXPECT_EQ(SetProfile(choice), PGSP_OK);

        ExpectSaved(Device(L"100", L"2", L"true"));
        EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
    }
}

TEST_F(SetProfileKeeps, TheFileByteForByteWhereAllPairsAreThereAlready)
{
    Write(Device(L"100", L"2", L"TRUE"));

    ExpectSetProfileChangesNothing(L"baudrate", PGSP_OK);
    ExpectSetProfileChangesNothing(L"busparam", PGSP_OK);
}

TEST_F(SetProfileKeeps, AllOtherFiles)
{
    Write(Device(L"1", L"1", L"false"));
    store.WriteDevice(L"Pumpe", Device(L"1", L"1", L"false"));
    const std::array<std::wstring, 3> others{roots.logDevice(L"Pumpe"), roots.protocol(L"MPI"),
                                             roots.board(L"AFK110")};
    std::array<std::string, 3> before;
    std::transform(others.begin(), others.end(), before.begin(), ReadBytes);

    EXPECT_EQ(SetProfile(L"baudrate"), PGSP_OK);

    std::array<std::string, 3> after;
    std::transform(others.begin(), others.end(), after.begin(), ReadBytes);
    EXPECT_EQ(after, before);
    EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml", L"Pumpe.xml"));
}

class SetProfileOfTheSampleStore : public ProfileScene
{
protected:
    SetProfileOfTheSampleStore() { roots.FillWithSampleStore(); }

    [[nodiscard]] std::wstring Value(const wchar_t* device, const wchar_t* parameter) const
    {
        return TextOf([&](wchar_t* value, std::uint32_t* length) {
            return library.LogDeviceGetValueBL(device, parameter, value, length);
        });
    }
};

TEST_F(SetProfileOfTheSampleStore, WritesTheUsersOwn)
{
    const wchar_t* const plant = L"Kl\u00E4ranlage";
    ASSERT_EQ(Value(plant, L"slot_time"), L"500");

    EXPECT_EQ(library.PGSP_LogDeviceSetProfileRBL(plant, L"L2", L"busparam"), PGSP_OK);

    EXPECT_EQ(Value(plant, L"slot_time"), L"300");
    EXPECT_EQ(Value(plant, L"max_tsdr"), L"150");
    EXPECT_EQ(Value(plant, L"setup_time"), L"1");
    EXPECT_EQ(Value(plant, L"highest_adr"), L"63");
    EXPECT_EQ(Value(plant, L"baudrate"), L"187500");
}

TEST_F(SetProfileOfTheSampleStore, WritesThatOfTheBaudrate)
{
    const wchar_t* const belts = L"F\u00F6rderb\u00E4nder";
    ASSERT_EQ(library.LogDeviceSetValueBL(belts, L"baudrate", L"93750"), PGSP_OK);

    EXPECT_EQ(library.PGSP_LogDeviceSetProfileRBL(belts, L"L2", L"busparam"), PGSP_OK);

    EXPECT_EQ(Value(belts, L"slot_time"), L"100");
    EXPECT_EQ(Value(belts, L"max_tsdr"), L"60");
    EXPECT_EQ(Value(belts, L"ttr"), L"12140");
}

} // namespace
} // namespace norvepa::test
