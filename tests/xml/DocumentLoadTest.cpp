#include "support/FreshThread.h"
#include "xml/DocumentScene.h"

namespace norvepa::test
{
namespace
{

class DocumentLoadTest : public DocumentScene
{
protected:
    [[nodiscard]] bool Loads(std::string_view bytes) const
    {
        WriteBytes(file(), bytes);
        Document document = Empty();
        return document.Load(file());
    }
};

TEST_F(DocumentLoadTest, AThreadWithoutComHasNoEngine)
{
    HRESULT status = S_OK;
    OnFreshThread([&] { status = Document().Create(); });

    EXPECT_EQ(status, CO_E_NOTINITIALIZED);
}

TEST_F(DocumentLoadTest, AWellFormedFileLoads)
{
    EXPECT_TRUE(Loads("<?xml version='1.0' encoding='UTF-8'?><a><b>\xC3\xA4</b></a>"));
}

TEST_F(DocumentLoadTest, AFileInUtf16Loads)
{
    const std::wstring text = L"\uFEFF<a>\u00E4</a>";

    EXPECT_TRUE(Loads({reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)}));
}

TEST_F(DocumentLoadTest, WhatIsMalformedDoesNotLoad)
{
    for (const std::string_view bytes :
         {"", " ", "text", "<a>", "<a", "<a><b></a></b>", "<a/><b/>", "<a>&b;</a>", "<a b='1' b='2'/>",
          "<1/>", "<a>&</a>", "<a>\x01</a>", "<a>\xFF</a>"})
    {
        EXPECT_FALSE(Loads(bytes)) << bytes;
    }
}

TEST_F(DocumentLoadTest, WhatIsNotThereDoesNotLoad)
{
    Document document = Empty();

    EXPECT_FALSE(document.Load(folder() / L"nothing.xml"));
    EXPECT_FALSE(document.Load(folder().path()));
    EXPECT_FALSE(document.Load(L""));
}

TEST_F(DocumentLoadTest, AFileWithCodesInItsNameLoads)
{
    const std::wstring file = folder() / L"F\u00F6rderband 50#25 (nmbr)3#3a #3cA#7cB#3e & 'x'.xml";
    WriteBytes(file, "<a/>");
    Document document = Empty();

    EXPECT_TRUE(document.Load(file));
}

TEST_F(DocumentLoadTest, NoOtherFileIsFollowed)
{
    const std::wstring other = folder() / L"other.txt";
    WriteBytes(other, "from elsewhere");
    const Document document = Loaded("<!DOCTYPE a [<!ENTITY e SYSTEM 'other.txt'>]><a>&e;</a>");

    EXPECT_EQ(document.Root().Text().view().find(L"elsewhere"), std::wstring_view::npos);
}

TEST_F(DocumentLoadTest, ADocumentThatStandsAsItIsKeepsItsWhiteSpace)
{
    WriteBytes(file(), "<a> <b/>\n</a>");
    Document document = Empty();
    document.LoadAsItStands();

    ASSERT_TRUE(document.Load(file()));

    EXPECT_EQ(document.Root().FirstChild().Name().view(), L"#text");
    EXPECT_FALSE(document.Root().FirstChild().IsElement());
}

} // namespace
} // namespace norvepa::test
