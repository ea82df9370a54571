#pragma once

// A second process that traces. Its commands: "init", "init-secured", "trace LEVEL TEXT", "lock", "unlock",
// "mask", "debugger", "note-mutex", "mutex", "fail-mutex", "fail-mappings", "lose-counter-race".

#include "support/Peer.h"

namespace norvepa::test
{

class TracePeer : public Peer
{
public:
    explicit TracePeer(const RedirectedRegistry& registry) : Peer(L"trace_peer.exe", registry) {}
};

} // namespace norvepa::test
