#include "catalogue/CatalogueScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

class GetConstraint : public CatalogueScene
{
protected:
    [[nodiscard]] static TextAnswer Constraint(const std::wstring& file, const wchar_t* parameter,
                                               const wchar_t* word)
    {
        return TextOf([&](auto* out) { return NorvXMLGetConstraint(file.c_str(), parameter, word, out); });
    }

    // The first look into a file that lacks it; the memo leaves the output as it was.
    [[nodiscard]] static TextAnswer NotFound() { return {PGSP_ERR_PARAM_NOT_FOUND, L""}; }
};

TEST_F(GetConstraint, ReadsAWordOfTheParametersSection)
{
    const std::wstring file = File(WithConstraints(
        XmlContent()
            .ParamSection(L"hsa", XmlContent().Element(L"min", L"15"))
            .ParamSection(
                L"baudrate",
                XmlContent().Element(L"type", L"int").Element(L"base", L"16").Element(L"Größe", L"klein"))));

    EXPECT_EQ(Constraint(file, L"baudrate", L"type"), Found(L"int"));
    EXPECT_EQ(Constraint(file, L"baudrate", L"base"), Found(L"16")) << "a word of no vocabulary";
    EXPECT_EQ(Constraint(file, L"BAUDRATE", L"Größe"), Found(L"klein"));
    EXPECT_EQ(Constraint(file, L"hsa", L"MIN"), Found(L"15"));
    EXPECT_EQ(Constraint(file, L"baudrate", L"min"), NotFound());
}

TEST_F(GetConstraint, FindsTheSectionAnywhereInTheFile)
{
    const std::wstring file = File(ProtocolFile(XmlContent().EmptyTag(L"odd").Element(
        L"Elsewhere", XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"1")))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"1"));
}

TEST_F(GetConstraint, AnEmptyTagIsNoObstacle)
{
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"p", XmlContent().EmptyTag(L"odd").Element(L"min", L"1"))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"1"));
}

TEST_F(GetConstraint, DoesNotFindAWordBehindTheEndOfANestedSection)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(
        L"p", Values(XmlContent().ParamSection(L"v", XmlContent().Element(L"min", L"of the value")))
                  .Element(L"max", L"9"))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"of the value"));
    EXPECT_EQ(Constraint(file, L"p", L"max"), NotFound());
}

TEST_F(GetConstraint, FindsAWordBehindAValueCollectionThatHasNoSections)
{
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"p", XmlContent().ValueCollection({L"1", L"2"}).Element(L"max", L"9"))));

    EXPECT_EQ(Constraint(file, L"p", L"max"), Found(L"9"));
}

TEST_F(GetConstraint, NeverReachesASecondSectionOfTheParameter)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .ParamSection(L"p", XmlContent().Element(L"min", L"1"))
                                 .ParamSection(L"p", XmlContent().Element(L"max", L"2"))));

    EXPECT_EQ(Constraint(file, L"p", L"max"), NotFound());
}

TEST_F(GetConstraint, ASectionOfOneEmptyTagRunsIntoTheNext)
{
    const std::wstring file =
        File(WithConstraints(XmlContent()
                                 .EmptyTag(L"ParamSection", {{L"Param", L"p"}})
                                 .ParamSection(L"q", XmlContent().Element(L"min", L"of q"))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"of q"));
}

TEST_F(GetConstraint, AWordWithoutTextGetsTheNextTextOfTheFile)
{
    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent()
                                                                 .Element(L"min", L"")
                                                                 .EmptyTag(L"max")
                                                                 .Element(L"step", XmlContent().CData(L"C"))
                                                                 .Element(L"type", L"int"))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"int"));
    EXPECT_EQ(Constraint(file, L"p", L"max"), Found(L"int"));
    EXPECT_EQ(Constraint(file, L"p", L"step"), Found(L"int"));
}

TEST_F(GetConstraint, AWordWithNoTextBehindItIsThereOnceAndThenRememberedAsMissing)
{
    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L""))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L""));
    EXPECT_EQ(Constraint(file, L"p", L"min"), NoText());
}

TEST_F(GetConstraint, RemembersWhatWasFoundWithoutTheFile)
{
    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"1"))));
    ASSERT_EQ(Constraint(file, L"p", L"min"), Found(L"1"));
    std::filesystem::remove(file + L".xml");

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"1"));
    EXPECT_EQ(Constraint(file, L"P", L"MIN"), Found(L"1"));
    EXPECT_EQ(Constraint(file, L"p", L"max"), (TextAnswer{PGSP_ERR_CANT_LOAD_XML_FILE, L""}));
}

TEST_F(GetConstraint, RemembersThatThereWasNone)
{
    const std::wstring file = File(WithConstraints(
        XmlContent().ParamSection(L"p", Values(XmlContent().ParamSection(L"v", XmlContent())))));
    ASSERT_EQ(Constraint(file, L"p", L"min"), NotFound());
    ASSERT_EQ(Constraint(file, L"q", L"min"), NotFound());
    static_cast<void>(File(WithConstraints(XmlContent()
                                               .ParamSection(L"p", XmlContent().Element(L"min", L"1"))
                                               .ParamSection(L"q", XmlContent().Element(L"min", L"2")))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), NoText());
    EXPECT_EQ(Constraint(file, L"q", L"min"), NoText());
}

TEST_F(GetConstraint, RemembersThePathAsItWasGiven)
{
    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"old"))));
    ASSERT_EQ(Constraint(file, L"p", L"min"), Found(L"old"));
    static_cast<void>(
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"new")))));

    EXPECT_EQ(Constraint(file + L".xml", L"p", L"min"), Found(L"new"));
    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"old"));
}

TEST_F(GetConstraint, RemembersNothingOfAFileThatCanNotBeOpened)
{
    const std::wstring path = folder() / L"file";
    const TextAnswer refused{PGSP_ERR_CANT_LOAD_XML_FILE, L""};
    ASSERT_EQ(Constraint(path, L"p", L"min"), refused);
    ASSERT_EQ(Constraint(path, L"p", L"min"), refused);

    const std::wstring file =
        File(WithConstraints(XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"1"))));

    EXPECT_EQ(Constraint(file, L"p", L"min"), Found(L"1"));
}

} // namespace
} // namespace norvepa::test
