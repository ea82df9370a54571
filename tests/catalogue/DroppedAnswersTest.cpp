#include "catalogue/CatalogueScene.h"
#include "meta/cEpaBlCache.h"

#include <memory>

namespace norvepa::test
{
namespace
{

using enum AnswerKind;

// What is dropped is freed by those who come later, but only where they don't borrow anything meanwhile.
class DroppedAnswers : public CatalogueScene
{
protected:
    DroppedAnswers()
    {
        static_cast<void>(File(
            XmlFile(L"Profile", {},
                    XmlContent()
                        .Element(L"Install", XmlContent().Text(L"a", L"1").Text(L"b", L"2"))
                        .Element(L"Constraints",
                                 XmlContent().ParamSection(
                                     L"p", XmlContent().Element(L"min", L"1").ValueCollection({L"1"}))))));
    }

    // An answer that the cache holds alone.
    [[nodiscard]] static std::weak_ptr<const Answer> Stored(const std::wstring& file)
    {
        auto answer = std::make_shared<const Answer>(Answer{L"a;1"});
        const std::weak_ptr<const Answer> stored = answer;
        EXPECT_EQ(MetaCacheStore(file, {}, WholeFile, std::move(answer)), PGSP_OK);
        return stored;
    }

    // One that was dropped while it was read.
    [[nodiscard]] std::weak_ptr<const Answer> Dropped() const
    {
        const std::wstring other = folder() / L"other.xml";
        const std::weak_ptr<const Answer> stored = Stored(other);
        const auto reader = MetaCacheFind(other, {}, WholeFile);
        EXPECT_EQ(MetaCacheDropFile(other), PGSP_OK);
        EXPECT_FALSE(stored.expired());
        return stored;
    }

    const std::wstring m_file = folder() / L"file";
};

TEST_F(DroppedAnswers, AreFreedByTheFirstQuestionToASection)
{
    const std::weak_ptr<const Answer> dropped = Dropped();

    EXPECT_EQ(PairOf([&](const PairBuffers& pair) {
                  return NorvXMLEnumParamSection(m_file.c_str(), L"p", 0, pair);
              }),
              Found(L"min", L"1"));

    EXPECT_TRUE(dropped.expired());
}

TEST_F(DroppedAnswers, AreFreedByTheFirstQuestionToAValueList)
{
    const std::weak_ptr<const Answer> dropped = Dropped();

    std::wstring item;
    EXPECT_EQ(NorvXMLEnumValueCollectionRaw(m_file.c_str(), L"Constraints\\p", 0, &item), PGSP_OK);

    EXPECT_TRUE(dropped.expired());
}

TEST_F(DroppedAnswers, AreFreedByTheFirstQuestionToAllValues)
{
    const std::weak_ptr<const Answer> dropped = Dropped();

    EXPECT_EQ(PairOf([&](const PairBuffers& pair) { return NorvXMLEnumValue(m_file.c_str(), 1, pair); }),
              Found(L"b", L"2"));

    EXPECT_TRUE(dropped.expired());
}

TEST_F(DroppedAnswers, AreFreedAtOnceByTheEnumerationThatDropsThem)
{
    const std::weak_ptr<const Answer> stored = Stored(m_file + L".xml");

    EXPECT_EQ(PairOf([&](const PairBuffers& pair) { return NorvXMLEnumValue(m_file.c_str(), 1, pair); }),
              NoPair());

    EXPECT_TRUE(stored.expired());
}

} // namespace
} // namespace norvepa::test
