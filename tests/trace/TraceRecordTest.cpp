#include "trace/TraceRecord.h"

#include "support/ImportHook.h"

#include <windows.h>

#include <ctime>
#include <gmock/gmock.h>
#include <ostream>
#include <regex>
#include <string>

namespace norvepa
{

namespace
{

using testing::Values;

TraceEvent Event()
{
    return {"LogDeviceGetValueBL: ", 128, "BL", 0, 0, "C:\\source\\Value.cpp", 42, "<< return lRet = 87"};
}

TraceSettings In(LineFormat format)
{
    TraceSettings settings;
    settings.format = format;
    settings.ticksPerSecond = 10'000'000;
    return settings;
}

TraceRecord RecordOf(const TraceEvent& event, LineFormat format = LineFormat::Short)
{
    return MakeTraceRecord(event, In(format));
}

struct LevelRow
{
    std::uint32_t level;
    std::string code;

    friend void PrintTo(const LevelRow& row, std::ostream* out) { *out << "Level" << row.level; }
};

class LevelCodes : public testing::TestWithParam<LevelRow>
{
};

TEST_P(LevelCodes, StandInTheRecord)
{
    TraceEvent event = Event();
    event.level = GetParam().level;

    EXPECT_EQ(RecordOf(event).levelCode.view(), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(EveryLevel, LevelCodes,
                         Values(LevelRow{0, "##"}, LevelRow{1, "PA"}, LevelRow{2, "PX"}, LevelRow{4, "PE"},
                                LevelRow{8, "FA"}, LevelRow{16, "FR"}, LevelRow{32, "FW"}, LevelRow{64, "FM"},
                                LevelRow{128, "FE"}, LevelRow{16'777'216, "L7"}, LevelRow{268'435'456, "AI"},
                                LevelRow{536'870'912, "L2"}, LevelRow{1'073'741'824, "L4"},
                                LevelRow{0xFFFFFFFF, "--"}, LevelRow{3, "??"}, LevelRow{256, "??"},
                                LevelRow{136, "??"}));

struct StatusRow
{
    std::string name;
    std::uint32_t level;
    std::uint32_t status;
    std::uint32_t extra;
    std::string statusField;
    std::string extraField;

    friend void PrintTo(const StatusRow& row, std::ostream* out) { *out << row.name; }
};

class StatusFields : public testing::TestWithParam<StatusRow>
{
};

TEST_P(StatusFields, FollowTheLevelAndTheStatus)
{
    TraceEvent event = Event();
    event.level = GetParam().level;
    event.status = GetParam().status;
    event.extra = GetParam().extra;

    const TraceRecord record = RecordOf(event);

    EXPECT_EQ(record.status.view(), GetParam().statusField);
    EXPECT_EQ(record.extra.view(), GetParam().extraField);
}

INSTANTIATE_TEST_SUITE_P(EveryForm, StatusFields,
                         Values(StatusRow{"StatusZero", 128, 0, 0, " 0", "  0000"},
                                StatusRow{"StatusOne", 128, 1, 0x2A, " 1", "  002a"},
                                StatusRow{"StatusAllBitsSet", 128, 0xFFFFFFFF, 0xABCDEF, "-1", "  abcdef"},
                                StatusRow{"StatusTwo", 128, 2, 7, "00000002", ""},
                                StatusRow{"StatusLarge", 128, 0xC0001400, 7, "c0001400", ""},
                                StatusRow{"LevelFour", 4, 0, 0, " 0", "  0000"},
                                StatusRow{"LevelAllBitsSet", 0xFFFFFFFF, 0, 0, " 0", "  0000"},
                                StatusRow{"LevelEight", 8, 0, 0, "  ", "      "},
                                StatusRow{"LevelSixtyFour", 64, 5, 9, "  ", "      "}));

TEST(TraceRecord, ComponentIsRightAlignedAndCutToThreeColumns)
{
    TraceEvent event = Event();
    const auto component = [&](const char* word) {
        event.component = word;
        return std::string(RecordOf(event).component.view());
    };

    EXPECT_EQ(component("BL"), " BL");
    EXPECT_EQ(component(" BL"), " BL");
    EXPECT_EQ(component("XML"), "XML");
    EXPECT_EQ(component("STORE"), "STO");
    EXPECT_EQ(component(""), "   ");
}

TEST(TraceRecord, SourceFileIsTheFilePartCutToTwelveCharacters)
{
    TraceEvent event = Event();
    const auto sourceFile = [&](const char* path) {
        event.sourceFile = path;
        return std::string(RecordOf(event).sourceFile.view());
    };

    EXPECT_EQ(sourceFile("C:\\a\\Value.cpp"), "Value.cpp");
    EXPECT_EQ(sourceFile("/a/b/Value.cpp"), "Value.cpp");
    EXPECT_EQ(sourceFile("LogDeviceGetValue.cpp"), "LogDeviceGet");
    EXPECT_EQ(sourceFile("folder\\"), "");
}

TEST(TraceRecord, LineHasFiveDigits)
{
    TraceEvent event = Event();
    const auto line = [&](int number) {
        event.line = number;
        return std::string(RecordOf(event).line.view());
    };

    EXPECT_EQ(line(7), "00007");
    EXPECT_EQ(line(99'999), "99999");
    EXPECT_EQ(line(1'234'567), "12345");
}

TEST(TraceRecord, TagIsCutTo64CharactersAndMessageTo256)
{
    const std::string tag(70, 't');
    const std::string message(300, 'm');
    TraceEvent event = Event();
    event.tag = tag.c_str();
    event.text = message.c_str();

    const TraceRecord record = RecordOf(event);

    EXPECT_EQ(record.tag.view(), std::string(64, 't'));
    EXPECT_EQ(record.message.view(), std::string(256, 'm'));
}

TEST(TraceRecord, ShorterFieldsAreNotPadded)
{
    EXPECT_EQ(RecordOf(Event()).tag.view(), "LogDeviceGetValueBL: ");
    EXPECT_EQ(RecordOf(Event()).message.view(), "<< return lRet = 87");
}

TEST(TraceRecord, LongFormatHasTheLocalTimeWithMilliseconds)
{
    const std::string time(RecordOf(Event(), LineFormat::Long).time.view());

    ASSERT_TRUE(std::regex_match(time, std::regex("[0-9]{2}:[0-9]{2}:[0-9]{2},[0-9]{3}"))) << time;

    const std::time_t now = std::time(nullptr);
    const int shown = std::stoi(time) * 3600 + std::stoi(time.substr(3)) * 60 + std::stoi(time.substr(6));
    const std::tm local = *std::localtime(&now);
    const int current = local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec;
    const int passed = (current - shown + 86'400) % 86'400;
    EXPECT_LT(passed, 60);
}

std::size_t NoClock(char*, std::size_t, const char*, const std::tm*)
{
    return 0;
}

TEST(TraceRecord, LocalTimeThatCannotBeHadReadsAsMidnight)
{
    const test::ImportHook hook("strftime", NoClock);

    EXPECT_EQ(RecordOf(Event(), LineFormat::Long).time.view(), "00:00:00,000");
}

TEST(TraceRecord, TimeFormatHasThePerformanceCounterInSeconds)
{
    LARGE_INTEGER frequency{};
    LARGE_INTEGER before{};
    LARGE_INTEGER after{};
    QueryPerformanceFrequency(&frequency);
    TraceSettings settings = In(LineFormat::Time);
    settings.ticksPerSecond = frequency.QuadPart;

    QueryPerformanceCounter(&before);
    const TraceRecord record = MakeTraceRecord(Event(), settings);
    QueryPerformanceCounter(&after);

    const std::string time(record.time.view());
    ASSERT_TRUE(std::regex_match(time, std::regex("[0-9]{20}\\.[0-9]{6}"))) << time;
    const double ticks = std::stod(time) * static_cast<double>(frequency.QuadPart);
    EXPECT_GE(ticks + 100, static_cast<double>(before.QuadPart));
    EXPECT_LE(ticks - 100, static_cast<double>(after.QuadPart));
}

} // namespace

} // namespace norvepa
