#include "SharedCounter.h"
#include "TracePeer.h"
#include "TraceScene.h"

#include <gmock/gmock.h>

namespace norvepa
{

namespace
{

using test::SharedCounter;
using test::TracePeer;
using test::TraceScene;
using testing::ElementsAre;

TEST(TraceCounter, ThatCannotBeMadeIsToldToTheDebuggerAndTheMaskStillDecides)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("fail-mappings");

    peer.Ask("init");
    peer.Ask("trace 8 line");
    peer.Ask("trace 64 other");

    EXPECT_EQ(peer.Ask("debugger"), "ERROR: Can't create NorvTRC_SECTION, GetLastError()=8 \\n");
    EXPECT_THAT(scene.lines(), ElementsAre("Peer:  line "));
}

TEST(TraceCounter, ThatIsNeitherMadeNorFoundIsToldWithTheErrorOfItsMaking)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("refuse-mappings");

    peer.Ask("init");

    EXPECT_EQ(peer.Ask("debugger"), "ERROR: Can't create NorvTRC_SECTION, GetLastError()=5 \\n");
}

TEST(TraceCounter, ThatAnotherProcessMakesMeanwhileIsSharedWithIt)
{
    TraceScene scene;
    scene.TraceToFiles(L"8");
    TracePeer peer(scene.registry());
    peer.Ask("lose-counter-race");
    peer.Ask("init");
    TraceScene::Set(L"Level", L"64");

    SharedCounter().Bump();
    peer.Ask("trace 64 line");

    EXPECT_EQ(peer.Ask("debugger"), "");
    EXPECT_THAT(scene.lines(), ElementsAre("Peer:  line "));
}

} // namespace

} // namespace norvepa
