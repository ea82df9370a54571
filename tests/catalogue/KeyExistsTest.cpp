#include "catalogue/CatalogueScene.h"

namespace norvepa::test
{
namespace
{

using KeyTest = Result (*)(const wchar_t*, const wchar_t*, std::int32_t);

constexpr KeyTest EveryKeyTest[] = {NorvXMLBoardKeyExists, NorvXMLProtocolKeyExists,
                                    NorvXMLTemplateKeyExists};

// What the three key tests have in common, and their limits.
class KeyExists : public CatalogueScene
{
protected:
    const std::wstring m_path = File(WithConstraints(
        XmlContent().ParamSection(L"a", XmlContent()).Element(L"Group", XmlContent().Subdevice(L"b", {}))));
    const wchar_t* const m_file = m_path.c_str();
};

TEST_F(KeyExists, AnElementIsEnoughForAKeyOfOneToken)
{
    for (const KeyTest exists : EveryKeyTest)
    {
        EXPECT_EQ(exists(m_file, L"Constraints", 0), PGSP_OK);
        EXPECT_EQ(exists(m_file, L"\\\\CONSTRAINTS\\\\", 0), PGSP_OK);
        EXPECT_EQ(exists(m_file, L"Other", 0), PGSP_ERR_PARAM_NOT_FOUND);
    }
}

TEST_F(KeyExists, AnEmptyTagIsNoElement)
{
    const std::wstring path =
        File(ProtocolFile(XmlContent().EmptyTag(L"Constraints").Element(L"Bindings", L"")), L"empty");

    for (const KeyTest exists : EveryKeyTest)
    {
        EXPECT_EQ(exists(path.c_str(), L"Constraints", 0), PGSP_ERR_PARAM_NOT_FOUND);
        EXPECT_EQ(exists(path.c_str(), L"Bindings", 0), PGSP_OK);
    }
}

TEST_F(KeyExists, TheFirstTokenMayBeTheRoot)
{
    for (const KeyTest exists : EveryKeyTest)
    {
        EXPECT_EQ(exists(m_file, L"Profile", 0), PGSP_OK);
    }
}

TEST_F(KeyExists, AKeyWithoutTokensNamesNothing)
{
    for (const KeyTest exists : EveryKeyTest)
    {
        EXPECT_EQ(exists(m_file, L"", 0), PGSP_ERR_PARAM_NOT_FOUND);
        EXPECT_EQ(exists(m_file, L"\\\\", 0), PGSP_ERR_PARAM_NOT_FOUND);
    }
}

TEST_F(KeyExists, TheFlagIsNotLookedAt)
{
    for (const KeyTest exists : EveryKeyTest)
    {
        for (const std::int32_t flag : {-1, 1, 2, 0x7FFFFFFF})
        {
            EXPECT_EQ(exists(m_file, L"Constraints", flag), PGSP_OK);
            EXPECT_EQ(exists(m_file, L"Other", flag), PGSP_ERR_PARAM_NOT_FOUND);
        }
    }
}

TEST_F(KeyExists, BoardsAndTemplatesTakeThreeTokens)
{
    EXPECT_EQ(NorvXMLBoardKeyExists(m_file, L"Constraints\\a\\b", 0), PGSP_OK);
    EXPECT_EQ(NorvXMLBoardKeyExists(m_file, L"Constraints\\a\\b\\c", 0), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(NorvXMLTemplateKeyExists(m_file, L"Constraints\\Group\\b", 0), PGSP_OK);
    EXPECT_EQ(NorvXMLTemplateKeyExists(m_file, L"Constraints\\Group\\b\\c", 0), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(KeyExists, ProtocolsTakeFiveTokens)
{
    EXPECT_EQ(NorvXMLProtocolKeyExists(m_file, L"Constraints\\a\\b\\c", 0), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(NorvXMLProtocolKeyExists(m_file, L"Constraints\\a\\b\\c\\d", 0), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_EQ(NorvXMLProtocolKeyExists(m_file, L"Constraints\\a\\b\\c\\d\\e", 0),
              PGSP_ERR_INVALID_PARAMETERS);
}

TEST_F(KeyExists, AnyNumberOfTokensIsOnlyTooMany)
{
    std::wstring key = L"Constraints";
    for (int i = 0; i < 1000; ++i)
    {
        key += L"\\a";
    }

    for (const KeyTest exists : EveryKeyTest)
    {
        EXPECT_EQ(exists(m_file, L"Constraints\\1\\2\\3\\4\\5\\6\\7", 0), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(exists(m_file, L"Constraints\\1\\2\\3\\4\\5\\6\\7\\8", 0), PGSP_ERR_INVALID_PARAMETERS);
        EXPECT_EQ(exists(m_file, key.c_str(), 0), PGSP_ERR_INVALID_PARAMETERS);
    }
}

TEST_F(KeyExists, TokensAreCountedOnlyWhenTheFileIsOpen)
{
    const std::wstring missing = folder() / L"missing";

    for (const KeyTest exists : EveryKeyTest)
    {
        EXPECT_EQ(exists(missing.c_str(), L"1\\2\\3\\4\\5\\6", 0), PGSP_ERR_CANT_LOAD_XML_FILE);
    }
}

TEST_F(KeyExists, BackslashesInARunAreOne)
{
    EXPECT_EQ(NorvXMLBoardKeyExists(m_file, L"\\Constraints\\\\a\\\\\\", 0), PGSP_OK);
    EXPECT_EQ(NorvXMLBoardKeyExists(m_file, L"Constraints\\\\\\\\z", 0), PGSP_ERR_PARAM_NOT_FOUND);
}

} // namespace
} // namespace norvepa::test
