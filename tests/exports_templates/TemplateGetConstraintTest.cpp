#include "TemplateScene.h"

#include <filesystem>

namespace norvepa::test
{
namespace
{

class TemplateGetConstraint : public TemplateScene
{
protected:
    static XmlContent Constraining(std::wstring_view text)
    {
        return XmlContent().Element(L"Constraints",
                                    XmlContent().ParamSection(L"p", XmlContent().Element(L"type", text)));
    }

    [[nodiscard]] std::int32_t Ask(OutputBuffer& value) const
    {
        return library.PGSP_TemplateGetConstraintBL(L"Boards", L"X", L"p", L"type", value.data(),
                                                    &value.length);
    }
};

TEST_F(TemplateGetConstraint, ReadsAWordOfAParameterInEveryFolder)
{
    WriteBoard(L"X", Constraining(L"of the board"));
    WriteProtocol(L"X", Constraining(L"of the protocol"));
    WriteTemplate(L"X", Constraining(L"of the template"));
    WriteIn(L"Own", L"X", Constraining(L" <\u00DCber> "));

    EXPECT_EQ(Constraint(L"Boards", L"X", L"p", L"type"), L"of the board");
    EXPECT_EQ(Constraint(L"boards", L"*X", L"P", L"TYPE"), L"of the board");
    EXPECT_EQ(Constraint(L"Protocols", L"X", L"p", L"type"), L"of the protocol");
    EXPECT_EQ(Constraint(L"DefaultLogDevices", TemplatePrefix + L"X", L"p", L"type"), L"of the template");
    EXPECT_EQ(Constraint(L"Own", L"X", L"p", L"type"), L" <\u00DCber> ");
}

// Unlike everywhere else.
TEST_F(TemplateGetConstraint, TakesTheNameOfATemplateInFull)
{
    WriteTemplate(L"X", Constraining(L"with prefix"));
    EXPECT_EQ(Constraint(L"DefaultLogDevices", L"X", L"p", L"type"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(Constraint(L"DEFAULTLOGDEVICES", L"X", L"p", L"type"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));

    WriteIn(L"DefaultLogDevices", L"X", Constraining(L"without"));
    EXPECT_EQ(Constraint(L"DefaultLogDevices", L"X", L"p", L"type"), L"without");
    EXPECT_EQ(Constraint(L"defaultlogdevices", L"X", L"p", L"type"), L"without");
    EXPECT_EQ(Constraint(L"DefaultLogDevices", TemplatePrefix + L"X", L"p", L"type"), L"with prefix");
}

TEST_F(TemplateGetConstraint, TellsWhatIsMissing)
{
    WriteBoard(L"X", Constraining(L"int"));

    EXPECT_EQ(Constraint(L"Boards", L"X", L"q", L"type"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Constraint(L"Boards", L"X", L"p", L"min"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    EXPECT_EQ(Constraint(L"Boards", L"gone", L"p", L"type"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(Constraint(L"gone", L"X", L"p", L"type"), Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
    EXPECT_EQ(Constraint(L"Boards", std::wstring(260, L'n'), L"p", L"type"),
              Failed(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_F(TemplateGetConstraint, StaysAsItWasFirstRead)
{
    WriteBoard(L"X", Constraining(L"old"));
    ASSERT_EQ(Constraint(L"Boards", L"X", L"p", L"type"), L"old");
    ASSERT_EQ(Constraint(L"Boards", L"X", L"q", L"type"), Failed(PGSP_ERR_PARAM_NOT_FOUND));

    WriteBoard(L"X", XmlContent()
                         .ParamSection(L"p", XmlContent().Element(L"type", L"new"))
                         .ParamSection(L"q", XmlContent().Element(L"type", L"new")));
    library.NorvepaBl64x_deinit();

    EXPECT_EQ(Constraint(L"Boards", L"X", L"p", L"type"), L"old");
    EXPECT_EQ(Constraint(L"Boards", L"X", L"q", L"type"), Failed(PGSP_ERR_PARAM_NOT_FOUND));
    std::filesystem::remove(roots.board(L"X"));
    EXPECT_EQ(Constraint(L"Boards", L"X", L"p", L"type"), L"old");
}

TEST_F(TemplateGetConstraint, FillsABufferOfOneCharacterMore)
{
    WriteBoard(L"X", Constraining(L"int"));
    for (const std::uint32_t capacity : {0U, 3U})
    {
        OutputBuffer value(capacity);

        EXPECT_EQ(Ask(value), PGSP_ERR_BUFFER_TOO_SHORT);

        EXPECT_TRUE(value.isUntouched());
        EXPECT_EQ(value.length, 3U);
    }
    OutputBuffer value(4);

    EXPECT_EQ(Ask(value), PGSP_OK);

    EXPECT_EQ(value.text(), L"int");
    EXPECT_EQ(value.length, 3U);
}

} // namespace
} // namespace norvepa::test
