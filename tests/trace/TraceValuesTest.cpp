#include "TraceScene.h"
#include "trace/TraceSettings.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace norvepa
{

namespace
{

using test::TraceScene;
using testing::Values;

TraceSettings Read()
{
    return ReadTraceSettings({}, "norvepaBl64x");
}

// A registry of its own, without a value.
class TraceValuesTest : public testing::Test
{
protected:
    static void Set(const std::wstring& name, const std::wstring& value) { TraceScene::Set(name, value); }

private:
    test::RedirectedRegistry m_registry;
};

struct LevelText
{
    std::string name;
    std::wstring text;
    std::uint32_t levels;

    friend void PrintTo(const LevelText& row, std::ostream* out) { *out << row.name; }
};

class LevelTexts : public TraceValuesTest, public testing::WithParamInterface<LevelText>
{
};

TEST_P(LevelTexts, AreReadInTheBaseOfTheirPrefix)
{
    Set(L"Level", GetParam().text);

    EXPECT_EQ(Read().levels, GetParam().levels);
}

INSTANTIATE_TEST_SUITE_P(EveryBase, LevelTexts,
                         Values(LevelText{"Decimal", L"136", 136}, LevelText{"Hexadecimal", L"0x88", 0x88},
                                LevelText{"UpperX", L"0XfF", 255}, LevelText{"Octal", L"010", 8},
                                LevelText{"AllBits", L"0xFFFFFFFF", 0xFFFFFFFF},
                                LevelText{"Negative", L"-1", 0xFFFFFFFF},
                                LevelText{"TooLarge", L"0x123456789", 0xFFFFFFFF},
                                LevelText{"WithTextBehind", L" 8 and more", 8},
                                LevelText{"NoNumber", L"all", 0}));

struct FormatText
{
    std::string name;
    std::wstring text;
    LineFormat format;

    friend void PrintTo(const FormatText& row, std::ostream* out) { *out << row.name; }
};

class FormatTexts : public TraceValuesTest, public testing::WithParamInterface<FormatText>
{
};

TEST_P(FormatTexts, SelectTheFormatInAnyCase)
{
    Set(L"Format", GetParam().text);

    EXPECT_EQ(Read().format, GetParam().format);
}

INSTANTIATE_TEST_SUITE_P(
    EveryWord, FormatTexts,
    Values(FormatText{"Short", L"SHORT", LineFormat::Short},
           FormatText{"ShortMixed", L"Short", LineFormat::Short},
           FormatText{"Time", L"TIME", LineFormat::Time}, FormatText{"TimeLower", L"time", LineFormat::Time},
           FormatText{"Text", L"TEXT", LineFormat::Text}, FormatText{"TextMixed", L"tExT", LineFormat::Text},
           FormatText{"Long", L"LONG", LineFormat::Long}, FormatText{"Unknown", L"SHORTER", LineFormat::Long},
           FormatText{"Number", L"1", LineFormat::Long}));

struct OutputText
{
    std::string name;
    std::wstring text;
    TraceOutput output;

    friend void PrintTo(const OutputText& row, std::ostream* out) { *out << row.name; }
};

class OutputTexts : public TraceValuesTest, public testing::WithParamInterface<OutputText>
{
};

TEST_P(OutputTexts, SelectTheOutputInAnyCase)
{
    Set(L"Output", GetParam().text);

    EXPECT_EQ(Read().output, GetParam().output);
}

INSTANTIATE_TEST_SUITE_P(EveryWord, OutputTexts,
                         Values(OutputText{"Driver", L"VXD", TraceOutput::Driver},
                                OutputText{"DriverLower", L"vxd", TraceOutput::Driver},
                                OutputText{"Com1", L"COM1", TraceOutput::Com1},
                                OutputText{"Com2Lower", L"com2", TraceOutput::Com2},
                                OutputText{"PipeMixed", L"Pipe", TraceOutput::Pipe},
                                OutputText{"File", L"FILE", TraceOutput::File},
                                OutputText{"SharedMemoryLower", L"sm", TraceOutput::SharedMemory},
                                OutputText{"DebuggerMixed", L"Dbg", TraceOutput::Debugger},
                                OutputText{"Engine", L"NorvTRACEENGINE", TraceOutput::Engine},
                                OutputText{"EngineUpper", L"NORVTRACEENGINE", TraceOutput::Engine},
                                OutputText{"None", L"NONE", TraceOutput::File},
                                OutputText{"Com3", L"COM3", TraceOutput::File},
                                OutputText{"Number", L"6", TraceOutput::File}));

struct SizeText
{
    std::string name;
    std::wstring text;
    std::int32_t size;

    friend void PrintTo(const SizeText& row, std::ostream* out) { *out << row.name; }
};

class SizeTexts : public TraceValuesTest, public testing::WithParamInterface<SizeText>
{
};

TEST_P(SizeTexts, CountWhenAboveZero)
{
    Set(L"Byte/File", GetParam().text);

    EXPECT_EQ(Read().bytesPerFile, GetParam().size);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, SizeTexts,
                         Values(SizeText{"Positive", L"5000", 5000}, SizeText{"One", L"1", 1},
                                SizeText{"Zero", L"0", 2'097'152}, SizeText{"Negative", L"-5", 2'097'152},
                                SizeText{"NoNumber", L"many", 2'097'152},
                                SizeText{"TooLarge", L"99999999999", 2'147'483'647}));

struct BaseRow
{
    std::string name;
    std::string path;
    std::string fileName;
    std::string base;

    friend void PrintTo(const BaseRow& row, std::ostream* out) { *out << row.name; }
};

class FileBases : public TraceValuesTest, public testing::WithParamInterface<BaseRow>
{
};

TEST_P(FileBases, AreRebuiltFromPathAndFileName)
{
    if (!GetParam().path.empty())
    {
        Set(L"Path", test::FromUtf8(GetParam().path));
    }
    if (!GetParam().fileName.empty())
    {
        Set(L"FileName", test::FromUtf8(GetParam().fileName));
    }

    EXPECT_EQ(Read().fileBase.view(), GetParam().base);
}

INSTANTIATE_TEST_SUITE_P(EveryCase, FileBases,
                         Values(BaseRow{"Both", "C:\\logs", "mine", "C:\\logs\\mine"},
                                BaseRow{"BackslashBehindThePath", "C:\\logs\\", "mine", "C:\\logs\\\\mine"},
                                BaseRow{"PathAlone", "C:\\logs", "", "C:\\logs\\NorvFile"},
                                BaseRow{"FileNameAlone", "", "mine", "C:\\Tmp\\mine"},
                                BaseRow{"Extension", "C:\\logs", "trace.log", "C:\\logs\\trace"},
                                BaseRow{"SeveralDots", "C:\\logs", "a.b.c", "C:\\logs\\a"},
                                BaseRow{"NothingAheadOfTheDot", "C:\\logs", ".log", "C:\\logs\\NorvFile"},
                                BaseRow{"DotInThePath", "C:\\logs.d", "x", "C:\\logs.d\\x"},
                                BaseRow{"Neither", "", "", "C:\\TMP\\NorvFILE"}));

} // namespace

} // namespace norvepa
