#include "store/EveryWrite.h"

#include "store/WriteScene.h"
#include "support/OpenFile.h"

#include <regex>

namespace norvepa::test
{
namespace
{

class EveryWriteTest : public WriteScene, public testing::WithParamInterface<Write>
{
protected:
    [[nodiscard]] static Result Run(const std::wstring& path) { return GetParam().call(path.c_str()); }

    // The file that is saved for a name with its codes, which means the file `inPlace`.
    [[nodiscard]] static std::wstring SavedFile(const std::wstring& name, const std::wstring& inPlace)
    {
        return GetParam().beside ? name + L"(temp).xml" : inPlace;
    }
    [[nodiscard]] std::wstring savedFile() const { return SavedFile(path(), file()); }

    // What is said by a document that holds this as well, all around what is written to.
    void ExpectKept(std::string_view nodes) const
    {
        const auto document = [&](const XmlContent& content, const XmlContent& appended = {}) {
            return WritableFile(XmlContent().Raw(nodes).Raw(content.utf8()).Raw(nodes).Raw(appended.utf8()));
        };
        GivenFile(document(WritableContent()));

        EXPECT_EQ(Run(path()), PGSP_OK);

        EXPECT_EQ(MeaningOfFile(savedFile()), MeaningOf(document(GetParam().after, GetParam().appended)));
    }

    // What a path means, and the name, codes included, that a temporary file is made from.
    void ExpectWritten(const std::wstring& path, const std::wstring& name, const std::wstring& file) const
    {
        WriteBytes(folder() / file, WritableFile(WritableContent()));

        EXPECT_EQ(Run(folder() / path), PGSP_OK);

        EXPECT_EQ(MeaningOfFile(SavedFile(folder() / name, folder() / file)),
                  MeaningOf(WritableFile(GetParam().Whole())));
    }
};

INSTANTIATE_TEST_SUITE_P(, EveryWriteTest, testing::ValuesIn(EveryWrite()), NameOf);

using WriteWithoutAPlace = EveryWriteTest;

INSTANTIATE_TEST_SUITE_P(, WriteWithoutAPlace, testing::ValuesIn(WritesThatNeedAPlace()), NameOf);

TEST_P(EveryWriteTest, KeepsComments)
{
    ExpectKept("<!-- by hand --><Remark><!--one-->text<!-- two - --></Remark><!---->");
}

TEST_P(EveryWriteTest, KeepsProcessingInstructions)
{
    ExpectKept("<?tool checked='yes' by=\"Meier\"?><Remark><?empty?></Remark>");
}

TEST_P(EveryWriteTest, KeepsOtherNamespaces)
{
    ExpectKept("<o:Thing xmlns:o='urn:o' o:a='1' a='2'><p:q xmlns:p='urn:p'/><r xmlns='urn:r'/>"
               "<s xmlns=''/></o:Thing>");
}

TEST_P(EveryWriteTest, KeepsWhatStandsOutsideOfTheRoot)
{
    const auto document = [](const XmlContent& content) {
        return WritableFile(content).insert(XmlDeclaration.size(), "<!--head--><?tool one?>") +
               "<!-- NorvepaBl64x configuration store --><?tool two?>";
    };
    GivenFile(document(WritableContent()));

    EXPECT_EQ(Run(path()), PGSP_OK);

    EXPECT_EQ(MeaningOfFile(savedFile()), MeaningOf(document(GetParam().Whole())));
}

TEST_P(EveryWriteTest, EscapesTheName)
{
    ExpectWritten(L"50% #1", L"50#25 (nmbr)1", L"50#25 (nmbr)1.xml");
}

TEST_P(EveryWriteTest, ExtendsAPathThatHoldsNoExtensionAnywhere)
{
    ExpectWritten(L"a", L"a", L"a.xml");
    ExpectWritten(L"b.xml", L"b.xml", L"b.xml");
    ExpectWritten(L"c.xml.old", L"c.xml.old", L"c.xml.old");
    ExpectWritten(L"d.XML", L"d.XML", L"d.XML.xml");
}

TEST_P(WriteWithoutAPlace, FindsNoElementBehindAPrefix)
{
    const std::string plain = "<LogDevice>" + WritableContent().utf8() + "</LogDevice>";
    const std::string prefixed = std::regex_replace(plain, std::regex("<(/?)"), "<$1d:");
    GivenFile("<d:LogDevice xmlns:d='urn:d'>" + prefixed.substr(sizeof "<d:LogDevice>" - 1));
    const std::string before = Bytes();

    EXPECT_EQ(Run(path()), GetParam().notFound);

    EXPECT_EQ(Bytes(), before);
    EXPECT_THAT(FileNames(folder().path()), testing::SizeIs(1));
}

TEST_P(WriteWithoutAPlace, FindsNothingInARootAlone)
{
    GivenFile("<LogDevice/>");

    EXPECT_EQ(Run(path()), GetParam().notFound);

    EXPECT_EQ(Bytes(), "<LogDevice/>");
    EXPECT_THAT(FileNames(folder().path()), testing::SizeIs(1));
}

TEST_P(EveryWriteTest, RefusesAPathThatIsNullOrEmpty)
{
    EXPECT_EQ(GetParam().call(nullptr), PGSP_ERR_INVALID_PARAMETERS);
    EXPECT_EQ(GetParam().call(L""), PGSP_ERR_INVALID_PARAMETERS);
}

TEST_P(EveryWriteTest, MakesNoFileThatIsMissing)
{
    EXPECT_EQ(Run(path()), PGSP_ERR_FILE_NOT_FOUND);

    EXPECT_THAT(FileNames(folder().path()), testing::IsEmpty());
}

TEST_P(EveryWriteTest, LeavesAMalformedFileAlone)
{
    const std::string malformed = WritableFile(WritableContent()) + "<LogDevice/>";
    GivenFile(malformed);

    EXPECT_EQ(Run(path()), PGSP_ERR_CANT_LOAD_XML_FILE);

    EXPECT_EQ(Bytes(), malformed);
    EXPECT_THAT(FileNames(folder().path()), testing::SizeIs(1));
}

TEST_P(EveryWriteTest, DoesNotTellThatTheFileCouldNotBeSaved)
{
    WriteBytes(savedFile(), "left over");
    GivenFile(WritableFile(WritableContent()));
    const std::string before = ReadBytes(savedFile());
    const OpenFile inUse(savedFile());

    EXPECT_EQ(Run(path()), PGSP_OK);

    EXPECT_EQ(ReadBytes(savedFile()), before);
}

} // namespace
} // namespace norvepa::test
