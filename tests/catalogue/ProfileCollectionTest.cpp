#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

constexpr Result NotThere = PGSP_ERR_PARAM_NOT_FOUND;

// Whether a value stands in a collection, and what is said of it there.
class ProfileCollection : public CatalogueScene
{
protected:
    [[nodiscard]] static Result Exists(const std::wstring& file, const wchar_t* parameter,
                                       const wchar_t* value)
    {
        return NorvXMLProfileCollectionExists(file.c_str(), parameter, value);
    }

    [[nodiscard]] static Result SubExists(const std::wstring& file, const wchar_t* value,
                                          const wchar_t* subParameter, const wchar_t* subValue)
    {
        return NorvXMLSubProfileCollectionExists(file.c_str(), L"p", value, subParameter, subValue);
    }

    [[nodiscard]] static TextAnswer Description(const std::wstring& file, const wchar_t* value)
    {
        return TextOf([&](auto* out) { return NorvXMLGetParamDesc(file.c_str(), L"p", value, out); });
    }
};

TEST_F(ProfileCollection, HoldsTheTextsOfItsValues)
{
    const std::wstring file = File(
        WithConstraints(XmlContent().ParamSection(L"p", XmlContent().ValueCollection({L"DP", L"Standard"}))));

    EXPECT_EQ(Exists(file, L"p", L"DP"), PGSP_OK);
    EXPECT_EQ(Exists(file, L"P", L"STANDARD"), PGSP_OK);
    EXPECT_EQ(Exists(file, L"p", L"FMS"), NotThere);
    EXPECT_EQ(Exists(file, L"p", L""), NotThere);
    EXPECT_EQ(Exists(file, L"q", L"DP"), NotThere);
}

TEST_F(ProfileCollection, CountsOnlyWhatStandsAheadOfTheFirstSlash)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"p", XmlContent().ValueCollection({L"DP/fast/12000000", L"/nothing ahead"}))));

    EXPECT_EQ(Exists(file, L"p", L"dp"), PGSP_OK);
    EXPECT_EQ(Exists(file, L"p", L""), PGSP_OK);
    EXPECT_EQ(Exists(file, L"p", L"DP/fast/12000000"), NotThere);
    EXPECT_EQ(Exists(file, L"p", L"DP/"), NotThere);
    EXPECT_EQ(Exists(file, L"p", L"fast"), NotThere);
}

TEST_F(ProfileCollection, DoesNotHoldTheSectionsOfItsValues)
{
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"p", Values(XmlContent().ParamSection(L"DP", XmlContent())))));

    EXPECT_EQ(Exists(file, L"p", L"DP"), NotThere);
}

TEST_F(ProfileCollection, IsTheNearestBelowTheParameter)
{
    const std::wstring file = File(WithConstraints(
        XmlContent()
            .ParamSection(L"other", XmlContent().ValueCollection({L"1"}))
            .ParamSection(L"p", XmlContent().Element(L"option", XmlContent().ValueCollection({L"2"})))));

    EXPECT_EQ(Exists(file, L"p", L"2"), PGSP_OK);
    EXPECT_EQ(Exists(file, L"p", L"1"), NotThere);
}

TEST_F(ProfileCollection, ASubValueIsASectionAtAnyDepth)
{
    const XmlContent subValues = XmlContent().ParamSection(L"sv", XmlContent());
    const XmlContent values =
        XmlContent().ParamSection(L"v", XmlContent().ParamSection(L"sp", Values(subValues)));
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(L"p", Values(values))));

    EXPECT_EQ(SubExists(file, L"v", L"sp", L"sv"), PGSP_OK);
    EXPECT_EQ(SubExists(file, L"V", L"SP", L"SV"), PGSP_OK);
    EXPECT_EQ(SubExists(file, L"v", L"sp", L"other"), NotThere);
    EXPECT_EQ(SubExists(file, L"v", L"other", L"sv"), NotThere);
    EXPECT_EQ(SubExists(file, L"other", L"sp", L"sv"), NotThere);
    EXPECT_EQ(SubExists(file, L"sp", L"", L"sv"), PGSP_OK) << "a shorter way";
    EXPECT_EQ(SubExists(file, L"v", L"sp", L"sv\\x"), NotThere) << "a sixth step";
}

TEST_F(ProfileCollection, AValueHasADescription)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"p", Values(XmlContent()
                         .ParamSection(L"v", XmlContent().Element(L"ParamDesc", L" für alle "))
                         .ParamSection(L"deep", XmlContent().Element(
                                                    L"Parameter", XmlContent().Element(L"ParamDesc", L"d")))
                         .ParamSection(L"empty", XmlContent().Element(L"ParamDesc", L""))
                         .ParamSection(L"none", XmlContent())))));

    EXPECT_EQ(Description(file, L"V"), Found(L" für alle "));
    EXPECT_EQ(Description(file, L"deep"), Found(L"d"));
    EXPECT_EQ(Description(file, L"empty"), Found(L""));
    EXPECT_EQ(Description(file, L"none"), NoText());
    EXPECT_EQ(Description(file, L"other"), NoText());
}

TEST_F(ProfileCollection, TheNearestDescriptionIsTheValuesOwn)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"p", Values(XmlContent().ParamSection(
                  L"v", XmlContent()
                            .Element(L"Parameter", XmlContent().Element(L"ParamDesc", L"of the entry"))
                            .Element(L"ParamDesc", L"of the value"))))));

    EXPECT_EQ(Description(file, L"v"), Found(L"of the value"));
}

} // namespace
} // namespace norvepa::test
