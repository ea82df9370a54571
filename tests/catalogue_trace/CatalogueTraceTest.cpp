#include "catalogue/norvxmlCatalogue.h"
#include "support/RedirectedRegistry.h"
#include "support/StoreRoots.h"
#include "support/TemporaryFolder.h"
#include "support/TraceLines.h"
#include "support/XmlFiles.h"
#include "trace/Norvotrc.h"

#include <gmock/gmock.h>
#include <optional>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char ListTag[] = "NorvXMLEnumValueCollectionRaw: ";
constexpr char KnownTag[] = "ConstraintExistsAlready: ";
constexpr char InsertTag[] = "InsertConstraintToCachedMetaFile: ";

// What catalogue queries say in the trace: two of them anything, and the guard of the documents' size.
class CatalogueTrace : public testing::Test
{
protected:
    ~CatalogueTrace() override
    {
        DeleteMachineKey(TraceKey);
        TraceInit(nullptr, "norvepaBl64x");
    }

    void Trace(const std::wstring& level = AllTraceLevels, const std::wstring& format = L"TEXT")
    {
        m_lines.emplace(level, format);
        TraceInit(nullptr, "norvepaBl64x");
    }

    [[nodiscard]] std::vector<std::string> Lines() const { return m_lines->read(); }

    // Path and constraint of a file with one parameter, "p".
    void GivenFile() const
    {
        const XmlContent section =
            XmlContent().ParamSection(L"p", XmlContent().Element(L"min", L"1").ValueCollection({L"item"}));
        WriteBytes(m_path + L".xml", ProtocolFile(XmlContent().Element(L"Constraints", section)));
    }

    [[nodiscard]] Result Item(const wchar_t* key) const
    {
        std::wstring item;
        return NorvXMLEnumValueCollectionRaw(m_path.c_str(), key, 0, &item);
    }

    [[nodiscard]] Result Constraint(const wchar_t* word) const
    {
        std::wstring value;
        return NorvXMLGetConstraint(m_path.c_str(), L"p", word, &value);
    }

    [[nodiscard]] std::string PathLine(std::string_view tag) const
    {
        return TraceLine(tag, ">> filePath = " + ToUtf8(m_path));
    }

private:
    RedirectedRegistry m_registry;
    std::optional<TraceLines> m_lines;
    TemporaryFolder m_folder;

protected:
    const std::wstring m_path = m_folder / L"file";
};

TEST_F(CatalogueTrace, EnumValueCollectionRawTellsThatItCameAndWent)
{
    const auto comesAndGoes = ElementsAre(TraceLine(ListTag, ">> NorvXMLEnumValueCollectionRaw"),
                                          TraceLine(ListTag, "<< NorvXMLEnumValueCollectionRaw"));
    GivenFile();

    Trace();
    ASSERT_EQ(Item(L"Constraints\\p"), PGSP_OK);
    EXPECT_THAT(Lines(), comesAndGoes);

    Trace();
    ASSERT_EQ(Item(L"Constraints\\q"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_THAT(Lines(), comesAndGoes);

    Trace();
    ASSERT_EQ(Item(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_THAT(Lines(), comesAndGoes);
}

TEST_F(CatalogueTrace, EnumValueCollectionRawComesAtTheEntryAndGoesAtTheExitLevel)
{
    GivenFile();

    Trace(L"0x8");
    ASSERT_EQ(Item(L"Constraints\\p"), PGSP_OK);
    EXPECT_THAT(Lines(), ElementsAre(TraceLine(ListTag, ">> NorvXMLEnumValueCollectionRaw")));

    Trace(L"0x80");
    ASSERT_EQ(Item(L"Constraints\\p"), PGSP_OK);
    EXPECT_THAT(Lines(), ElementsAre(TraceLine(ListTag, "<< NorvXMLEnumValueCollectionRaw")));
}

TEST_F(CatalogueTrace, GetConstraintTellsWhatItsMemoKnows)
{
    GivenFile();

    Trace();
    ASSERT_EQ(Constraint(L"min"), PGSP_OK);
    EXPECT_THAT(Lines(), ElementsAre(PathLine(KnownTag), PathLine(InsertTag),
                                     TraceLine(InsertTag, "create new file")));

    Trace();
    ASSERT_EQ(Constraint(L"max"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_THAT(Lines(), ElementsAre(PathLine(KnownTag), PathLine(InsertTag),
                                     TraceLine(InsertTag, "file exists - ok")));

    Trace();
    ASSERT_EQ(Constraint(L"min"), PGSP_OK);
    ASSERT_EQ(Constraint(L"max"), PGSP_ERR_PARAM_NOT_FOUND);
    EXPECT_THAT(Lines(), ElementsAre(PathLine(KnownTag), TraceLine(KnownTag, "<< PGSP_OK"),
                                     PathLine(KnownTag), TraceLine(KnownTag, "<< PGSP_ERR_PARAM_NOT_FOUND")));
}

TEST_F(CatalogueTrace, GetConstraintInsertsNothingOfAFileThatCanNotBeOpened)
{
    Trace();

    ASSERT_EQ(Constraint(L"min"), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_THAT(Lines(), ElementsAre(PathLine(KnownTag)));
}

TEST_F(CatalogueTrace, AMissingDocumentIsToldByTheSizeGuard)
{
    std::wstring text;
    Trace();

    ASSERT_EQ(NorvXMLProtocolGetValueRaw(m_path.c_str(), L"p\\v", L"a", &text), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(Lines(), ElementsAre(TraceLine("CheckFileSize: ",
                                               "Error: FILE_NOT_FOUND : " + ToUtf8(m_path) + ".xml")));
}

TEST_F(CatalogueTrace, ADocumentThatCanNotBeLoadedIsNotTold)
{
    std::wstring text;
    WriteBytes(m_path + L".xml", "no XML");
    Trace();

    ASSERT_EQ(NorvXMLProtocolGetValueRaw(m_path.c_str(), L"p\\v", L"a", &text), PGSP_ERR_CANT_LOAD_XML_FILE);
    ASSERT_EQ(NorvXMLEnumSubProfile(m_path.c_str(), L"p", L"v", 0, &text), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(CatalogueTrace, TheOtherQueriesSayNothing)
{
    std::wstring text;
    GivenFile();
    Trace();

    ASSERT_EQ(NorvXMLElementGetAttribute(m_path.c_str(), L"CP_TYPE", &text), PGSP_OK);
    ASSERT_EQ(NorvXMLProtocolGetValue(m_path.c_str(), L"p", L"min", &text), PGSP_OK);
    ASSERT_EQ(NorvXMLBoardKeyExists(m_path.c_str(), L"Constraints\\p", 0), PGSP_OK);
    ASSERT_EQ(NorvXMLProfileCollectionExists(m_path.c_str(), L"p", L"item"), PGSP_OK);
    ASSERT_EQ(NorvXMLGetParamDesc(m_path.c_str(), L"p", L"item", &text), PGSP_ERR_PARAM_NOT_FOUND);
    ASSERT_EQ(NorvXMLEnumProfileValue(m_path.c_str(), L"p", L"v", 0, &text, &text), PGSP_ERR_NO_MORE_ITEMS);

    EXPECT_THAT(Lines(), IsEmpty());
}

} // namespace
} // namespace norvepa::test
