#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

constexpr Result Bad = PGSP_ERR_INVALID_PARAMETERS;

// Arguments are tested before the path is looked at: this one would be refused for its length, and no
// file has it.
class ReadArguments : public testing::Test
{
protected:
    const std::wstring m_longPath = L"C:\\" + std::wstring(300, L'x');
    const wchar_t* const m_path = m_longPath.c_str();
    std::wstring m_out{Before};

    void TearDown() override { EXPECT_EQ(m_out, Before); }
};

TEST_F(ReadArguments, AreWellChosen)
{
    EXPECT_EQ(NorvXMLGetValue(m_path, L"S", L"a", &m_out), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(ReadArguments, GetValueNeedsItsOutput)
{
    EXPECT_EQ(NorvXMLGetValue(m_path, L"S", L"a", nullptr), Bad);
    EXPECT_EQ(NorvXMLGetValue(L"", L"S", L"a", &m_out), Bad);
}

TEST_F(ReadArguments, GetValueNeedsNeitherSectionNorParameter)
{
    EXPECT_EQ(NorvXMLGetValue(m_path, nullptr, nullptr, &m_out), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(ReadArguments, GetValueBufferNeedsParameterBufferAndLength)
{
    wchar_t buffer[] = L"before";
    std::uint32_t length = 7;

    EXPECT_EQ(NorvXMLGetValueBuffer(m_path, L"S", nullptr, buffer, &length), Bad);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_path, L"S", L"a", nullptr, &length), Bad);
    EXPECT_EQ(NorvXMLGetValueBuffer(m_path, L"S", L"a", buffer, nullptr), Bad);

    EXPECT_STREQ(buffer, L"before");
    EXPECT_EQ(length, 7u);
}

TEST_F(ReadArguments, GetValueRawNeedsItsOutput)
{
    EXPECT_EQ(NorvXMLGetValueRaw(m_path, L"S", L"a", nullptr), Bad);
    EXPECT_EQ(NorvXMLGetValueRaw(L"", L"S", L"a", &m_out), Bad);
}

TEST_F(ReadArguments, GetValueRawNeedsNeitherSectionNorParameter)
{
    EXPECT_EQ(NorvXMLGetValueRaw(m_path, nullptr, nullptr, &m_out), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(ReadArguments, GetSubdevValueNeedsAllOfThem)
{
    EXPECT_EQ(NorvXMLGetSubdevValue(m_path, nullptr, L"a", &m_out), Bad);
    EXPECT_EQ(NorvXMLGetSubdevValue(m_path, L"A", nullptr, &m_out), Bad);
    EXPECT_EQ(NorvXMLGetSubdevValue(m_path, L"A", L"a", nullptr), Bad);
}

TEST_F(ReadArguments, GetSubdevValueTakesEmptyNames)
{
    EXPECT_EQ(NorvXMLGetSubdevValue(m_path, L"", L"", &m_out), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(ReadArguments, SubdevExistsNeedsTheNameAndTakesAnEmptyOne)
{
    EXPECT_EQ(NorvXMLSubdevExists(m_path, nullptr), Bad);
    EXPECT_EQ(NorvXMLSubdevExists(m_path, L""), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(ReadArguments, GetValueBySectionIndexNeedsBothOutputsAndNothingElse)
{
    std::wstring other(Before);

    EXPECT_EQ(NorvXMLGetValueBySectionIndex(m_path, 0, L"a", nullptr, &m_out), Bad);
    EXPECT_EQ(NorvXMLGetValueBySectionIndex(m_path, 0, L"a", &m_out, nullptr), Bad);
    EXPECT_EQ(NorvXMLGetValueBySectionIndex(m_path, 99, nullptr, &m_out, &other), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(other, Before);
}

TEST_F(ReadArguments, GetAssemblyLinkNeedsEachOutputAndNothingElse)
{
    std::wstring* const out = &m_out;

    EXPECT_EQ(NorvXMLGetAssemblyLink(m_path, L"r", nullptr, out, out, out, 0), Bad);
    EXPECT_EQ(NorvXMLGetAssemblyLink(m_path, L"r", out, nullptr, out, out, 0), Bad);
    EXPECT_EQ(NorvXMLGetAssemblyLink(m_path, L"r", out, out, nullptr, out, 0), Bad);
    EXPECT_EQ(NorvXMLGetAssemblyLink(m_path, L"r", out, out, out, nullptr, 0), Bad);
    EXPECT_EQ(NorvXMLGetAssemblyLink(m_path, nullptr, out, out, out, out, 0), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(ReadArguments, GetParameterAssemblyLinkNeedsEachOutputAndNothingElse)
{
    std::wstring* const out = &m_out;

    EXPECT_EQ(NorvXMLGetParameterAssemblyLink(m_path, L"p", nullptr, out, out, 0), Bad);
    EXPECT_EQ(NorvXMLGetParameterAssemblyLink(m_path, L"p", out, nullptr, out, 0), Bad);
    EXPECT_EQ(NorvXMLGetParameterAssemblyLink(m_path, L"p", out, out, nullptr, 0), Bad);
    EXPECT_EQ(NorvXMLGetParameterAssemblyLink(m_path, nullptr, out, out, out, 0),
              PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_F(ReadArguments, EnumNdiNeedsBothOutputs)
{
    std::wstring other(Before);

    EXPECT_EQ(NorvXMLEnumNdi(m_path, 0, nullptr, &m_out, 0), Bad);
    EXPECT_EQ(NorvXMLEnumNdi(m_path, 0, &m_out, nullptr, 0), Bad);
    EXPECT_EQ(NorvXMLEnumNdi(m_path, 0, &m_out, &other, 0), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(other, Before);
}

TEST_F(ReadArguments, GetParameterDataNeedsNameAndOutputAndTakesAnEmptyName)
{
    EXPECT_EQ(NorvXMLGetParameterData(m_path, nullptr, &m_out), Bad);
    EXPECT_EQ(NorvXMLGetParameterData(m_path, L"p", nullptr), Bad);
    EXPECT_EQ(NorvXMLGetParameterData(m_path, L"", &m_out), PGSP_ERR_BUFFER_TOO_SHORT);
}

TEST_F(ReadArguments, EnumParameterDataNeedsBothOutputs)
{
    std::wstring other(Before);

    EXPECT_EQ(NorvXMLEnumParameterData(m_path, 0, nullptr, &m_out), Bad);
    EXPECT_EQ(NorvXMLEnumParameterData(m_path, 0, &m_out, nullptr), Bad);
    EXPECT_EQ(NorvXMLEnumParameterData(m_path, 0, &m_out, &other), PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(other, Before);
}

} // namespace
} // namespace norvepa::test
