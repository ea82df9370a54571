#include "store/ProvisionalFile.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace norvepa
{
namespace
{

using test::Exists;
using test::WriteBytes;

class AProvisionalFile : public testing::Test
{
protected:
    const test::TemporaryFolder folder;
    const std::wstring path = folder / L"Pumpe(temp).xml";
};

TEST_F(AProvisionalFile, StaysWhenTheScopeEnds)
{
    {
        const ProvisionalFile provisional(path);
        WriteBytes(path, "<x/>");
    }

    EXPECT_TRUE(Exists(path));
}

TEST_F(AProvisionalFile, IsRemovedWhenAnExceptionLeavesTheScope)
{
    const auto fail = [this] {
        const ProvisionalFile provisional(path);
        WriteBytes(path, "<x/>");
        throw std::runtime_error("half-way");
    };

    EXPECT_THROW(fail(), std::runtime_error);

    EXPECT_FALSE(Exists(path));
}

// As the copy of a read-only file is.
TEST_F(AProvisionalFile, IsRemovedThoughItIsReadOnly)
{
    const auto fail = [this] {
        const ProvisionalFile provisional(path);
        WriteBytes(path, "<x/>");
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
        throw std::runtime_error("half-way");
    };

    EXPECT_THROW(fail(), std::runtime_error);

    EXPECT_FALSE(Exists(path));
}

TEST_F(AProvisionalFile, NeedNotBeThereYet)
{
    const auto fail = [this] {
        const ProvisionalFile provisional(path);
        throw std::runtime_error("ahead of it");
    };

    EXPECT_THROW(fail(), std::runtime_error);
}

// What cleans up after an exception may itself make files.
TEST_F(AProvisionalFile, StaysWhenItsScopeEndsDuringAnotherException)
{
    struct Cleaner
    {
        const std::wstring& path;
        ~Cleaner()
        {
            const ProvisionalFile provisional(path);
            WriteBytes(path, "<x/>");
        }
    };

    try
    {
        const Cleaner cleaner{path};
        throw std::runtime_error("earlier");
    }
    catch (const std::runtime_error&)
    {
    }

    EXPECT_TRUE(Exists(path));
}

} // namespace
} // namespace norvepa
