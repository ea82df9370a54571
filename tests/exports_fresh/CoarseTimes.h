#pragma once

// While the object lives, a module sees the times of files in whole pairs of seconds, as the coarsest of file
// systems keep them: what changes twice within two seconds has changed once by its times. Only what the
// module asks by handle counts.

#include "support/ImportHook.h"

namespace norvepa::test
{

class CoarseTimes
{
public:
    explicit CoarseTimes(HMODULE module);

private:
    ImportHook m_hook;
};

} // namespace norvepa::test
