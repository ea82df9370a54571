#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

// The two that differ in nothing but the code for a missing length.
class EnumConstraintDefault : public CatalogueScene
{
protected:
    // What both answer.
    [[nodiscard]] static PairAnswer Default(const std::wstring& file, std::uint32_t index)
    {
        const PairAnswer ofBoard = PairOf(
            [&](const PairBuffers& pair) { return NorvXMLEnumConstraintDefault(file.c_str(), index, pair); });
        const PairAnswer ofProtocol = PairOf(
            [&](const PairBuffers& pair) { return NorvXMLEnumProtocolValue(file.c_str(), index, pair); });
        EXPECT_EQ(ofBoard, ofProtocol);
        return ofBoard;
    }
};

TEST_F(EnumConstraintDefault, DeliversParamAndDefaultOfEachSection)
{
    const std::wstring file = File(WithConstraints(
        XmlContent()
            .ParamSection(L"hsa", XmlContent().Element(L"type", L"int").Element(L"default", L"126"))
            .ParamSection(L"Größe", XmlContent().Element(L"default", L"a;b").Element(L"default", L"2nd"))
            .ParamSection(L"empty", XmlContent().Element(L"default", L""))));

    EXPECT_EQ(Default(file, 0), Found(L"hsa", L"126"));
    EXPECT_EQ(Default(file, 1), Found(L"Größe", L"a;b"));
    EXPECT_EQ(Default(file, 2), Found(L"empty", L""));
    EXPECT_EQ(Default(file, 3), NoPair());
    EXPECT_EQ(Default(file, 0xFFFFFFFF), NoPair());
}

TEST_F(EnumConstraintDefault, ASectionWithoutParamOrDefaultLooksLikeTheEnd)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .ParamSection(L"a", XmlContent().Element(L"type", L"int"))
                                 .Element(L"ParamSection", XmlContent().Element(L"default", L"1"))
                                 .ParamSection(L"c", XmlContent().Element(L"default", L"2"))));

    EXPECT_EQ(Default(file, 0), NoPair());
    EXPECT_EQ(Default(file, 1), NoPair());
    EXPECT_EQ(Default(file, 2), Found(L"c", L"2"));
}

TEST_F(EnumConstraintDefault, ADefaultOfAValueIsNotTheSectionsOwn)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"a", Values(XmlContent().ParamSection(L"v", XmlContent().Element(L"default", L"1"))))));

    EXPECT_EQ(Default(file, 0), NoPair());
}

TEST_F(EnumConstraintDefault, LooksIntoTheRootsFirstConstraintsOnly)
{
    const XmlContent withDefault = XmlContent().ParamSection(L"a", XmlContent().Element(L"default", L"1"));
    const std::wstring second = File(
        ProtocolFile(XmlContent().Element(L"Constraints", XmlContent()).Element(L"Constraints", withDefault)),
        L"second");
    const std::wstring deep =
        File(ProtocolFile(XmlContent().Element(L"Device", XmlContent().Element(L"Constraints", withDefault))),
             L"deep");

    EXPECT_EQ(Default(second, 0), NoPair(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Default(deep, 0), NoPair(PGSP_ERR_PARAM_NOT_FOUND));
}

TEST_F(EnumConstraintDefault, IsNotFoundWithoutConstraintsOrSections)
{
    const std::wstring none = File(ProtocolFile(XmlContent()), L"none");
    const std::wstring noSection =
        File(WithConstraints(XmlContent().Element(L"Parameter", XmlContent())), L"no section");

    EXPECT_EQ(Default(none, 0), NoPair(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Default(noSection, 0), NoPair(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Default(noSection, 5), NoPair(PGSP_ERR_PARAM_NOT_FOUND));
}

} // namespace
} // namespace norvepa::test
