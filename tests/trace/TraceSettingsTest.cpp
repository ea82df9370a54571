#include "trace/TraceSettings.h"

#include "TraceScene.h"
#include "support/ImportHook.h"
#include "support/StoreRoots.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace norvepa
{

namespace
{

using test::TraceScene;
using testing::ElementsAre;

TraceSettings Read(const TraceSettings& before = {})
{
    return ReadTraceSettings(before, "norvepaBl64x");
}

// A registry of its own, without a value.
class TraceSettingsTest : public testing::Test
{
protected:
    static void Set(const std::wstring& name, const std::wstring& value) { TraceScene::Set(name, value); }

private:
    test::RedirectedRegistry m_registry;
};

TEST(TraceSettingsAtLoad, AreTheBuiltInOnes)
{
    const TraceSettings settings;

    EXPECT_EQ(settings.levels, 0xFFFFFFFFu);
    EXPECT_EQ(settings.format, LineFormat::Long);
    EXPECT_EQ(settings.output, TraceOutput::File);
    EXPECT_EQ(settings.consultSeconds, 0);
    EXPECT_EQ(settings.bytesPerFile, 2'097'152);
    EXPECT_EQ(settings.ringBytes, 2'000'000u);
    EXPECT_EQ(settings.fileBase.view(), "C:\\TMP\\NorvFILE");
    EXPECT_TRUE(settings.programs.PassesWhole("x") && settings.components.PassesWhole("x") &&
                settings.tags.PassesWhole("x") && settings.messages.PassesPrefix("x"));
}

TEST_F(TraceSettingsTest, WithoutTheKeyTheMaskIsZeroAndAllElseAsReset)
{
    const TraceSettings settings = Read();

    EXPECT_FALSE(settings.configured);
    EXPECT_EQ(settings.levels, 0u);
    EXPECT_EQ(settings.format, LineFormat::Long);
    EXPECT_EQ(settings.output, TraceOutput::File);
    EXPECT_EQ(settings.consultSeconds, 0);
    EXPECT_EQ(settings.fileBase.view(), "C:\\TMP\\NorvFILE");
}

TEST_F(TraceSettingsTest, ReadingResetsWhatTheRegistryDoesNotSay)
{
    TraceSettings before;
    before.levels = 8;
    before.format = LineFormat::Text;
    before.output = TraceOutput::Debugger;
    before.consultSeconds = 60;
    before.programs = before.components = before.tags = before.messages = PatternList("none");

    const TraceSettings settings = Read(before);

    EXPECT_EQ(settings.levels, 0u);
    EXPECT_EQ(settings.format, LineFormat::Long);
    EXPECT_EQ(settings.output, TraceOutput::File);
    EXPECT_EQ(settings.consultSeconds, 0);
    EXPECT_TRUE(settings.programs.PassesWhole("x") && settings.components.PassesWhole("x") &&
                settings.tags.PassesWhole("x") && settings.messages.PassesPrefix("x"));
}

TEST_F(TraceSettingsTest, SizesAndBaseNameOutliveAReadingThatDoesNotNameThem)
{
    TraceSettings before;
    before.bytesPerFile = 5000;
    before.ringBytes = 6000;
    before.fileBase = "C:\\logs\\mine";
    Set(L"Level", L"8");

    const TraceSettings settings = Read(before);

    EXPECT_EQ(settings.bytesPerFile, 5000);
    EXPECT_EQ(settings.ringBytes, 6000u);
    EXPECT_EQ(settings.fileBase.view(), "C:\\logs\\mine");
}

TEST_F(TraceSettingsTest, ReadingKnowsTheFrequencyOfThePerformanceCounter)
{
    LARGE_INTEGER frequency{};
    QueryPerformanceFrequency(&frequency);

    EXPECT_EQ(Read().ticksPerSecond, frequency.QuadPart);
}

BOOL WINAPI NoFrequency(LARGE_INTEGER*)
{
    return FALSE;
}

TEST_F(TraceSettingsTest, UnknownFrequencyCountsAsOne)
{
    const test::ImportHook hook("QueryPerformanceFrequency", NoFrequency);

    EXPECT_EQ(Read().ticksPerSecond, 1);
}

TEST_F(TraceSettingsTest, ModuleNamedValueDecidesNothing)
{
    Set(L"norvepaBl64x", L"0xFF");
    EXPECT_EQ(Read().levels, 0u);
    EXPECT_EQ(Read().moduleLevels, 0xFFu);

    Set(L"Level", L"8");
    EXPECT_EQ(Read().levels, 8u);
}

TEST_F(TraceSettingsTest, ConsultIsADecimalNumberOfSeconds)
{
    Set(L"Consult", L"60");
    EXPECT_EQ(Read().consultSeconds, 60);

    Set(L"Consult", L"0x10");
    EXPECT_EQ(Read().consultSeconds, 0);

    Set(L"Consult", L"-5");
    EXPECT_EQ(Read().consultSeconds, -5);
}

TEST_F(TraceSettingsTest, EachFilterValueFillsItsOwnList)
{
    Set(L"TraceId", L"Nv*");
    Set(L"Module", L"XML");
    Set(L"FctName", L"LogName*");
    Set(L"String", L">> <<");

    const TraceSettings settings = Read();

    EXPECT_TRUE(settings.programs.PassesWhole("NvEPBL64"));
    EXPECT_FALSE(settings.programs.PassesWhole("Other"));
    EXPECT_TRUE(settings.components.PassesWhole("XML"));
    EXPECT_FALSE(settings.components.PassesWhole("BL"));
    EXPECT_TRUE(settings.tags.PassesWhole("LogNameGetValueBL: "));
    EXPECT_FALSE(settings.tags.PassesWhole("LogDeviceGetValueBL: "));
    EXPECT_TRUE(settings.messages.PassesPrefix("<< return PGSP_OK"));
    EXPECT_FALSE(settings.messages.PassesPrefix("Value = 5"));
}

TEST_F(TraceSettingsTest, RingSizeCountsForTheRingOnly)
{
    Set(L"sm_size", L"4096");
    EXPECT_EQ(Read().ringBytes, 2'000'000u);

    Set(L"Output", L"SM");
    EXPECT_EQ(Read().ringBytes, 4096u);

    Set(L"sm_size", L"-1");
    EXPECT_EQ(Read().ringBytes, 2'000'000u);
}

TEST_F(TraceSettingsTest, FileValuesCountForFilesOnly)
{
    Set(L"Byte/File", L"5000");
    Set(L"Path", L"C:\\logs");
    Set(L"Output", L"DBG");
    EXPECT_EQ(Read().bytesPerFile, 2'097'152);
    EXPECT_EQ(Read().fileBase.view(), "C:\\TMP\\NorvFILE");

    Set(L"Output", L"unknown");
    EXPECT_EQ(Read().bytesPerFile, 5000);
    EXPECT_EQ(Read().fileBase.view(), "C:\\logs\\NorvFile");
}

TEST_F(TraceSettingsTest, LongestPathAndFileNameFitTheBaseName)
{
    const std::string path(259, 'p');
    const std::string fileName(259, 'n');

    EXPECT_EQ(MakeTraceFileBase(path, fileName).view(), path + "\\" + fileName);
}

TEST_F(TraceSettingsTest, EmptyValueDoesNotCount)
{
    TraceSettings before;
    before.fileBase = "C:\\logs\\mine";
    Set(L"Path", L"");
    Set(L"FileName", L"");

    EXPECT_EQ(Read(before).fileBase.view(), "C:\\logs\\mine");
}

TEST_F(TraceSettingsTest, OnlyPlainTextValuesCount)
{
    const DWORD number = 8;
    test::SetMachineValue(test::TraceKey, L"Level", REG_DWORD, &number, sizeof number);
    EXPECT_EQ(Read().levels, 0u);

    test::SetMachineValue(test::TraceKey, L"Level", REG_EXPAND_SZ, L"8", 2 * sizeof(wchar_t));
    EXPECT_EQ(Read().levels, 0u);

    test::SetMachineValue(test::TraceKey, L"Level", REG_MULTI_SZ, L"8\0", 3 * sizeof(wchar_t));
    EXPECT_EQ(Read().levels, 0u);

    Set(L"Level", L"8");
    EXPECT_EQ(Read().levels, 8u);
}

TEST_F(TraceSettingsTest, ValueOf260BytesWithItsTerminatorIsTheLongestThatCounts)
{
    Set(L"Level", L"8" + std::wstring(258, L' '));
    EXPECT_EQ(Read().levels, 8u);

    Set(L"Level", L"8" + std::wstring(259, L' '));
    EXPECT_EQ(Read().levels, 0u);
}

TEST_F(TraceSettingsTest, ValueStoredWithoutTerminatorEndsWithItsBytes)
{
    test::SetMachineValue(test::TraceKey, L"Level", REG_SZ, L"123", 2 * sizeof(wchar_t));

    EXPECT_EQ(Read().levels, 12u);
}

std::vector<std::string> valuesAsked;

LSTATUS WINAPI NoteValue(HKEY key, const char* name, DWORD* reserved, DWORD* type, BYTE* data, DWORD* size)
{
    valuesAsked.emplace_back(name);
    return RegGetValueA(key, nullptr, name, RRF_RT_ANY, type, data, size) + (reserved == nullptr ? 0 : 1);
}

TEST_F(TraceSettingsTest, ValuesAreReadInTheirOrder)
{
    Set(L"Output", L"FILE");
    valuesAsked.clear();
    const test::ImportHook hook("RegQueryValueExA", NoteValue);

    static_cast<void>(Read());

    EXPECT_THAT(valuesAsked, ElementsAre("Consult", "FctName", "Format", "Level", "norvepaBl64x", "Module",
                                         "String", "TraceId", "Output", "Byte/File", "Path", "FileName"));
}

} // namespace

} // namespace norvepa
