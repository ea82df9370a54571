#include "DriverReadScene.h"
#include "support/Peer.h"

#include <windows.h>

#include <array>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using DriverRead = DriverReadScene;

// Of a text, and what a driver gets of it.
struct Length
{
    std::size_t written;
    std::size_t received;
};

constexpr std::array Lengths{Length{127, 127}, Length{128, 0}, Length{129, 1}, Length{130, 2},
                             Length{259, 3},   Length{260, 4}, Length{261, 4}};

TEST_F(DriverRead, CutsLongNames)
{
    for (const auto& [written, received] : Lengths)
    {
        const XmlContent section = XmlContent().Int(std::wstring(written, L'n'), L"1");
        Write(XmlContent().Element(L"A", section).Load({L"A"}));

        EXPECT_THAT(Read(), ElementsAre(IntRecord(std::wstring(received, L'n'), 1))) << written;
    }
}

TEST_F(DriverRead, CutsLongTexts)
{
    for (const auto& [written, received] : Lengths)
    {
        Write(Holding(std::wstring(written, L'v')));

        EXPECT_EQ(Read(), Held(std::wstring(received, L'v'))) << written;
    }
}

TEST_F(DriverRead, CutsTheNamesOfSubdevicesTogetherWithTheirParameters)
{
    for (const auto& [written, received] : Lengths)
    {
        const std::wstring subdevice(written - 2, L's');
        Write(XmlContent().Subdevice(subdevice, XmlContent().Int(L"n", L"1")).Load({L"Bindings"}));

        const std::wstring name = (subdevice + L"/n").substr(0, received);
        EXPECT_THAT(Read(), ElementsAre(IntRecord(name, 1))) << written;
    }
}

TEST_F(DriverRead, OfSectionsThatAreNotThereGivesABlockOfNothing)
{
    Write(XmlContent().Element(L"DeviceHeader", XmlContent().Int(L"Unit", L"1")).Load({L"Busparameter"}));
    HandedOut out;

    EXPECT_EQ(library.norvDriverReadLogDevice(L"Presse", &out.block, &out.length), PGSP_OK);

    EXPECT_EQ(out.length, 0U);
    ASSERT_NE(out.block, &out.mark);
    EXPECT_EQ(GlobalFree(out.block), nullptr);
}

TEST_F(DriverRead, SeesTheFileAsItIs)
{
    Write(Holding(L"old"));
    ASSERT_EQ(Read(), Held(L"old"));
    Write(Holding(L"new"));

    EXPECT_EQ(Read(), Held(L"new"));
}

TEST_F(DriverRead, LeavesTheFileAlone)
{
    Write(Holding(L"v"));
    const std::string before = store.Bytes(L"Presse");

    static_cast<void>(Read());

    EXPECT_EQ(store.Bytes(L"Presse"), before);
    EXPECT_THAT(FileNames(store.deviceFolder()), ElementsAre(L"Presse.xml"));
}

TEST_F(DriverRead, GivesWhatTheEngineTellsOfADocumentThatIsNotPlain)
{
    Write(XmlContent()
              .Raw("<?instruction?><A><Parameter><Name>n<!-- x --></Name>"
                   "<Value><![CDATA[<v>]]>&#33;</Value></Parameter></A>")
              .Load({L"A"}));

    EXPECT_THAT(Read(), ElementsAre(TextRecord(L"n", L"<v>!")));
}

TEST_F(DriverRead, KnowsNoLimitOfAFilesSize)
{
    XmlContent comments;
    for (int comment = 0; comment < 11; ++comment)
    {
        comments.Raw("<!--" + std::string(1'000'000, '.') + "-->");
    }
    Write(XmlContent(Holding(L"v")).Raw(comments.utf8()));

    EXPECT_EQ(Read(), Held(L"v"));
}

