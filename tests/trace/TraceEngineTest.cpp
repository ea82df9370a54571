#include "trace/TraceEngine.h"

#include "EventLogEntries.h"
#include "TracePeer.h"
#include "TraceScene.h"
#include "support/ImportHook.h"
#include "support/ShellFolders.h"

#include <windows.h>

#include <filesystem>
#include <gmock/gmock.h>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace norvepa
{

namespace
{

using test::EventLogEntries;
using test::TraceScene;
using testing::ElementsAre;
using testing::IsEmpty;

class TraceEngineTest : public testing::Test
{
protected:
    TraceEngineTest()
    {
        test::MakeFolders(commonFiles());
        test::SetCommonProgramFiles(commonFiles());
        SetEnvironmentVariableW(L"NORV_TEST_ENGINE_LOG", log().c_str());
        SetResults(L"0", L"0");
    }

    // The stand-in, whole or with an export missing, where the library is looked for.
    void Install(const std::wstring& variant) const
    {
        std::wstring program(1024, L'\0');
        program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
        const auto from =
            std::filesystem::path(program).replace_filename(L"trace_engine_" + variant + L".dll");
        test::MakeFolders(std::filesystem::path(libraryPath()).parent_path().wstring());
        std::filesystem::copy_file(from, libraryPath());
    }

    static void SetResults(const wchar_t* open, const wchar_t* write)
    {
        SetEnvironmentVariableW(L"NORV_TEST_ENGINE_OPEN", open);
        SetEnvironmentVariableW(L"NORV_TEST_ENGINE_WRITE", write);
    }

    [[nodiscard]] std::vector<std::string> calls() const
    {
        std::vector<std::string> all;
        std::istringstream content(test::Exists(log()) ? test::ReadBytes(log()) : "");
        for (std::string line; std::getline(content, line);)
        {
            all.push_back(line.back() == '\r' ? line.substr(0, line.size() - 1) : line);
        }
        return all;
    }

    [[nodiscard]] std::string openCall() const
    {
        return "open Norvsdd_TraceMetaInfo.xml,Norvsdd_TraceSettings.xml," + test::ToUtf8(commonFiles()) +
               "\\Marvolt\\norvdos\\meta\\trace\\Settings\\,0,1.0.0.0";
    }

    [[nodiscard]] std::wstring commonFiles() const { return m_scene.folder() / L"common"; }
    [[nodiscard]] std::wstring libraryPath() const
    {
        return commonFiles() + L"\\Marvolt\\Automation\\TraceEngine\\bin\\NorvTraceEngine64X.dll";
    }
    [[nodiscard]] TraceScene& scene() { return m_scene; }

private:
    [[nodiscard]] std::wstring log() const { return m_scene.folder() / L"calls"; }

    TraceScene m_scene;
};

TEST_F(TraceEngineTest, IsOpenedWithTheFirstLine)
{
    Install(L"whole");
    auto engine = TraceEngine::Load();
    ASSERT_TRUE(engine);
    EXPECT_THAT(calls(), IsEmpty());

    engine->Write("one");
    engine->Write("two!");

    EXPECT_THAT(calls(),
                ElementsAre(openCall(), "write 4711,0,1,00470300,one", "write 4711,0,1,00470400,two!"));
}

TEST_F(TraceEngineTest, PrefixHasTheLengthAs16Bits)
{
    Install(L"whole");
    auto engine = TraceEngine::Load();
    const std::string line(418, 'x');

    engine->Write(line);

    EXPECT_THAT(calls(), ElementsAre(openCall(), "write 4711,0,1,0047a201," + line));
}

TEST_F(TraceEngineTest, MissingLibraryIsToldToTheEventLog)
{
    const EventLogEntries log;

    EXPECT_FALSE(TraceEngine::Load());

    EXPECT_THAT(EventLogEntries::told(),
                ElementsAre("register Norvotrc.c",
                            "report 42 1 1 c0001400 [" + test::ToUtf8(libraryPath()) + "]", "deregister 42"));
}

struct MissingExport
{
    std::wstring variant;
    std::string name;

    friend void PrintTo(const MissingExport& row, std::ostream* out) { *out << row.name; }
};

class TraceEngineExport : public TraceEngineTest, public testing::WithParamInterface<MissingExport>
{
};

TEST_P(TraceEngineExport, ThatIsMissingIsToldToTheEventLog)
{
    const EventLogEntries log;
    Install(GetParam().variant);

    EXPECT_FALSE(TraceEngine::Load());

    EXPECT_THAT(EventLogEntries::told(),
                ElementsAre("register Norvotrc.c", "report 42 1 1 c0001401 [" + GetParam().name + "]",
                            "deregister 42"));
}

// Those that are never called must be there too.
INSTANTIATE_TEST_SUITE_P(EveryExport, TraceEngineExport,
                         testing::Values(MissingExport{L"without_open", "TraceOpenA"},
                                         MissingExport{L"without_write", "TraceWrite"},
                                         MissingExport{L"without_command", "TraceCommand"},
                                         MissingExport{L"without_close", "TraceClose"}));

TEST_F(TraceEngineTest, FailedOpeningIsToldOnceAndTriedAgainWithTheNextLine)
{
    const EventLogEntries log;
    Install(L"whole");
    auto engine = TraceEngine::Load();
    SetResults(L"5", L"0");

    engine->Write("one");
    engine->Write("two");
    SetResults(L"0", L"0");
    engine->Write("three");

    EXPECT_THAT(calls(), ElementsAre(openCall(), openCall(), openCall(), "write 4711,0,1,00470500,three"));
    EXPECT_THAT(
        EventLogEntries::told(),
        ElementsAre("register Norvotrc.c", "report 42 1 1 80001402 [TraceOpenA] [one]", "deregister 42"));
}

TEST_F(TraceEngineTest, FailedWriteIsToldOnce)
{
    const EventLogEntries log;
    Install(L"whole");
    auto engine = TraceEngine::Load();
    SetResults(L"0", L"-1");

    engine->Write("one");
    engine->Write("two");

    EXPECT_EQ(calls().size(), 3u);
    EXPECT_THAT(
        EventLogEntries::told(),
        ElementsAre("register Norvotrc.c", "report 42 1 1 80001402 [TraceWrite] [one]", "deregister 42"));
}

TEST_F(TraceEngineTest, FailuresOfBothCallsAreToldOnceTogether)
{
    const EventLogEntries log;
    Install(L"whole");
    auto engine = TraceEngine::Load();
    SetResults(L"5", L"6");

    engine->Write("one");
    SetResults(L"0", L"6");
    engine->Write("two");

    EXPECT_THAT(calls(), ElementsAre(openCall(), openCall(), "write 4711,0,1,00470300,two"));
    EXPECT_THAT(
        EventLogEntries::told(),
        ElementsAre("register Norvotrc.c", "report 42 1 1 80001402 [TraceOpenA] [one]", "deregister 42"));
}

TEST_F(TraceEngineTest, UnknownCommonFolderLeavesTheEngineAlone)
{
    const EventLogEntries log;
    test::SetCommonProgramFiles(commonFiles() + L"\\nowhere");

    EXPECT_FALSE(TraceEngine::Load());

    EXPECT_THAT(EventLogEntries::told(),
                ElementsAre("register Norvotrc.c", "report 42 1 1 c0001400 []", "deregister 42"));
}

HANDLE WINAPI NoEventSource(const wchar_t*, const wchar_t*)
{
    return nullptr;
}

TEST_F(TraceEngineTest, EventLogThatCannotBeReachedStaysWithoutTheEntry)
{
    const EventLogEntries log;
    const test::ImportHook unreachable("RegisterEventSourceW", NoEventSource);

    EXPECT_FALSE(TraceEngine::Load());

    EXPECT_THAT(EventLogEntries::told(), IsEmpty());
}

TEST_F(TraceEngineTest, LinesReachItThroughTheOutputOfItsName)
{
    Install(L"whole");
    TraceScene::Set(L"Output", L"NorvTRACEENGINE");
    TraceScene::Set(L"Level", L"8");
    TraceScene::Set(L"Format", L"TEXT");
    {
        test::TracePeer peer(scene().registry());
        peer.Ask("init");
        EXPECT_THAT(calls(), IsEmpty());

        peer.Ask("trace 8 line");
    }

    EXPECT_THAT(calls(), ElementsAre(openCall(), "write 4711,0,1,00470c00,Peer:  line "));
}

TEST_F(TraceEngineTest, StaysOpenWhenTheSettingsAreReadAnew)
{
    Install(L"whole");
    TraceScene::Set(L"Output", L"NorvTRACEENGINE");
    TraceScene::Set(L"Level", L"8");
    TraceScene::Set(L"Format", L"TEXT");
    test::TracePeer peer(scene().registry());
    peer.Ask("init");
    peer.Ask("trace 8 one");

    peer.Ask("init");
    peer.Ask("trace 8 two");

    EXPECT_THAT(calls(), ElementsAre(openCall(), "write 4711,0,1,00470b00,Peer:  one ",
                                     "write 4711,0,1,00470b00,Peer:  two "));
}

TEST_F(TraceEngineTest, WithoutTheLibraryTheOutputStaysSilent)
{
    TraceScene::Set(L"Output", L"NorvTRACEENGINE");
    TraceScene::Set(L"Level", L"8");
    test::TracePeer peer(scene().registry());

    peer.Ask("init");
    EXPECT_EQ(peer.Ask("trace 8 line"), "done");

    EXPECT_THAT(scene().lines(), IsEmpty());
    EXPECT_THAT(calls(), IsEmpty());
}

} // namespace

} // namespace norvepa
