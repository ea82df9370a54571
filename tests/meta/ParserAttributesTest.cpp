#include "meta/FailingReader.h"
#include "meta/MetaScene.h"

namespace norvepa::test
{
namespace
{

constexpr char Attributes[] = "<Profile Name='a' Param='b' Alias='c'><min>1</min></Profile>";

class ParserAttributes : public MetaScene, public testing::WithParamInterface<AttributePart>
{
};

TEST_P(ParserAttributes, EndAtTheOneThatTheEngineFailsToTell)
{
    const FailingReader reader(GetParam(), L"Param");

    EXPECT_EQ(Document(Attributes), R"(Profile{Name=a}[min="1"])");
}

TEST_P(ParserAttributes, AreNoneWhenItFailsAtTheFirst)
{
    const FailingReader reader(GetParam(), L"Name");

    EXPECT_EQ(Document(Attributes), R"(Profile[min="1"])");
}

TEST_P(ParserAttributes, AreAllThereWhenItFailsAtNone)
{
    const FailingReader reader(GetParam(), L"another");

    EXPECT_EQ(Document(Attributes), R"(Profile{Alias=c Name=a Param=b}[min="1"])");
}

INSTANTIATE_TEST_SUITE_P(EachPart, ParserAttributes,
                         testing::Values(AttributePart::Prefix, AttributePart::Name, AttributePart::Value));

} // namespace
} // namespace norvepa::test
