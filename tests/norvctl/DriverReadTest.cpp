#include "support/Norvctl.h"
#include "support/XmlFiles.h"

#include <nlohmann/json.hpp>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::HasSubstr;

class NorvctlDriverRead : public Norvctl
{
protected:
    // A log device with a parameter of each kind in its header, of which the driver receives these sections.
    void LayOutSchieber(Texts load) const
    {
        const auto header = XmlContent().Int(L"Unit", L"258").Bool(L"an", L"true").Text(L"\u03A9", L"~x");
        WriteBytes(LogDevicePath(L"Schieber"),
                   LogDeviceFile(XmlContent().Element(L"DeviceHeader", header).Load(load)));
    }

    static std::string DriverRead(const std::wstring& device)
    {
        return OutputOfNorvctl({L"device", L"driver-read", device});
    }
};

TEST_F(NorvctlDriverRead, TellsEachRecordWithItsTypeAndItsValue)
{
    LayOutSchieber({L"DeviceHeader"});

    const ProgramEnd end = RunNorvctl({L"device", L"driver-read", L"Schieber"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.output, "Unit                             integer  258\n"
                          "an                               boolean  true\n"
                          "\u03A9                                string   ~x\n");
    EXPECT_EQ(end.error, "");
}

TEST_F(NorvctlDriverRead, TellsTheRecordsInTheOrderOfLoad)
{
    const std::string records = DriverRead(L"Kesselhaus");

    EXPECT_THAT(records, testing::StartsWith("Unit                             integer  1\n"));
    EXPECT_THAT(records, HasSubstr("Active                           boolean  true\n"
                                   "baudrate                         integer  1500000\n"));
    EXPECT_THAT(records, HasSubstr("bus_termination                  string   120 \u03A9\n"
                                   "Adapter                          string   afk220x\n"));
    EXPECT_THAT(records,
                testing::EndsWith(
                    "\u00DCberhitzer/active                boolean  true\n"
                    "\u00DCberhitzer/F\u00FChler                string   Pt100, 100 \u03A9 bei 0 \u00B0C\n"));
}

TEST_F(NorvctlDriverRead, TellsWhatHasBeenSet)
{
    OutputOfNorvctl({L"device", L"create", L"Mischer S\u00FCd", L"--from", L"L2-AFK110"});

    OutputOfNorvctl({L"device", L"set", L"Mischer S\u00FCd", L"baudrate", L"1500000"});

    EXPECT_THAT(DriverRead(L"Mischer S\u00FCd"),
                HasSubstr("baudrate                         integer  1500000\n"));
}

TEST_F(NorvctlDriverRead, AsJsonIsAnArrayWithNumbersAndBooleansAsSuch)
{
    LayOutSchieber({L"DeviceHeader"});

    const json records = json::parse(OutputOfNorvctl({L"--json", L"device", L"driver-read", L"Schieber"}));

    EXPECT_EQ(records, (json{{{"name", "Unit"}, {"type", "integer"}, {"value", 258}},
                             {{"name", "an"}, {"type", "boolean"}, {"value", true}},
                             {{"name", "\u03A9"}, {"type", "string"}, {"value", "~x"}}}));
}

TEST_F(NorvctlDriverRead, AsHexIsTheBytesWithTheirOffsets)
{
    LayOutSchieber({L"DeviceHeader"});

    EXPECT_EQ(OutputOfNorvctl({L"device", L"driver-read", L"Schieber", L"--hex"}),
              "00000000  12 00 08 55 00 6e 00 69 00 74 00 01 01 04 02 01  ...U.n.i.t......\n"
              "00000010  00 00 0e 00 04 61 00 6e 00 01 00 04 01 00 00 00  .....a.n........\n"
              "00000020  0c 00 02 a9 03 01 02 04 7e 00 78 00              ........~.x.\n");
}

TEST_F(NorvctlDriverRead, AsHexAndAsJsonIsOneDocument)
{
    LayOutSchieber({L"DeviceHeader"});

    const json bytes =
        json::parse(OutputOfNorvctl({L"--json", L"device", L"driver-read", L"Schieber", L"--hex"}));

    EXPECT_EQ(bytes, (json{{"device", "Schieber"},
                           {"length", 44},
                           {"bytes", "12000855006e00690074000101040201"
                                     "00000e000461006e0001000401000000"
                                     "0c0002a9030102047e007800"}}));
}

TEST_F(NorvctlDriverRead, OfSectionsWithoutParametersTellsNothing)
{
    LayOutSchieber({L"LocalSettings"});

    EXPECT_EQ(DriverRead(L"Schieber"), "\n");
    EXPECT_EQ(OutputOfNorvctl({L"device", L"driver-read", L"Schieber", L"--hex"}), "\n");
    EXPECT_EQ(OutputOfNorvctl({L"--json", L"device", L"driver-read", L"Schieber"}), "[]\n");
}

TEST_F(NorvctlDriverRead, OfALogDeviceThatTheDriverDoesNotServeFails)
{
    const ProgramEnd end = RunNorvctl({L"device", L"driver-read", L"Pr\u00FCfstand"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "norvctl: Pr\u00FCfstand: the log device does not say what to load "
                         "(8516 PGSP_ERR_DRIVER_READ)\n");
}

TEST_F(NorvctlDriverRead, OfAMissingLogDeviceFails)
{
    for (const Words& words :
         {Words{L"device", L"driver-read", L"gone"}, Words{L"device", L"driver-read", L"gone", L"--hex"}})
    {
        const ProgramEnd end = RunNorvctl(words);

        EXPECT_EQ(end.exitCode, 1U);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error,
                  "norvctl: gone: the file cannot be opened or parsed (8508 PGSP_ERR_CANT_LOAD_XML_FILE)\n");
    }
}

TEST_F(NorvctlDriverRead, OfALogDeviceThatIsNotValidFails)
{
    WriteBytes(LogDevicePath(L"Schieber"),
               LogDeviceFile(XmlContent().Element(L"DeviceHeader", XmlContent()).Load({L"DeviceHeader"})));

    const ProgramEnd end = RunNorvctl({L"device", L"driver-read", L"Schieber"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_THAT(end.error, HasSubstr("(8506 PGSP_ERR_INVALID_FILE)"));
}

} // namespace
} // namespace norvepa::test
