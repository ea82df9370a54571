#include "SetBusparamsScene.h"

namespace norvepa::test
{
namespace
{

// A device that says nothing of its protocol itself. What the board has for one decides the way; where
// parameters stand only the board can say then.
class SetBusparamsDefaultProtocol : public SetBusparamsScene
{
protected:
    SetBusparamsDefaultProtocol() : SetBusparamsScene(L"") {}

    // Our board, with this protocol for a device without one and with these speeds.
    void WriteBoardFor(std::wstring_view protocol, Texts speeds) const
    {
        store.WriteBoard(Catalogue()
                             .Parameter(L"CP_TYPE", {{L"default", protocol}})
                             .Parameter(L"baudrate", {{L"type", L"int"}, {L"section", L"LocalSettings"}},
                                        XmlContent().ValueCollection(speeds))
                             .Parameter(L"busparam", {{L"section", L"LocalSettings"}}));
    }

    void WriteWithoutProtocol(const XmlContent& content) const
    {
        WriteBytes(roots.logDevice(L"Presse"), FileOf(content));
    }
    void ExpectWithoutProtocol(const XmlContent& content) const
    {
        EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(FileOf(content)));
    }

    // With what a rotation time follows from, beside an old one.
    [[nodiscard]] static XmlContent Ring(std::wstring_view speed, std::wstring_view slotTime,
                                         std::wstring_view ttr)
    {
        return Bus({.speed = speed, .slotTime = slotTime})
            .Element(L"Bindings", XmlContent().Int(L"highest_adr", L"126").Int(L"ttr", ttr));
    }

private:
    [[nodiscard]] static std::string FileOf(const XmlContent& content)
    {
        return XmlFile(L"LogDevice", {{L"DeviceID", OurBoard}}, content);
    }
};

TEST_F(SetBusparamsDefaultProtocol, OfL2StoresTheSpeedUncheckedAndAppliesTheProfileAnew)
{
    WriteBoardFor(L"L2", {L"1"});
    const XmlContent rates = SubParameter(L"baudrate", {{L"19200", SlotTime(L"200")}});
    store.WriteProtocol(Catalogue().Parameter(L"busparam", {}, Profiles({{L"1", rates}})), L"L2");
    WriteWithoutProtocol(Bus({.speed = L"9600", .slotTime = L"100"}));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectWithoutProtocol(Bus({.speed = L"19200", .slotTime = L"200"}));
}

TEST_F(SetBusparamsDefaultProtocol, OfMpiSetsTheSpeedAndLeavesTheRotationTime)
{
    WriteBoardFor(L"MPI", {L"19200"});
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {}, Profiles({{L"19200", SlotTime(L"200")}})),
                        L"MPI");
    WriteWithoutProtocol(Ring(L"9600", L"100", L"1"));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectWithoutProtocol(Ring(L"19200", L"200", L"1"));
}

TEST_F(SetBusparamsDefaultProtocol, OfMpiMakesTheRotationTimeWhereAParameterOfTheDeviceSaysSoToo)
{
    WriteBoardFor(L"MPI", {L"19200"});
    store.WriteProtocol(Catalogue().Parameter(L"baudrate", {}, Profiles({{L"19200", SlotTime(L"200")}})),
                        L"MPI");
    const auto device = [](std::wstring_view speed, std::wstring_view slotTime, std::wstring_view ttr) {
        return Ring(speed, slotTime, ttr).Element(L"DeviceHeader", XmlContent().Text(L"CP_TYPE", L"MPI"));
    };
    WriteWithoutProtocol(device(L"9600", L"100", L"1"));

    EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

    ExpectWithoutProtocol(device(L"19200", L"200", L"134"));
}

} // namespace
} // namespace norvepa::test
