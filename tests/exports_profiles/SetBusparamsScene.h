#pragma once

// The log device "Presse" and its speed, and protocols that say what follows from that.

#include "exports_device/SetScene.h"
#include "support/ProfileFiles.h"
#include "support/XmlMeaning.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa::test
{

// What the tests choose, and what follows from it.
struct BusSettings
{
    std::wstring_view speed = L"9600";
    std::wstring_view profile = L"1";
    std::wstring_view slotTime = L"100";
    std::wstring_view retries = L"1";
};

// The sections of a device that says so. The speed comes last: how the engine writes an empty one decides
// whether what stands behind it in the section is found.
[[nodiscard]] inline XmlContent Bus(const BusSettings& settings)
{
    return XmlContent()
        .Element(L"LocalSettings",
                 XmlContent().Int(L"busparam", settings.profile).Int(L"baudrate", settings.speed))
        .Element(L"NetworkSettings",
                 XmlContent().Int(L"slot_time", settings.slotTime).Int(L"retry_limit", settings.retries));
}

class SetBusparamsScene : public SetScene
{
protected:
    explicit SetBusparamsScene(std::wstring_view protocol) : m_protocol(protocol) {}

    [[nodiscard]] std::int32_t SetSpeed(const std::wstring& value) const
    {
        return library.LogDeviceSetBusparamsBL(L"Presse", value.c_str());
    }

    // That device, of our board and the protocol of the scene; and what its file says now.
    void WriteBus(const XmlContent& content) const
    {
        store.WriteDevice(L"Presse", content, OurBoard, m_protocol);
    }
    void WriteBus(const BusSettings& settings) const { WriteBus(Bus(settings)); }
    void ExpectBus(const XmlContent& content) const
    {
        EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(content, OurBoard, m_protocol)));
        EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
    }
    void ExpectBus(const BusSettings& settings) const { ExpectBus(Bus(settings)); }

    // What is answered, and that the file stays byte for byte as it was and nothing stands beside it.
    void ExpectSpeedChangesNothing(const std::wstring& value, std::int32_t result) const
    {
        const std::string before = store.Bytes(L"Presse");

        EXPECT_EQ(SetSpeed(value), result);

        EXPECT_EQ(store.Bytes(L"Presse"), before);
        EXPECT_THAT(Files(), testing::ElementsAre(L"Presse.xml"));
    }

    // A board that takes these speeds, and slot times up to 500.
    void WriteBoardOf(Texts speeds) const
    {
        store.WriteBoard(
            Catalogue()
                .Parameter(L"baudrate", {{L"type", L"int"}}, XmlContent().ValueCollection(speeds))
                .Parameter(L"slot_time", {{L"type", L"int"}, {L"min", L"1"}, {L"max", L"500"}}));
    }

    [[nodiscard]] static XmlContent SlotTime(std::wstring_view value)
    {
        return XmlContent().Int(L"slot_time", value);
    }
    // Of two values the first, which is too much for that board.
    [[nodiscard]] static XmlContent RefusedSlotTime() { return SlotTime(L"900").Int(L"retry_limit", L"5"); }

private:
    std::wstring m_protocol;
};

// Of the one protocol whose speed decides within a bus profile. The board takes none of these speeds.
class SetBusparamsL2Scene : public SetBusparamsScene
{
protected:
    SetBusparamsL2Scene() : SetBusparamsScene(L"L2")
    {
        WriteBoardOf({L"1"});
        const XmlContent standard = SubParameter(L"baudrate", {{L"9600", SlotTime(L"100")},
                                                               {L"19200", SlotTime(L"200")},
                                                               {L"45450"},
                                                               {L"500000", RefusedSlotTime()}});
        store.WriteProtocol(
            Catalogue()
                .Parameter(L"baudrate", {{L"section", L"LocalSettings"}})
                .Parameter(L"busparam", {{L"section", L"LocalSettings"}},
                           Profiles({{L"1/Standard", standard}, {L"3/User", SlotTime(L"300")}})),
            L"L2");
    }
};

// Of any other protocol, where the speed itself brings a profile with it.
class SetBusparamsRateScene : public SetBusparamsScene
{
protected:
    SetBusparamsRateScene() : SetBusparamsScene(L"SERIAL")
    {
        WriteBoardOf({L"9600", L"19200/fast", L"45450", L"93750", L"500000"});
        WriteRates(L"SERIAL");
    }

    // A protocol of this name with a profile for all but 93750.
    void WriteRates(std::wstring_view name, ConstraintWords words = {{L"section", L"LocalSettings"}}) const
    {
        store.WriteProtocol(Catalogue().Parameter(L"baudrate", words,
                                                  Profiles({{L"9600", SlotTime(L"100")},
                                                            {L"19200", SlotTime(L"200")},
                                                            {L"45450"},
                                                            {L"500000", RefusedSlotTime()}})),
                            name);
    }
};

} // namespace norvepa::test
