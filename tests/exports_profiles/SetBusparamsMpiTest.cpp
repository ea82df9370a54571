#include "SetBusparamsScene.h"

#include <ostream>

namespace norvepa::test
{
namespace
{

// A device whose target rotation time is to follow from the highest address.
XmlContent Ring(std::wstring_view highestAddress, std::wstring_view ttr, std::wstring_view speed = L"19200")
{
    return XmlContent()
        .Element(L"LocalSettings", XmlContent().Int(L"baudrate", speed))
        .Element(
            L"NetworkSettings",
            XmlContent().Text(L"highest_adr", highestAddress).Int(L"ttr", ttr).Int(L"slot_time", L"200"));
}

class SetBusparamsMpi : public SetBusparamsRateScene
{
protected:
    SetBusparamsMpi() { WriteRates(L"MPI"); }

    void ExpectAfterwards(const XmlContent& before, const XmlContent& after,
                          const std::wstring& speed = L"19200", std::int32_t result = PGSP_OK) const
    {
        Write(before);

        EXPECT_EQ(SetSpeed(speed), result);

        ExpectSaved(after);
    }
};

TEST_F(SetBusparamsMpi, MakesTheRotationTimeOfTheHighestAddress)
{
    ExpectAfterwards(Ring(L"126", L"1", L"9600"), Ring(L"126", L"134"));
    ExpectAfterwards(Ring(L"31", L"134"), Ring(L"31", L"39"));
}

TEST_F(SetBusparamsMpi, IsAProtocolInAnyCase)
{
    for (const wchar_t* const protocol : {L"MPI", L"mpi", L"Mpi", L"mPI"})
    {
        WriteRates(protocol);
        store.WriteDevice(L"Presse", Ring(L"126", L"1"), OurBoard, protocol);

        EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

        EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(Ring(L"126", L"134"), OurBoard, protocol)))
            << ToUtf8(protocol);
    }
}

TEST_F(SetBusparamsMpi, IsNoOtherProtocol)
{
    for (const wchar_t* const protocol : {L"MPI2", L" MPI", L"MP", L"SERIAL", L"l2"})
    {
        WriteRates(protocol);
        store.WriteDevice(L"Presse", Ring(L"126", L"1"), OurBoard, protocol);

        EXPECT_EQ(SetSpeed(L"19200"), PGSP_OK);

        EXPECT_EQ(store.Saved(L"Presse"), MeaningOf(LogDeviceFile(Ring(L"126", L"1"), OurBoard, protocol)))
            << ToUtf8(protocol);
    }
}

TEST_F(SetBusparamsMpi, LeavesTheRotationTimeOfADeviceWithoutAHighestAddress)
{
    const auto device = [](std::wstring_view speed) {
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", speed).Int(L"slot_time", L"200"))
            .Element(L"NetworkSettings", XmlContent().Int(L"ttr", L"1"))
            .Element(L"Ndi", XmlContent().Int(L"highest_adr", L"126")); // where nobody looks
    };

    ExpectAfterwards(device(L"9600"), device(L"19200"));
}

TEST_F(SetBusparamsMpi, TakesNoHighestAddressFromTheCatalogue)
{
    store.WriteProtocol(
        Catalogue()
            .Parameter(L"highest_adr", {{L"section", L"NetworkSettings"}, {L"default", L"126"}})
            .Parameter(L"baudrate", {{L"section", L"LocalSettings"}},
                       Profiles({{L"19200", SlotTime(L"200")}})));
    const XmlContent device =
        XmlContent()
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"19200"))
            .Element(L"NetworkSettings", XmlContent().Int(L"ttr", L"1").Int(L"slot_time", L"200"));

    ExpectAfterwards(device, device);
}

TEST_F(SetBusparamsMpi, TakesTheHighestAddressOfTheFirstSectionThatHasOne)
{
    const auto device = [](std::wstring_view ttr) {
        return Spare(XmlContent().Text(L"highest_adr", L"4"))
            .Element(L"Bindings", XmlContent().Text(L"highest_adr", L"3"))
            .Raw(Ring(L"2", ttr).utf8())
            .Element(L"DeviceHeader", XmlContent().Text(L"HIGHEST_ADR", L"1"));
    };

    ExpectAfterwards(device(L"0"), device(L"9"));
}

