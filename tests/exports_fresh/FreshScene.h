#pragma once

// A file for each kind of question, which is old enough to be believed and has been asked about more than
// once when a test begins to change it. Whatever the library has kept of it until then, an answer is what the
// file says now.
//
// The files of a suite are made together and grow old together: a test has its own by its name.

#include "Place.h"
#include "Subject.h"

#include <gmock/gmock.h>
#include <memory>

namespace norvepa::test
{

class FreshScene : public testing::TestWithParam<Kind>
{
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    void SetUp() override;
    void TearDown() override;

    const Kind& kind = KindOf(testing::UnitTest::GetInstance()->current_test_info()->name());
    Place& place = *suitesPlace;
    const Subject subject{place, kind, ObjectOfThisTest()};

private:
    static std::unique_ptr<Place> suitesPlace;
};

[[nodiscard]] inline std::string NameOfKind(const testing::TestParamInfo<Kind>& info)
{
    return info.param.name;
}

} // namespace norvepa::test
