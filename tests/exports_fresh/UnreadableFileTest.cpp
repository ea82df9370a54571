#include "FreshScene.h"
#include "support/FileWriter.h"

namespace norvepa::test
{
namespace
{

// Told as a file that was never read would be, and forgotten as soon as it is mended.
class UnreadableFile : public FreshScene
{
protected:
    [[nodiscard]] std::size_t MarkIn(const std::string& bytes) const { return bytes.find(kind.mark); }

    // The bytes of a value, with an end tag ahead of it that ends nothing.
    [[nodiscard]] std::string Broken(const Value& value) const
    {
        std::string bytes = subject.Bytes(value);
        return bytes.replace(MarkIn(bytes), 2, "</");
    }
};

TEST_P(UnreadableFile, IsToldWhileAStrangerHoldsIt)
{
    place.Elsewhere("hold", {subject.path()});
    EXPECT_EQ(subject.Ask(), kind.held);
    EXPECT_EQ(subject.Ask(), kind.held);

    place.Elsewhere("release");
    EXPECT_EQ(subject.Ask(), kind.before.answer);
}

TEST_P(UnreadableFile, IsToldAsLongAsItIsEmpty)
{
    FileWriter(subject.path()).SetLength(0);
    EXPECT_EQ(subject.Ask(), kind.malformed);

    FileWriter(subject.path()).Write(subject.Bytes(kind.after));
    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

TEST_P(UnreadableFile, IsToldAsLongAsItIsCutOffInTheMiddle)
{
    FileWriter(subject.path()).SetLength(static_cast<std::int64_t>(MarkIn(subject.Bytes(kind.before))));
    EXPECT_EQ(subject.Ask(), kind.malformed);

    FileWriter(subject.path()).Write(subject.Bytes(kind.after));
    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

TEST_P(UnreadableFile, IsToldAsLongAsItIsBroken)
{
    FileWriter(subject.path()).Write(Broken(kind.before));
    EXPECT_EQ(subject.Ask(), kind.malformed);

    FileWriter(subject.path()).Write(subject.Bytes(kind.before));
    EXPECT_EQ(subject.Ask(), kind.before.answer);
}

TEST_P(UnreadableFile, IsToldAsLongAsItIsMissing)
{
    ASSERT_TRUE(DeleteFileW(subject.path().c_str()));
    EXPECT_EQ(subject.Ask(), kind.missing);

    subject.Write(kind.after);
    EXPECT_EQ(subject.Ask(), kind.after.answer);
}

INSTANTIATE_TEST_SUITE_P(Each, UnreadableFile, testing::ValuesIn(Kinds()), NameOfKind);

} // namespace
} // namespace norvepa::test
