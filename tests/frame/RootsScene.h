#pragma once

// Both roots, named by a registry of this test's own, and how often it was asked for them.

#include "support/ImportHook.h"
#include "support/RedirectedRegistry.h"

#include <gtest/gtest.h>
#include <string>

namespace norvepa::test
{

class RootsScene : public testing::Test
{
protected:
    RootsScene(); // the roots lie in C:\Before

    // Below the folder, and that they are found there.
    static void SetRoots(const std::wstring& folder);
    static void ExpectRoots(const std::wstring& folder);

    // Since the beginning.
    [[nodiscard]] static int timesKeyWasOpened();
    [[nodiscard]] static int timesDataWasAskedFor();
    [[nodiscard]] static int timesProgramWasAskedFor();

private:
    RedirectedRegistry m_registry;
    ImportHook m_open;
    ImportHook m_ask;
};

} // namespace norvepa::test