TEST_F(SetBusparamsMpi, FindsTheHighestAddressInTheSpareSectionToo)
{
    const auto device = [](std::wstring_view ttr) {
        return Spare(XmlContent().Text(L"highest_adr", L"126").Text(L"ttr", ttr))
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"19200").Int(L"slot_time", L"200"));
    };

    ExpectAfterwards(device(L"1"), device(L"134"));
}

TEST_F(SetBusparamsMpi, GoesByTheHighestAddressThatTheProfileHasWritten)
{
    store.WriteProtocol(Catalogue().Parameter(
        L"baudrate", {{L"section", L"LocalSettings"}},
        Profiles({{L"19200", XmlContent().Int(L"highest_adr", L"63").Int(L"ttr", L"5000")}})));
    const auto device = [](std::wstring_view highestAddress, std::wstring_view ttr) {
        return XmlContent()
            .Element(L"LocalSettings", XmlContent().Int(L"baudrate", L"19200"))
            .Element(L"NetworkSettings", XmlContent().Int(L"highest_adr", highestAddress).Int(L"ttr", ttr));
    };

    ExpectAfterwards(device(L"126", L"1"), device(L"63", L"71"));
}

TEST_F(SetBusparamsMpi, DoesNotTellThatTheBoardRefusesTheRotationTime)
{
    store.WriteBoard(
        Catalogue()
            .Parameter(L"baudrate", {{L"type", L"int"}}, XmlContent().ValueCollection({L"19200"}))
            .Parameter(L"ttr", {{L"type", L"int"}, {L"min", L"0"}, {L"max", L"133"}}));

    ExpectAfterwards(Ring(L"126", L"1"), Ring(L"126", L"1"));
    ExpectAfterwards(Ring(L"125", L"1"), Ring(L"125", L"133"));
}

TEST_F(SetBusparamsMpi, DoesNotTellThatThereIsNoPlaceForTheRotationTime)
{
    const XmlContent device = XmlContent().Element(
        L"LocalSettings",
        XmlContent().Int(L"baudrate", L"19200").Int(L"slot_time", L"200").Int(L"highest_adr", L"126"));
    ExpectAfterwards(device, device);

    ExpectAfterwards(XmlContent(device).Raw(Spare({}).utf8()),
                     XmlContent(device).Raw(Spare(XmlContent().Text(L"ttr", L"134")).utf8()));
}

TEST_F(SetBusparamsMpi, LeavesTheRotationTimeWhenTheSpeedCouldNotBeSet)
{
    ExpectAfterwards(Ring(L"126", L"1"), Ring(L"126", L"1"), L"12345", PGSP_PROFILE_NO_VALUE);
    ExpectAfterwards(Ring(L"126", L"1"), Ring(L"126", L"1"), L"45450", PGSP_PROFILE_NO_VALUE);
}

// What a text is as an address, and the rotation time that is 8 more.
struct Address
{
    const wchar_t* text;
    const wchar_t* ttr;
};

void PrintTo(const Address& each, std::ostream* out)
{
    *out << '"' << ToUtf8(each.text) << '"';
}

class SetBusparamsMpiAddress : public SetBusparamsMpi, public testing::WithParamInterface<Address>
{
};

TEST_P(SetBusparamsMpiAddress, CountsByItsLeadingDigits)
{
    const auto& [text, ttr] = GetParam();

    ExpectAfterwards(Ring(text, L"1"), Ring(text, ttr));
}

INSTANTIATE_TEST_SUITE_P(ThatIsANumber, SetBusparamsMpiAddress,
                         testing::Values(Address{L"0", L"8"}, Address{L"126", L"134"},
                                         Address{L"0126", L"134"}, Address{L"+1", L"9"}, Address{L"-8", L"0"},
                                         Address{L"-20", L"-12"}, Address{L"2147483639", L"2147483647"}));

INSTANTIATE_TEST_SUITE_P(ThatIsNone, SetBusparamsMpiAddress,
                         testing::Values(Address{L"", L"8"}, Address{L"all", L"8"}, Address{L"x126", L"8"},
                                         Address{L"126x", L"134"}, Address{L" 126 ", L"134"},
                                         Address{L"12.6", L"20"}, Address{L"0x10", L"8"}));

// Sums wrap around as the machine's do.
INSTANTIATE_TEST_SUITE_P(ThatIsTooLarge, SetBusparamsMpiAddress,
                         testing::Values(Address{L"2147483640", L"-2147483648"},
                                         Address{L"2147483647", L"-2147483641"}));

} // namespace
} // namespace norvepa::test
