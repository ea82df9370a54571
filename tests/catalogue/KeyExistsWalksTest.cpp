#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

constexpr Result NotThere = PGSP_ERR_PARAM_NOT_FOUND;

// The walks of the three key tests.
class KeyExistsWalks : public CatalogueScene
{
protected:
    [[nodiscard]] static Result Board(const std::wstring& file, const wchar_t* key)
    {
        return NorvXMLBoardKeyExists(file.c_str(), key, 0);
    }

    [[nodiscard]] static Result Protocol(const std::wstring& file, const wchar_t* key)
    {
        return NorvXMLProtocolKeyExists(file.c_str(), key, 0);
    }

    [[nodiscard]] static Result Template(const std::wstring& file, const wchar_t* key)
    {
        return NorvXMLTemplateKeyExists(file.c_str(), key, 0);
    }

    // A parameter's or sub-parameter's section with these values.
    [[nodiscard]] static XmlContent Section(std::wstring_view param, const XmlContent& values)
    {
        return XmlContent().ParamSection(param, Values(values));
    }
};

TEST_F(KeyExistsWalks, ABoardHasASectionOfTheParameter)
{
    const std::wstring file = File(BoardFile(XmlContent().Element(
        L"Constraints", XmlContent().ParamSection(L"a", XmlContent()).ParamSection(L"b", XmlContent()))));

    EXPECT_EQ(Board(file, L"Constraints\\b"), PGSP_OK);
    EXPECT_EQ(Board(file, L"constraints\\B"), PGSP_OK);
    EXPECT_EQ(Board(file, L"Constraints\\c"), NotThere);
    EXPECT_EQ(Board(file, L"BoardAttributes\\b"), NotThere);
}

TEST_F(KeyExistsWalks, TheThirdTokenOfABoardsKeyIsNotUsed)
{
    const std::wstring file =
        File(BoardFile(XmlContent().Element(L"Constraints", XmlContent().ParamSection(L"a", XmlContent()))));

    EXPECT_EQ(Board(file, L"Constraints\\a\\anything"), PGSP_OK);
    EXPECT_EQ(Board(file, L"Constraints\\b\\a"), NotThere);
}

TEST_F(KeyExistsWalks, ABoardsSectionIsLookedForInEachElementOfTheFirstToken)
{
    const std::wstring file =
        File(BoardFile(XmlContent()
                           .Element(L"Constraints", XmlContent().ParamSection(L"a", XmlContent()))
                           .ParamSection(L"between", XmlContent())
                           .Element(L"Constraints", XmlContent().ParamSection(L"b", XmlContent()))));

    EXPECT_EQ(Board(file, L"Constraints\\b"), PGSP_OK);
    EXPECT_EQ(Board(file, L"Constraints\\between"), NotThere);
}

TEST_F(KeyExistsWalks, AnEmptyTagEndsTheSearchInABoardsElement)
{
    const std::wstring file = File(BoardFile(XmlContent().Element(
        L"Constraints", XmlContent().EmptyTag(L"odd").ParamSection(L"a", XmlContent()))));

    EXPECT_EQ(Board(file, L"Constraints\\a"), NotThere);
}

TEST_F(KeyExistsWalks, ATemplateHasASubdevice)
{
    const XmlContent subdevices = XmlContent()
                                      .Element(L"Subdevice", XmlContent())
                                      .Subdevice(L"A", XmlContent().Text(L"x", L"1"))
                                      .Subdevice(L"B", XmlContent());
    const std::wstring file = File(
        LogDeviceFile(XmlContent().Element(L"Bindings", XmlContent().Element(L"Subdevices", subdevices))));

    EXPECT_EQ(Template(file, L"Bindings\\Subdevices\\B"), PGSP_OK);
    EXPECT_EQ(Template(file, L"bindings\\SUBDEVICES\\b"), PGSP_OK);
    EXPECT_EQ(Template(file, L"Bindings\\Subdevices"), PGSP_OK);
    EXPECT_EQ(Template(file, L"Bindings\\Subdevices\\C"), NotThere);
    EXPECT_EQ(Template(file, L"Bindings\\Other"), NotThere);
    EXPECT_EQ(Template(file, L"Bindings\\Other\\A"), NotThere);
    EXPECT_EQ(Template(file, L"DeviceHeader\\Subdevices\\A"), NotThere);
}

TEST_F(KeyExistsWalks, ATemplatesSubdeviceMustBeInTheElementOfTheSecondToken)
{
    const std::wstring file = File(LogDeviceFile(XmlContent().Element(
        L"Bindings", XmlContent().Element(L"Subdevices", XmlContent()).Subdevice(L"A", XmlContent()))));

    EXPECT_EQ(Template(file, L"Bindings\\Subdevices\\A"), NotThere);
}

