#pragma once

// Runs a body on several threads that begin at one moment, and returns when all have ended. Each is told its
// number, from 0 on. The threads have no COM.

#include <functional>

namespace norvepa::test
{

void AllAtOnce(int threads, const std::function<void(int thread)>& body);

} // namespace norvepa::test
