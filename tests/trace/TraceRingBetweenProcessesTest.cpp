#include "RingViewer.h"
#include "TracePeer.h"
#include "TraceScene.h"

#include <gtest/gtest.h>
#include <string>

namespace norvepa
{

namespace
{

using test::TracePeer;
using test::TraceScene;
using Viewer = test::RingViewer;

TEST(TraceRingBetweenProcesses, TwoProcessesWriteOneRing)
{
    TraceScene scene;
    TraceScene::Set(L"Output", L"SM");
    TraceScene::Set(L"sm_size", L"500");
    TraceScene::Set(L"Level", L"8");
    TraceScene::Set(L"Format", L"TEXT");
    TracePeer first(scene.registry());
    TracePeer second(scene.registry());

    first.Ask("init");
    second.Ask("init");
    first.Ask("trace 8 one");
    second.Ask("trace 8 two");
    first.Ask("trace 8 three");

    const Viewer viewer;
    const std::string expected = "Peer:  one \r\nPeer:  two \r\nPeer:  three \r\n";
    EXPECT_EQ(viewer.Data(expected.size()), expected);
    EXPECT_EQ(viewer.Word(4), 500u);
    EXPECT_EQ(viewer.Word(16), 2u);
}

TEST(TraceRingBetweenProcesses, ReadingTheSettingsAnewDoesNotAttachASecondTime)
{
    TraceScene scene;
    TraceScene::Set(L"Output", L"SM");
    TraceScene::Set(L"Level", L"8");
    TraceScene::Set(L"Format", L"TEXT");
    TracePeer peer(scene.registry());

    peer.Ask("init");
    TraceScene::Set(L"sm_size", L"500");
    peer.Ask("init");
    peer.Ask("trace 8 line");

    const Viewer viewer;
    EXPECT_EQ(viewer.Word(16), 1u);
    EXPECT_EQ(viewer.Word(4), 2'000'000u);
    EXPECT_EQ(viewer.Word(0), 14u);
}

TEST(TraceRingBetweenProcesses, RingStaysWhenTheSettingsGoOverToAnotherOutput)
{
    TraceScene scene;
    TraceScene::Set(L"Output", L"SM");
    TraceScene::Set(L"Level", L"8");
    TracePeer peer(scene.registry());
    peer.Ask("init");
    TraceScene::Set(L"Output", L"DBG");

    peer.Ask("init");

    EXPECT_EQ(Viewer().Word(4), 2'000'000u);
}

} // namespace

} // namespace norvepa
