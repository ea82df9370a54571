#include "catalogue/CatalogueScene.h"
#include "meta/cMetaFiles.h"

namespace norvepa::test
{
namespace
{

// The start of an enumeration refreshes a file's answers, and its end forgets the document.
class EnumValueRefresh : public CatalogueScene
{
protected:
    void Write(std::wstring_view value) const
    {
        static_cast<void>(File(
            XmlFile(L"Profile", {},
                    XmlContent()
                        .Element(L"Install", XmlContent().Text(L"a", value).Text(L"b", value))
                        .Element(L"Constraints",
                                 XmlContent().ParamSection(L"p", XmlContent().Element(L"default", value))))));
    }

    [[nodiscard]] PairAnswer Value(std::uint32_t index) const
    {
        return PairOf([&](const PairBuffers& pair) { return NorvXMLEnumValue(m_file.c_str(), index, pair); });
    }

    [[nodiscard]] PairAnswer OfSection() const
    {
        return PairOf(
            [&](const PairBuffers& pair) { return NorvXMLEnumParamSection(m_file.c_str(), L"p", 0, pair); });
    }

    const std::wstring m_file = folder() / L"file";
};

TEST_F(EnumValueRefresh, ItsEndMakesTheNextQueryReadTheFile)
{
    Write(L"old");
    ASSERT_EQ(Value(0), Found(L"a", L"old"));
    ASSERT_EQ(Value(1), Found(L"b", L"old"));
    Write(L"new");

    ASSERT_EQ(Value(1), Found(L"b", L"old"));
    ASSERT_EQ(Value(2), NoPair());

    EXPECT_EQ(Value(1), Found(L"b", L"new"));
    EXPECT_EQ(OfSection(), Found(L"default", L"new"));
}

TEST_F(EnumValueRefresh, AnyIndexPastTheEndIsTheEnd)
{
    Write(L"old");
    ASSERT_EQ(Value(0), Found(L"a", L"old"));
    Write(L"new");

    ASSERT_EQ(Value(0xFFFFFFFF), NoPair());

    EXPECT_EQ(Value(0), Found(L"a", L"new"));
}

TEST_F(EnumValueRefresh, AnIndexPastTheEndAsTheFirstCallKeepsTheDocument)
{
    Write(L"old");
    ASSERT_EQ(Value(2), NoPair());
    Write(L"new");

    EXPECT_EQ(Value(0), Found(L"a", L"old"));
}

TEST_F(EnumValueRefresh, ItsStartDoesNotReadTheFile)
{
    Write(L"old");
    ASSERT_EQ(Value(0), Found(L"a", L"old"));
    Write(L"new");

    EXPECT_EQ(Value(0), Found(L"a", L"old"));
}

TEST_F(EnumValueRefresh, ItsStartDropsTheAnswersOfAllKinds)
{
    Write(L"old");
    ASSERT_EQ(OfSection(), Found(L"default", L"old"));
    Write(L"new");
    MetaDropDocument(m_file);
    ASSERT_EQ(OfSection(), Found(L"default", L"old"));

    ASSERT_EQ(Value(1), Found(L"b", L"new"));
    ASSERT_EQ(OfSection(), Found(L"default", L"old"));
    ASSERT_EQ(Value(0), Found(L"a", L"new"));

    EXPECT_EQ(OfSection(), Found(L"default", L"new"));
}

// The start drops what was cached, so that the end isn't recognised as one.
TEST_F(EnumValueRefresh, AFileWithoutPairsKeepsItsDocument)
{
    static_cast<void>(File(XmlFile(L"Profile", {}, XmlContent())));
    ASSERT_EQ(Value(0), NoPair());
    ASSERT_EQ(Value(1), NoPair());
    Write(L"new");

    EXPECT_EQ(Value(0), NoPair());
}

TEST_F(EnumValueRefresh, ItsEndForgetsNoOtherFile)
{
    Write(L"old");
    const std::wstring other = File(
        XmlFile(L"Profile", {}, XmlContent().Element(L"Install", XmlContent().Text(L"a", L"old"))), L"other");
    const auto valueOfOther = [&] {
        return PairOf([&](const PairBuffers& pair) { return NorvXMLEnumValue(other.c_str(), 0, pair); });
    };
    ASSERT_EQ(valueOfOther(), Found(L"a", L"old"));
    ASSERT_EQ(Value(0), Found(L"a", L"old"));
    WriteBytes(other + L".xml", XmlFile(L"Profile", {}, XmlContent()));

    ASSERT_EQ(Value(2), NoPair());

    EXPECT_EQ(valueOfOther(), Found(L"a", L"old"));
}

TEST_F(EnumValueRefresh, ATooShortBufferAtTheLastPairIsNotTheEnd)
{
    Write(L"old");
    ASSERT_EQ(Value(0), Found(L"a", L"old"));
    Write(L"new");
    wchar_t name[10] = L"";
    wchar_t value[1] = L"";
    std::uint32_t nameLength = 10;
    std::uint32_t valueLength = 1;

    ASSERT_EQ(NorvXMLEnumValue(m_file.c_str(), 1, {name, &nameLength, value, &valueLength}),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(Value(1), Found(L"b", L"old"));
}

} // namespace
} // namespace norvepa::test
