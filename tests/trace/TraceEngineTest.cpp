#include "trace/TraceEngine.h"

#include "EventLogEntries.h"
#include "InstalledEngine.h"
#include "TracePeer.h"
#include "TraceScene.h"
#include "support/ImportHook.h"
#include "support/ShellFolders.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <ostream>
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
    void Install(const std::wstring& variant) const { m_engine.Install(variant); }

    static void SetResults(const wchar_t* open, const wchar_t* write)
    {
        test::InstalledEngine::SetResults(open, write);
    }

    [[nodiscard]] std::vector<std::string> calls() const { return m_engine.calls(); }

    [[nodiscard]] std::string openCall() const
    {
        return "open Norvsdd_TraceMetaInfo.xml,Norvsdd_TraceSettings.xml," + test::ToUtf8(commonFiles()) +
               "\\Marvolt\\norvdos\\meta\\trace\\Settings\\,0,1.0.0.0";
    }

    [[nodiscard]] std::wstring commonFiles() const { return m_engine.commonFiles(); }
    [[nodiscard]] std::wstring libraryPath() const { return m_engine.libraryPath(); }
    [[nodiscard]] TraceScene& scene() { return m_scene; }

private:
    TraceScene m_scene;
    test::InstalledEngine m_engine{m_scene.folder()};
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
