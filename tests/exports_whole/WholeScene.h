#pragma once

// A store with our device and our name, which processes and threads change while others read it.
//
// By the environment the tests become long: NORV_WHOLE_SECONDS is how long each one reads and writes,
// NORV_WHOLE_KILLS how many writers each of those that kill them kills, and NORV_WHOLE_SEED is what their
// moments are drawn by.

#include "exports_whole/Tally.h"
#include "support/LoadedLibrary.h"
#include "support/StoreRoots.h"

#include <chrono>
#include <gmock/gmock.h>
#include <string>

namespace norvepa::test
{

class WholeScene : public testing::Test
{
protected:
    WholeScene();
    ~WholeScene() override;

    [[nodiscard]] static std::chrono::seconds Span();

    // What our two files say now: that of one text or the other, and nothing else.
    void ExpectDeviceOfOneText() const;
    void ExpectNameOfOneText() const;

    // That there were answers, all of them right; who reads the test's output is told how many.
    static void ExpectAllRight(const std::string& who, const Tally& tally);

    StoreRoots roots;
    Exports library;
};

} // namespace norvepa::test
