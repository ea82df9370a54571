#include "support/ImportHook.h"
#include "support/XmlMeaning.h"
#include "xml/DocumentScene.h"

#include <array>
#include <new>
#include <objidl.h>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

IStream* WINAPI NoStream(const BYTE*, UINT)
{
    return nullptr;
}

class DocumentBytes : public DocumentScene
{
protected:
    [[nodiscard]] bool Loads(std::string_view bytes) const
    {
        Document document = Empty();
        return document.LoadBytes(bytes);
    }

    [[nodiscard]] Document LoadedFrom(std::string_view bytes) const
    {
        Document document = Empty();
        EXPECT_TRUE(document.LoadBytes(bytes));
        return document;
    }
};

constexpr std::array Contents{
    "<?xml version='1.0' encoding='UTF-8'?>\r\n<!-- c --><a b='1'>\r\n<c>\xC3\xA4</c><?p q?></a>\r\n"sv,
    "\xEF\xBB\xBF<a><![CDATA[<b>]]>&amp;&#228;</a>"sv,
    "\xFF\xFE<\0a\0>\0\xE4\0<\0/\0a\0>\0"sv,
    "\xFE\xFF\0<\0a\0>\0\xE4\0<\0/\0a\0>"sv,
    "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>"sv,
    "<a xmlns='urn:a'><p:b xmlns:p='urn:p' p:c='d'/></a>"sv,
};

TEST_F(DocumentBytes, SayWhatTheirFileSays)
{
    for (const std::string_view bytes : Contents)
    {
        const std::string inFile = SavedMeaning(Loaded(bytes));

        EXPECT_EQ(SavedMeaning(LoadedFrom(bytes)), inFile) << bytes;
    }
}

TEST_F(DocumentBytes, ThatAreMalformedDoNotLoad)
{
    for (const std::string_view bytes :
         {""sv, " "sv, "text"sv, "<a>"sv, "<a"sv, "<a><b></a></b>"sv, "<a/><b/>"sv, "<a>&b;</a>"sv,
          "<a b='1' b='2'/>"sv, "<1/>"sv, "<a>&</a>"sv, "<a>\x01</a>"sv, "<a>\xFF</a>"sv, "\0"sv,
          "<a>\0</a>"sv, "<?xml version='1.0' encoding='x-unknown'?><a/>"sv})
    {
        EXPECT_FALSE(Loads(bytes)) << bytes;
    }
}

// A text of bytes is no name of a file.
TEST_F(DocumentBytes, ThatNameAFileAreNotThatFile)
{
    WriteBytes(file(), "<a/>");

    EXPECT_FALSE(Loads(ToUtf8(file())));
}

TEST_F(DocumentBytes, EndWhereTheirViewEnds)
{
    constexpr std::string_view bytes = "<a>1</a><b/>";

    EXPECT_FALSE(Loads(bytes));
    EXPECT_EQ(LoadedFrom(bytes.substr(0, bytes.find("<b/>"))).Root().Text().view(), L"1");
}

TEST_F(DocumentBytes, AreNotNeededOnceLoaded)
{
    std::string bytes = "<a>before</a>";
    const Document document = LoadedFrom(bytes);

    bytes.assign(bytes.size(), '?');

    EXPECT_EQ(document.Root().Text().view(), L"before");
}

TEST_F(DocumentBytes, TakeThePlaceOfWhatWasLoadedAhead)
{
    Document document = LoadedFrom("<a/>");

    ASSERT_TRUE(document.LoadBytes("<b/>"));

    EXPECT_EQ(document.Root().Name().view(), L"b");
}

TEST_F(DocumentBytes, OfADocumentThatStandsAsItIsKeepTheirWhiteSpace)
{
    Document document = Empty();
    document.LoadAsItStands();

    ASSERT_TRUE(document.LoadBytes("<a> <b/>\n</a>"));

    EXPECT_EQ(document.Root().FirstChild().Name().view(), L"#text");
}

TEST_F(DocumentBytes, FollowNoOtherFile)
{
    WriteBytes(folder() / L"other.txt", "from elsewhere");
    const std::string other = ToUtf8(folder() / L"other.txt");
    Document document = Empty();
    document.LoadAsItStands();

    const bool loaded = document.LoadBytes("<!DOCTYPE a [<!ENTITY e SYSTEM '" + other + "'>]><a>&e;</a>");

    EXPECT_TRUE(!loaded || document.Root().Text().view().find(L"elsewhere") == std::wstring_view::npos);
}

TEST_F(DocumentBytes, MayBeMany)
{
    const std::string text(5'000'000, 'x');

    EXPECT_EQ(LoadedFrom("<a>" + text + "</a>").Root().Text().view().size(), text.size());
}

TEST_F(DocumentBytes, WithoutMemoryForThemAreNotTakenForMalformed)
{
    Document document = Empty();
    const ImportHook hook("SHCreateMemStream", &NoStream);

    EXPECT_THROW((void)document.LoadBytes("<a/>"), std::bad_alloc);
}

} // namespace
} // namespace norvepa::test
