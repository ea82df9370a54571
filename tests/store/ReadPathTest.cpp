#include "store/EveryRead.h"
#include "store/ReadScene.h"

namespace norvepa::test
{
namespace
{

// How the reads come from a path to a file.
class ReadPath : public ReadScene, public testing::WithParamInterface<Read>
{
protected:
    [[nodiscard]] static Outcome Call(const std::wstring& path) { return GetParam().call(path.c_str()); }

    // The document under exactly this name.
    void Write(std::wstring_view fileName) const
    {
        WriteBytes(folder() / fileName, LogDeviceFile(ReadableContent()));
    }

    // A path in the folder that is `length` characters long and ends like this.
    [[nodiscard]] std::wstring PathOf(std::size_t length, std::wstring_view end) const
    {
        std::wstring path = folder() / L"";
        path.append(length - path.size() - end.size(), L'x');
        return path.append(end);
    }
};

INSTANTIATE_TEST_SUITE_P(, ReadPath, testing::ValuesIn(EscapingReads()), NameOf);

TEST_P(ReadPath, TheNameIsEscaped)
{
    Write(L"a(nmbr)b#25c#3a#2a#3f#3c#3e#7c#2f.xml");

    EXPECT_EQ(Call(folder() / L"a#b%c:*?<>|/"), GetParam().found);
}

TEST_P(ReadPath, TheFolderIsNotEscaped)
{
    Write(L"100% #1\\file.xml");

    EXPECT_EQ(Call(folder() / L"100% #1\\file"), GetParam().found);
}

TEST_P(ReadPath, ANameThatBringsItsExtensionGetsNoOther)
{
    Write(L"file.xml");

    EXPECT_EQ(Call(folder() / L"file.xml"), GetParam().found);
}

TEST_P(ReadPath, AnExtensionAnywhereInThePathIsEnough)
{
    Write(L"folder.xml\\file");
    Write(L"file.xml.old");

    EXPECT_EQ(Call(folder() / L"folder.xml\\file"), GetParam().found);
    EXPECT_EQ(Call(folder() / L"file.xml.old"), GetParam().found);
}

TEST_P(ReadPath, AnExtensionInAnotherCaseIsNone)
{
    Write(L"file.XML.xml");

    EXPECT_EQ(Call(folder() / L"file.XML"), GetParam().found);
}

TEST_P(ReadPath, ReadsAFileWhosePathIsAsLongAsItMayBe)
{
    const std::wstring path = PathOf(259, L".xml");
    WriteBytes(path, LogDeviceFile(ReadableContent()));

    EXPECT_EQ(Call(path), GetParam().found);
}

TEST_P(ReadPath, APathOfOneCharacterMoreIsTooLong)
{
    EXPECT_EQ(Call(PathOf(260, L".xml")), GetParam().Refused(PGSP_ERR_BUFFER_TOO_SHORT));
}

TEST_P(ReadPath, TheEscapedPathIsWhatCounts)
{
    EXPECT_EQ(Call(PathOf(257, L"%")), GetParam().Refused(GetParam().missing));
    EXPECT_EQ(Call(PathOf(258, L"%")), GetParam().Refused(PGSP_ERR_BUFFER_TOO_SHORT));
    EXPECT_EQ(Call(PathOf(254, L"#")), GetParam().Refused(GetParam().missing));
    EXPECT_EQ(Call(PathOf(255, L"#")), GetParam().Refused(PGSP_ERR_BUFFER_TOO_SHORT));
}

TEST_P(ReadPath, TheExtensionIsNotCounted)
{
    EXPECT_EQ(Call(PathOf(259, L"")), GetParam().Refused(GetParam().missing));
    EXPECT_EQ(Call(PathOf(260, L"")), GetParam().Refused(PGSP_ERR_BUFFER_TOO_SHORT));
}

} // namespace
} // namespace norvepa::test