TEST_F(DriverRead, TakesAFileThatAnotherProcessHasOpenForWriting)
{
    Write(Holding(L"v"));
    Peer writer(L"file_holder.exe", roots.registry());
    ASSERT_EQ(writer.Ask("writing|" + ToUtf8(roots.logDevice(L"Presse"))), "held");

    EXPECT_EQ(Read(), Held(L"v"));
}

// What the sample store's conveyors have, in the order of their Load.
const ReceivedRecords Conveyors{
    IntRecord(L"Unit", 2),
    TextRecord(L"Device", L"12"),
    TextRecord(L"Description", L"R\u00FCbenw\u00E4sche bis Schnitzelmaschine"),
    TextRecord(L"Location", L"R\u00FCbenhof"),
    BoolRecord(L"Active", 1),
    IntRecord(L"baudrate", 12'000'000),
    IntRecord(L"busparam", 0),
    IntRecord(L"ts", 1),
    TextRecord(L"station_name", L"F\u00F6rderb\u00E4nder"),
    IntRecord(L"watchdog", 50),
    IntRecord(L"l4_timeout", 400),
    TextRecord(L"cable", L"Glasfaser"),
    BoolRecord(L"redundant_master", 0),
    IntRecord(L"memory_base", 200'000),
    IntRecord(L"highest_adr", 126),
    IntRecord(L"slot_time", 1000),
    IntRecord(L"min_tsdr", 11),
    IntRecord(L"max_tsdr", 800),
    IntRecord(L"setup_time", 16),
    IntRecord(L"quiet_time", 9),
    IntRecord(L"ttr", 207'850),
    IntRecord(L"gap_factor", 10),
    IntRecord(L"retry_limit", 1),
    TextRecord(L"bus_termination", L"120 \u03A9"),
    TextRecord(L"Adapter", L"afk220x"),
    TextRecord(L"Service", L"SCP_L2"),
    TextRecord(L"Segment", L"Strang B"),
    IntRecord(L"Band 1/address", 21),
    TextRecord(L"Band 1/station_name", L"FB-1"),
    IntRecord(L"Band 1/watchdog", 50),
    BoolRecord(L"Band 1/active", 1),
    TextRecord(L"Band 1/Geschwindigkeit", L"1,6 m/s"),
    IntRecord(L"Band 2/address", 22),
    TextRecord(L"Band 2/station_name", L"FB-2"),
    IntRecord(L"Band 2/watchdog", 50),
    BoolRecord(L"Band 2/active", 1),
    TextRecord(L"Band 2/Geschwindigkeit", L"1,6 m/s"),
    IntRecord(L"Schnitzelmaschine/address", 30),
    TextRecord(L"Schnitzelmaschine/station_name", L"SM-1"),
    IntRecord(L"Schnitzelmaschine/watchdog", 30),
    BoolRecord(L"Schnitzelmaschine/active", 1),
};

class DriverReadOfThePlant : public DriverReadScene
{
protected:
    DriverReadOfThePlant() { roots.FillWithSampleStore(); }
};

TEST_F(DriverReadOfThePlant, GivesWhatTheLoadNames)
{
    EXPECT_EQ(Read(L"F\u00F6rderb\u00E4nder"), Conveyors);
}

TEST_F(DriverReadOfThePlant, GivesEachDeviceThatHasALoad)
{
    for (const std::wstring& file : FileNames(store.deviceFolder()))
    {
        const std::wstring path = store.deviceFolder() + L"\\" + file;
        SCOPED_TRACE(ToUtf8(file));
        const bool hasLoad = ReadBytes(path).find("<Load>") != std::string::npos;
        WriteBytes(roots.logDevice(L"Copy"), ReadBytes(path));

        if (hasLoad)
        {
            EXPECT_THAT(Read(L"Copy"), testing::Not(IsEmpty()));
            continue;
        }
        EXPECT_EQ(ResultOf(L"Copy"), PGSP_ERR_DRIVER_READ);
    }
}

} // namespace
} // namespace norvepa::test
