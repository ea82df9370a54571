#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"

namespace norvepa::test
{
namespace
{

constexpr Result Bad = PGSP_ERR_INVALID_PARAMETERS;
constexpr Result None = PGSP_ERR_PARAM_NOT_FOUND;

// Paths are tested with all queries, buffers with those that have them.
class QueryArguments : public CatalogueScene
{
protected:
    void TearDown() override { EXPECT_EQ(m_text, Before); }

    const std::wstring m_file = File(FileAnswering(L"yes"));
    const wchar_t* const m_path = m_file.c_str();
    std::wstring m_text{Before};
    std::wstring m_other{Before};
    std::wstring* const m_noText = nullptr;
};

TEST_F(QueryArguments, ElementGetAttributeNeedsAttributeAndOutput)
{
    EXPECT_EQ(NorvXMLElementGetAttribute(m_path, nullptr, &m_text), Bad);
    EXPECT_EQ(NorvXMLElementGetAttribute(m_path, L"CP_TYPE", m_noText), Bad);
}

TEST_F(QueryArguments, ProtocolGetValueNeedsItsOutputOnly)
{
    EXPECT_EQ(NorvXMLProtocolGetValue(m_path, L"p", L"default", m_noText), Bad);
    EXPECT_EQ(NorvXMLProtocolGetValue(m_path, nullptr, L"default", &m_text), None);
    EXPECT_EQ(NorvXMLProtocolGetValue(m_path, L"p", nullptr, &m_text), None);
}

TEST_F(QueryArguments, ProfileGetValueNeedsItsOutputOnly)
{
    EXPECT_EQ(NorvXMLProfileGetValue(m_path, L"p", L"v", L"n", m_noText), Bad);
    EXPECT_EQ(NorvXMLProfileGetValue(m_path, nullptr, L"w", L"n", &m_text), None);
    EXPECT_EQ(NorvXMLProfileGetValue(m_path, L"p", nullptr, L"n", &m_text), None);
    EXPECT_EQ(NorvXMLProfileGetValue(m_path, L"p", L"v", nullptr, &m_text), None);
}

TEST_F(QueryArguments, SubProfileGetValueNeedsItsOutputOnly)
{
    EXPECT_EQ(NorvXMLSubProfileGetValue(m_path, L"p", L"v", L"sp", L"sv", L"n", m_noText), Bad);
    EXPECT_EQ(NorvXMLSubProfileGetValue(m_path, nullptr, L"v", L"sp", L"sv", L"n", &m_text), None);
    EXPECT_EQ(NorvXMLSubProfileGetValue(m_path, L"p", nullptr, L"sp", L"sv", L"n", &m_text), None);
    EXPECT_EQ(NorvXMLSubProfileGetValue(m_path, L"p", L"v", nullptr, L"sv", L"n", &m_text), None);
    EXPECT_EQ(NorvXMLSubProfileGetValue(m_path, L"p", L"v", L"sp", nullptr, L"n", &m_text), None);
    EXPECT_EQ(NorvXMLSubProfileGetValue(m_path, L"p", L"v", L"sp", L"sv", nullptr, &m_text), None);
}

TEST_F(QueryArguments, ProtocolGetValueRawNeedsParameterPathAndOutput)
{
    EXPECT_EQ(NorvXMLProtocolGetValueRaw(m_path, nullptr, L"n", &m_text), Bad);
    EXPECT_EQ(NorvXMLProtocolGetValueRaw(m_path, L"Constraints\\p\\v", L"n", m_noText), Bad);
    EXPECT_EQ(NorvXMLProtocolGetValueRaw(m_path, L"Constraints\\p\\v", nullptr, &m_text), None);
}

TEST_F(QueryArguments, KeyTestsNeedAKey)
{
    EXPECT_EQ(NorvXMLBoardKeyExists(m_path, nullptr, 0), Bad);
    EXPECT_EQ(NorvXMLProtocolKeyExists(m_path, nullptr, 0), Bad);
    EXPECT_EQ(NorvXMLTemplateKeyExists(m_path, nullptr, 0), Bad);
}

TEST_F(QueryArguments, GetConstraintNeedsItsOutputOnly)
{
    EXPECT_EQ(NorvXMLGetConstraint(m_path, L"p", L"default", m_noText), Bad);
    EXPECT_EQ(NorvXMLGetConstraint(m_path, nullptr, L"default", &m_other), None);
    EXPECT_EQ(NorvXMLGetConstraint(m_path, L"p", nullptr, &m_other), None);
}

TEST_F(QueryArguments, BaudratesNeedTheirOutputAndTheProfile)
{
    EXPECT_EQ(NorvXMLEnumBaudrate(m_path, 0, m_noText), Bad);
    EXPECT_EQ(NorvXMLEnumProfileBaudrate(m_path, L"DP", 0, m_noText), Bad);
    EXPECT_EQ(NorvXMLEnumProfileBaudrate(m_path, nullptr, 0, &m_text), Bad);
}

TEST_F(QueryArguments, CollectionsNeedAll)
{
    EXPECT_EQ(NorvXMLProfileCollectionExists(m_path, nullptr, L"yes"), Bad);
    EXPECT_EQ(NorvXMLProfileCollectionExists(m_path, L"p", nullptr), Bad);
    EXPECT_EQ(NorvXMLSubProfileCollectionExists(m_path, nullptr, L"v", L"sp", L"sv"), Bad);
    EXPECT_EQ(NorvXMLSubProfileCollectionExists(m_path, L"p", nullptr, L"sp", L"sv"), Bad);
    EXPECT_EQ(NorvXMLSubProfileCollectionExists(m_path, L"p", L"v", nullptr, L"sv"), Bad);
    EXPECT_EQ(NorvXMLSubProfileCollectionExists(m_path, L"p", L"v", L"sp", nullptr), Bad);
    EXPECT_EQ(NorvXMLGetParamDesc(m_path, nullptr, L"v", &m_text), Bad);
    EXPECT_EQ(NorvXMLGetParamDesc(m_path, L"p", nullptr, &m_text), Bad);
    EXPECT_EQ(NorvXMLGetParamDesc(m_path, L"p", L"v", m_noText), Bad);
}

TEST_F(QueryArguments, EnumValueCollectionRawNeedsKeyAndOutput)
{
    EXPECT_EQ(NorvXMLEnumValueCollectionRaw(m_path, nullptr, 0, &m_text), Bad);
    EXPECT_EQ(NorvXMLEnumValueCollectionRaw(m_path, L"Constraints\\p", 0, m_noText), Bad);
}

TEST_F(QueryArguments, EntriesOfASectionNeedItsParameter)
{
    const auto ofProtocol = [&](const PairBuffers& pair) {
        return NorvXMLEnumProtocolParameter(m_path, nullptr, 0, pair);
    };
    const auto ofBoard = [&](const PairBuffers& pair) {
        return NorvXMLEnumParamSection(m_path, nullptr, 0, pair);
    };

    EXPECT_EQ(PairOf(ofProtocol), NoPair(Bad));
    EXPECT_EQ(PairOf(ofBoard), NoPair(Bad));
}

TEST_F(QueryArguments, ProfilesNeedTheirOutputsOnly)
{
    constexpr Result noMore = PGSP_ERR_NO_MORE_ITEMS;
    EXPECT_EQ(NorvXMLEnumProfileValue(m_path, L"p", L"v", 0, nullptr, &m_text), Bad);
    EXPECT_EQ(NorvXMLEnumProfileValue(m_path, L"p", L"v", 0, &m_text, nullptr), Bad);
    EXPECT_EQ(NorvXMLEnumProfileValue(m_path, nullptr, L"v", 0, &m_text, &m_other), noMore);
    EXPECT_EQ(NorvXMLEnumProfileValue(m_path, L"p", nullptr, 0, &m_text, &m_other), noMore);
    EXPECT_EQ(NorvXMLEnumSubProfile(m_path, L"p", L"v", 0, nullptr), Bad);
    EXPECT_EQ(NorvXMLEnumSubProfile(m_path, nullptr, L"v", 0, &m_text), noMore);
    EXPECT_EQ(NorvXMLEnumSubProfile(m_path, L"p", nullptr, 0, &m_text), noMore);
}

TEST_F(QueryArguments, SubProfileValuesNeedTheirOutputsOnly)
{
    constexpr Result noMore = PGSP_ERR_NO_MORE_ITEMS;
    EXPECT_EQ(NorvXMLEnumSubProfileValue(m_path, L"p", L"v", L"sp", L"sv", 0, nullptr, &m_text), Bad);
    EXPECT_EQ(NorvXMLEnumSubProfileValue(m_path, L"p", L"v", L"sp", L"sv", 0, &m_text, nullptr), Bad);
    EXPECT_EQ(NorvXMLEnumSubProfileValue(m_path, L"q", nullptr, nullptr, nullptr, 0, &m_text, &m_other),
              noMore);
}

} // namespace
} // namespace norvepa::test
