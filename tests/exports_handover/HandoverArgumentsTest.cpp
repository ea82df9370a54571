#include "support/LoadedLibrary.h"
#include "support/StoreRoots.h"

#include <gmock/gmock.h>

namespace norvepa::test
{
namespace
{

TEST(HandoverArguments, OfADriverReadAreTestedAheadOfAnyFile)
{
    const StoreRoots roots;
    const Exports library;
    std::uint8_t* records = nullptr;
    std::uint32_t length = 7;

    EXPECT_EQ(library.norvDriverReadLogDevice(L"", &records, &length), PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(records, nullptr);
    EXPECT_EQ(length, 7U);
}

} // namespace
} // namespace norvepa::test
