#include "support/Norvctl.h"
#include "support/TraceLines.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace norvepa::test
{
namespace
{

using nlohmann::json;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// The settings counter, kept alive as by any traced process, and moved on in the end: every process then goes
// back to the settings that were in force before.
class KeptCounter
{
public:
    KeptCounter()
        : m_mapping(OpenOrCreate()),
          m_value(static_cast<LONG*>(MapViewOfFile(m_mapping, FILE_MAP_WRITE, 0, 0, sizeof(LONG))))
    {
        if (m_value == nullptr)
        {
            throw std::runtime_error("the settings counter can't be mapped");
        }
    }
    KeptCounter(const KeptCounter&) = delete;
    KeptCounter& operator=(const KeptCounter&) = delete;
    ~KeptCounter()
    {
        InterlockedIncrement(m_value);
        UnmapViewOfFile(m_value);
        CloseHandle(m_mapping);
    }

    [[nodiscard]] std::uint32_t Get() const
    {
        return static_cast<std::uint32_t>(InterlockedCompareExchange(m_value, 0, 0));
    }

private:
    // The one that a traced process has made refuses a creation, which wishes for all rights; and it may go
    // with that process between the two attempts.
    static HANDLE OpenOrCreate()
    {
        constexpr wchar_t Name[] = L"Global\\NorvTRACE_SECTION";
        HANDLE mapping = nullptr;
        for (int attempt = 0; mapping == nullptr && attempt < 100; ++attempt)
        {
            mapping = OpenFileMappingW(FILE_MAP_WRITE, FALSE, Name);
            if (mapping == nullptr)
            {
                mapping =
                    CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(LONG), Name);
            }
        }
        return mapping;
    }

    HANDLE m_mapping;
    LONG* m_value;
};

class NorvctlTrace : public Norvctl
{
protected:
    // Entries and exits in format TEXT, into a folder of this test's own.
    void SwitchOn() const
    {
        OutputOfNorvctl({L"trace", L"on", L"--level", L"0x88", L"--format", L"TEXT", L"--folder",
                         folder / L"trace", L"--file", L"Demo"});
    }

    [[nodiscard]] std::string Traced() const
    {
        const std::wstring file = folder / L"trace\\Demo1.TRC";
        return Exists(file) ? ReadBytes(file) : "";
    }

    KeptCounter counter; // outlives the settings, which are put back ahead of its last step
    MachineKey settings{TraceKey};
};

TEST_F(NorvctlTrace, IsOffWhereNothingIsSet)
{
    const ProgramEnd end = RunNorvctl({L"trace", L"status"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.output, "tracing is off\nsettings counter " + std::to_string(counter.Get()) + "\n");
}

TEST_F(NorvctlTrace, SwitchedOnIsSetInTheMachinesRegistry)
{
    const std::uint32_t before = counter.Get();

    const ProgramEnd end = RunNorvctl(
        {L"trace", L"on", L"--level", L"0x88", L"--format", L"SHORT", L"--folder", folder / L"neu\\tief"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(end.output, StartsWith("tracing is on\nsettings counter "));
    EXPECT_EQ(settings.Get(L"Level"), L"0x88");
    EXPECT_EQ(settings.Get(L"Format"), L"SHORT");
    EXPECT_EQ(settings.Get(L"Output"), L"FILE");
    EXPECT_EQ(settings.Get(L"Path"), folder / L"neu\\tief");
    EXPECT_EQ(settings.Get(L"FileName"), L"NorvFILE");
    EXPECT_TRUE(Exists(folder / L"neu\\tief"));
    EXPECT_NE(counter.Get(), before);
}

TEST_F(NorvctlTrace, ToTheDebuggerMakesNoFolder)
{
    OutputOfNorvctl({L"trace", L"on", L"--output", L"DBG", L"--folder", folder / L"neu"});

    EXPECT_EQ(settings.Get(L"Output"), L"DBG");
    EXPECT_FALSE(Exists(folder / L"neu"));
}

TEST_F(NorvctlTrace, StaysOffWhenTheFolderCannotBeMade)
{
    WriteBytes(folder / L"file", "");

    const ProgramEnd end = RunNorvctl({L"trace", L"on", L"--folder", folder / L"file\\below"});

    EXPECT_EQ(end.exitCode, 1U);
    EXPECT_EQ(end.output, "");
    EXPECT_THAT(end.error, HasSubstr("the folder of the trace files cannot be made"));
    EXPECT_EQ(settings.Get(L"Level"), L"");
}

TEST_F(NorvctlTrace, StatusAsJsonTellsEveryValue)
{
    SwitchOn();

    const json status = json::parse(OutputOfNorvctl({L"--json", L"trace", L"status"}));

    EXPECT_EQ(status.at("on"), true);
    EXPECT_EQ(status.at("counter"), counter.Get());
    EXPECT_EQ(status.at("values"), (json{{"Level", "0x88"},
                                         {"Format", "TEXT"},
                                         {"Output", "FILE"},
                                         {"Path", ToUtf8(folder / L"trace")},
                                         {"FileName", "Demo"}}));
}

TEST_F(NorvctlTrace, HasTheCallsOfLaterProcesses)
{
    SwitchOn();

    OutputOfNorvctl({L"name", L"get", L"Kessel#1", L"LogDevice"});

    EXPECT_EQ(Traced(), TraceLine("LogNameGetValueBL: ", ">> LogName = Kessel#1, Parameter = LogDevice") +
                            "\n" + TraceLine("LogNameGetValueBL: ", "<< return lRet = 0") + "\n");
}

TEST_F(NorvctlTrace, HasTheNextCallOfAProcessThatRunsAlready)
{
    RunningNorvctl watch({L"watch", L"LogNames", L"--count", L"1", L"--timeout", L"60"});
    EXPECT_THAT(watch.ReadLine(), EndsWith("watching LogNames"));

    SwitchOn();
    OutputOfNorvctl({L"name", L"create", L"Mischer"});
    EXPECT_EQ(watch.Finish().exitCode, 0U);

    // What the watch does last, in its own process.
    EXPECT_THAT(Traced(), HasSubstr("UnRegisterNotification:  >> UnRegisterNotification FolderName=LogNames  "
                                    "FileName=  EventName=Global\\norvctl.watch."));
}

TEST_F(NorvctlTrace, WarnsOfNoWatchThatIsNotThere)
{
    OutputOfNorvctl({L"trace", L"on", L"--level", L"16", L"--format", L"TEXT", L"--folder", folder / L"trace",
                     L"--file", L"Demo"});

    OutputOfNorvctl({L"name", L"create", L"Mischer"});

    EXPECT_THAT(Traced(), AllOf(HasSubstr("RegisterNotification: "), Not(HasSubstr("OpenEvent"))));
}

TEST_F(NorvctlTrace, SwitchedOffHasNoMore)
{
    SwitchOn();
    OutputOfNorvctl({L"name", L"get", L"Kessel#1", L"LogDevice"});
    const std::string before = Traced();

    const ProgramEnd end = RunNorvctl({L"trace", L"off"});
    OutputOfNorvctl({L"name", L"get", L"Kessel#1", L"LogDevice"});

    EXPECT_EQ(end.exitCode, 0U);
    EXPECT_THAT(end.output, StartsWith("tracing is off\nsettings counter "));
    EXPECT_THAT(before, HasSubstr("LogNameGetValueBL: "));
    EXPECT_EQ(Traced(), before);
}

TEST_F(NorvctlTrace, SwitchedOffTellsTheProcessesThatRun)
{
    SwitchOn();
    RunningNorvctl watch({L"watch", L"LogNames", L"--count", L"1", L"--timeout", L"60"});
    EXPECT_THAT(watch.ReadLine(), EndsWith("watching LogNames"));
    const std::string before = Traced();

    OutputOfNorvctl({L"trace", L"off"});
    OutputOfNorvctl({L"name", L"create", L"Mischer"});
    EXPECT_EQ(watch.Finish().exitCode, 0U);

    EXPECT_THAT(before, HasSubstr("RegisterNotification: "));
    EXPECT_EQ(Traced(), before);
}

} // namespace
} // namespace norvepa::test
