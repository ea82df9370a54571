#include "trace/TraceRecord.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <string>

namespace norvepa
{

namespace
{

TraceEvent Event()
{
    return {"LogDeviceGetValueBL: ", 128, "BL", 0, 0, "C:\\source\\Value.cpp", 42, "<< return lRet = 87"};
}

TraceRecord RecordOf(const TraceEvent& event, LineFormat format)
{
    TraceSettings settings;
    settings.format = format;
    return MakeTraceRecord(event, settings);
}

std::string LineOf(const TraceEvent& event, LineFormat format)
{
    const auto line = MakeTraceLine(RecordOf(event, format), format);
    return line ? std::string(line->view()) : "no line";
}

TEST(TraceLine, ShortFormat)
{
    EXPECT_EQ(LineOf(Event(), LineFormat::Short),
              "S NvEPBL64 FE  BL  0  0000 LogDeviceGetValueBL:  << return lRet = 87");
}

TEST(TraceLine, ShortFormatWithoutStatus)
{
    TraceEvent event = Event();
    event.level = 8;

    EXPECT_EQ(LineOf(event, LineFormat::Short),
              "S NvEPBL64 FA  BL          LogDeviceGetValueBL:  << return lRet = 87");
}

TEST(TraceLine, LongFormat)
{
    TraceRecord record = RecordOf(Event(), LineFormat::Long);
    record.time = "08:15:30,042";
    record.processId = 1234;
    record.threadId = 56;

    const auto line = MakeTraceLine(record, LineFormat::Long);

    ASSERT_TRUE(line);
    EXPECT_EQ(line->view(), "L NvEPBL64 P000001234T000000056 FE  BL  0  0000 08:15:30,042 Value.cpp,00042 "
                            "LogDeviceGetValueBL:  << return lRet = 87");
}

TEST(TraceLine, LongFormatNamesThisProcessAndThread)
{
    const TraceRecord record = RecordOf(Event(), LineFormat::Long);

    EXPECT_EQ(record.processId, GetCurrentProcessId());
    EXPECT_EQ(record.threadId, GetCurrentThreadId());
}

TEST(TraceLine, TimeFormatShowsTheLastTwelveCharactersOfTheTime)
{
    TraceRecord record = RecordOf(Event(), LineFormat::Time);
    record.time = "00000000000000012345.678901";

    const auto line = MakeTraceLine(record, LineFormat::Time);

    ASSERT_TRUE(line);
    EXPECT_EQ(line->view(),
              "T NvEPBL64 FE  BL  0  0000 12345.678901 LogDeviceGetValueBL:  << return lRet = 87");
}

TEST(TraceLine, TextFormatIsTagAndMessageWithABlankBehind)
{
    EXPECT_EQ(LineOf(Event(), LineFormat::Text), "LogDeviceGetValueBL:  << return lRet = 87 ");
}

TEST(TraceLine, EventTextIsNeverAFormat)
{
    TraceEvent event = Event();
    event.tag = "%s%n";
    event.text = "100%d";

    EXPECT_EQ(LineOf(event, LineFormat::Text), "%s%n 100%d ");
}

TEST(TraceLine, LongestFieldsOfTheLongFormatStillMakeALine)
{
    const std::string tag(64, 't');
    const std::string message(256, 'm');
    TraceEvent event = Event();
    event.tag = tag.c_str();
    event.text = message.c_str();
    event.sourceFile = "twelve_chars.cpp";
    event.status = 0xFFFFFFFF;
    event.extra = 0xFFFFFFFF;

    EXPECT_EQ(LineOf(event, LineFormat::Long).size(), 405u);
}

TEST(TraceLine, LineOf418CharactersIsTheLongestThatIsMade)
{
    const std::string tag(64, 't');
    const std::string message(256, 'm');
    TraceEvent event = Event();
    event.tag = tag.c_str();
    event.text = message.c_str();
    TraceRecord record = RecordOf(event, LineFormat::Long);
    const auto lengthWithTime = [&](std::size_t length) {
        record.time = FixedText<64>(std::string(length, '0'));
        const auto line = MakeTraceLine(record, LineFormat::Long);
        return line ? line->view().size() : std::size_t{0};
    };
    const std::size_t rest = lengthWithTime(0);

    EXPECT_EQ(lengthWithTime(418 - rest), 418u);
    EXPECT_EQ(lengthWithTime(419 - rest), 0u);
}

} // namespace

} // namespace norvepa