TEST_F(KeyExistsWalks, ASectionOfParametersIsNoChildOfATemplateByItsParam)
{
    const std::wstring file = File(WithConstraints(XmlContent().ParamSection(L"a", XmlContent())));

    EXPECT_EQ(Template(file, L"Constraints\\a"), NotThere);
    EXPECT_EQ(Template(file, L"Constraints\\ParamSection"), PGSP_OK);
}

TEST_F(KeyExistsWalks, AProtocolHasAParameterAndAValueOfIt)
{
    const std::wstring file = File(WithConstraints(
        Section(L"p", XmlContent().ParamSection(L"v", XmlContent()).ParamSection(L"w", XmlContent()))
            .ParamSection(L"bare", XmlContent().Element(L"type", L"int"))));

    EXPECT_EQ(Protocol(file, L"Constraints\\p"), PGSP_OK);
    EXPECT_EQ(Protocol(file, L"Constraints\\p\\w"), PGSP_OK);
    EXPECT_EQ(Protocol(file, L"CONSTRAINTS\\P\\W"), PGSP_OK);
    EXPECT_EQ(Protocol(file, L"Constraints\\bare"), PGSP_OK);
    EXPECT_EQ(Protocol(file, L"Constraints\\bare\\v"), NotThere);
    EXPECT_EQ(Protocol(file, L"Constraints\\p\\x"), NotThere);
    EXPECT_EQ(Protocol(file, L"Constraints\\q\\v"), NotThere);
}

TEST_F(KeyExistsWalks, AProtocolsFourthTokenIsASubParameter)
{
    const std::wstring file = File(WithConstraints(Section(
        L"p",
        XmlContent().ParamSection(L"v", Section(L"sp", XmlContent().ParamSection(L"sv", XmlContent()))))));

    EXPECT_EQ(Protocol(file, L"Constraints\\p\\v\\SP"), PGSP_OK);
    EXPECT_EQ(Protocol(file, L"Constraints\\p\\v\\other"), NotThere);
}

TEST_F(KeyExistsWalks, AProtocolsFifthTokenOnlyAsksForTheFourthOnceMore)
{
    const auto fileOf = [&](std::wstring_view subValue, std::wstring_view name) {
        const XmlContent subParameter = Section(L"sp", XmlContent().ParamSection(subValue, XmlContent()));
        return File(WithConstraints(Section(L"p", XmlContent().ParamSection(L"v", subParameter))), name);
    };
    const std::wstring other = fileOf(L"sv", L"other");
    const std::wstring same = fileOf(L"SP", L"same");

    EXPECT_EQ(Protocol(other, L"Constraints\\p\\v\\sp"), PGSP_OK);
    EXPECT_EQ(Protocol(other, L"Constraints\\p\\v\\sp\\sv"), NotThere);
    EXPECT_EQ(Protocol(same, L"Constraints\\p\\v\\sp\\sv"), PGSP_OK);
    EXPECT_EQ(Protocol(same, L"Constraints\\p\\v\\sp\\anything"), PGSP_OK);
}

TEST_F(KeyExistsWalks, AProtocolsValueIsLookedForUpToTheFirstEndOfAValueCollection)
{
    const std::wstring file = File(WithConstraints(
        Section(L"p", XmlContent()
                          .ParamSection(L"v", Section(L"sp", XmlContent().ParamSection(L"sv", XmlContent())))
                          .ParamSection(L"w", XmlContent()))));

    EXPECT_EQ(Protocol(file, L"Constraints\\p\\v"), PGSP_OK);
    EXPECT_EQ(Protocol(file, L"Constraints\\p\\sv"), PGSP_OK) << "depth isn't counted";
    EXPECT_EQ(Protocol(file, L"Constraints\\p\\w"), NotThere) << "it stands behind the nested collection";
}

TEST_F(KeyExistsWalks, AProtocolsSearchGoesOnInTheNextElementOfTheFirstToken)
{
    const std::wstring file = File(ProtocolFile(
        XmlContent()
            .Element(L"Constraints", Section(L"p", XmlContent().ParamSection(L"v", XmlContent())))
            .Element(L"Constraints", Section(L"p", XmlContent().ParamSection(L"w", XmlContent())))));

    EXPECT_EQ(Protocol(file, L"Constraints\\p\\w"), PGSP_OK);
}

TEST_F(KeyExistsWalks, AFailedStepOfAProtocolDoesNotTryTheNextSectionOfTheParameter)
{
    const std::wstring file =
        File(WithConstraints(Section(L"p", XmlContent().ParamSection(L"v", XmlContent()))
                                 .Raw(Section(L"p", XmlContent().ParamSection(L"w", XmlContent())).utf8())));

    EXPECT_EQ(Protocol(file, L"Constraints\\p\\w"), NotThere);
}

} // namespace
} // namespace norvepa::test
