#include "handover/OutlineScene.h"
#include "support/TemporaryFolder.h"

#include <algorithm>

namespace norvepa::test
{
namespace
{

constexpr char Line[] = "load S{2 'n'='Größe'}";

std::string Utf8(std::string_view ahead)
{
    return std::string(ahead) + WithValue("Größe");
}

// With the mark of the encoding, the low byte first.
std::string LowByteFirst(std::string_view ahead)
{
    const std::wstring text = L"\uFEFF" + FromUtf8(Utf8(ahead));
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

std::string HighByteFirst(std::string_view ahead)
{
    std::string bytes = LowByteFirst(ahead);
    for (std::size_t at = 0; at < bytes.size(); at += 2)
    {
        std::swap(bytes[at], bytes[at + 1]);
    }
    return bytes;
}

// A byte a character.
std::string Latin(std::string_view ahead)
{
    return std::string(ahead) + WithValue("Gr\xF6\xDF"
                                          "e");
}

PlainDocument Read(const char* name, std::string_view ahead)
{
    return {name, Utf8(ahead), Line};
}

INSTANTIATE_TEST_SUITE_P(
    Encodings, AlikeBothWays,
    testing::Values(Read("NothingAhead", ""), Read("MarkOfTheEncoding", "\uFEFF"),
                    Read("WhiteSpaceAhead", "\r\n\t "), Read("MarkAndWhiteSpace", "\uFEFF\n"),
                    Read("Declaration", "<?xml version='1.0'?>"),
                    Read("DeclaredUtf8", "<?xml version='1.0' encoding='UTF-8'?>\r\n"),
                    Read("DeclaredUtf8InSmallLetters", "<?xml version='1.0' encoding='utf-8'?>"),
                    Read("DoubleQuotes", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"),
                    Read("MarkAndDeclaration", "\uFEFF<?xml version='1.0' encoding='UTF-8'?>"),
                    Read("MarkAndDeclarationWithoutEncoding", "\uFEFF<?xml version='1.0'?>"),
                    Read("Standalone", "<?xml version='1.0' encoding='UTF-8' standalone='yes'?>"),
                    Read("StandaloneWithoutEncoding", "<?xml version='1.0' standalone='no' ?>"),
                    Read("SpacesInTheDeclaration", "<?xml\n version = '1.0'\t encoding\n=\r\n'UTF-8' ?>")),
    NameOf<PlainDocument>);

INSTANTIATE_TEST_SUITE_P(
    Encodings, LeftToTheEngine,
    testing::Values(
        OtherDocument{"LowByteFirst", LowByteFirst("")},
        OtherDocument{"LowByteFirstDeclared", LowByteFirst("<?xml version='1.0' encoding='UTF-16'?>")},
        OtherDocument{"HighByteFirst", HighByteFirst("")},
        OtherDocument{"HighByteFirstDeclared", HighByteFirst("<?xml version='1.0' encoding='UTF-16'?>")},
        OtherDocument{"Latin1", Latin("<?xml version='1.0' encoding='ISO-8859-1'?>")},
        OtherDocument{"Latin1InSmallLettersAndDoubleQuotes",
                      Latin("<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>")},
        OtherDocument{"Windows1252", Latin("<?xml version='1.0' encoding='windows-1252'?>")},
        OtherDocument{"Latin1OfAsciiOnly", "<?xml version='1.0' encoding='ISO-8859-1'?>" + WithValue("v")}),
    NameOf<OtherDocument>);

using OutlineEncoding = OutlineScene;

TEST_F(OutlineEncoding, GivesTheEnginesTextWhereItIsLeftToTheEngine)
{
    EXPECT_EQ(ByTheEngine(LowByteFirst("")), Line);
    EXPECT_EQ(ByTheEngine(HighByteFirst("")), Line);
    EXPECT_EQ(ByTheEngine(Latin("<?xml version='1.0' encoding='ISO-8859-1'?>")), Line);
}

// Characters whose bytes are those of "<d>", "</d>" and the like.
TEST_F(OutlineEncoding, OfTwoBytesIsNotTakenForTags)
{
    const std::wstring text = L"\uFEFF<d>\u643C\u643E\u2F3C\u643C\u3E64\u3C3E\u2F3C\u3E64</d>";
    const std::string bytes(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));

    ExpectLeftToTheEngine(bytes);
}

TEST_F(OutlineEncoding, ThatTheBytesBelieIsReadByNobody)
{
    for (const std::string& bytes :
         {Latin(""), Latin("<?xml version='1.0' encoding='UTF-8'?>"), "\uFEFF" + Latin(""), WithValue("\xC3"),
          WithValue("\xC0\x80"), WithValue("\xED\xA0\x80"), WithValue("\xF4\x90\x80\x80"),
          WithValue("a\xE2\x82")})
    {
        EXPECT_EQ(ByTheEngine(bytes), std::nullopt);
        EXPECT_EQ(ByTheBytes(bytes), std::nullopt);
    }
}

// Some engines take a zero for the end.
TEST_F(OutlineEncoding, WithAZeroAnywhereIsReadAlikeOrNotAtAll)
{
    const std::string whole = "<d><!-- --><S a='b'><Parameter><Name>n</Name></Parameter></S></d> <!-- -->";
    for (std::size_t at = 0; at <= whole.size(); ++at)
    {
        const std::string bytes = whole.substr(0, at) + '\0' + whole.substr(at);

        const OutlineLine engineLine = ByTheEngine(bytes);
        const OutlineLine line = ByTheBytes(bytes);

        EXPECT_TRUE(!engineLine || !line || engineLine == line) << at;
    }
}

TEST_F(OutlineEncoding, BehindAZeroIsNotRead)
{
    EXPECT_EQ(ByTheBytes(WithValue("v") + '\0' + WithValue("w")), std::nullopt);
}

} // namespace
} // namespace norvepa::test
