// A document says the same of a file whether the library reads its bytes or the engine the file itself.

#include "support/OpenFile.h"
#include "support/XmlMeaning.h"
#include "xml/DocumentScene.h"

#include <array>
#include <filesystem>
#include <optional>

namespace norvepa::test
{
namespace
{

using namespace std::string_view_literals;

class DocumentLoadAlike : public DocumentScene
{
protected:
    // What both ways say of a file, if they say the same; none when it doesn't load.
    [[nodiscard]] std::optional<std::string> Said(const std::wstring& path) const
    {
        Document document = Empty();
        Document byTheEngine = Empty();
        const bool isLoaded = document.Load(path);

        EXPECT_EQ(isLoaded, byTheEngine.LoadWithNeighbours(path)) << ToUtf8(path);
        if (!isLoaded)
        {
            return std::nullopt;
        }
        EXPECT_EQ(document.Bytes(), byTheEngine.Bytes());
        return MeaningOf(document.Bytes().value_or(""));
    }

    [[nodiscard]] std::optional<std::string> SaidOf(std::string_view bytes) const
    {
        WriteBytes(file(), bytes);
        return Said(file());
    }
};

constexpr std::array Malformed{
    ""sv,
    " "sv,
    "text"sv,
    "<a>"sv,
    "<a"sv,
    "<"sv,
    "<a><b></a></b>"sv,
    "<a/><b/>"sv,
    "<a>&b;</a>"sv,
    "<a b='1' b='2'/>"sv,
    "<1/>"sv,
    "<a>&</a>"sv,
    "<a>\x01</a>"sv,
    "<a>\xFF</a>"sv,
    "<a>1\0</a>"sv,
    "\0"sv,
    "\xEF\xBB\xBF"sv,
    "\xFF\xFE"sv,
    "<?xml version='1.0'?>"sv,
    "<?xml version='1.0' encoding='x-unknown'?><a/>"sv,
};

TEST_F(DocumentLoadAlike, FailsForWhatIsMalformed)
{
    for (const std::string_view bytes : Malformed)
    {
        EXPECT_EQ(SaidOf(bytes), std::nullopt) << bytes;
    }
}

constexpr std::array WellFormed{
    "<a/>"sv,
    "<?xml version='1.0' encoding='UTF-8'?>\r\n<!-- c --><a b='1'>\r\n<c>\xC3\xA4</c><?p q?></a>\r\n"sv,
    "\xEF\xBB\xBF<a><![CDATA[<b>]]>&amp;&#228;</a>"sv,
    "\xFF\xFE<\0a\0>\0\xE4\0<\0/\0a\0>\0"sv,
    "\xFE\xFF\0<\0a\0>\0\xE4\0<\0/\0a\0>"sv,
    "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>"sv,
    "<?xml version='1.0' encoding='windows-1252'?><a>\x80</a>"sv,
    "<a xmlns='urn:a'><p:b xmlns:p='urn:p' p:c='d'/></a>"sv,
    "<a> <b/> </a>  "sv,
};

TEST_F(DocumentLoadAlike, SaysTheSameOfWhatIsWellFormed)
{
    for (const std::string_view bytes : WellFormed)
    {
        EXPECT_NE(SaidOf(bytes), std::nullopt) << bytes;
    }
}

TEST_F(DocumentLoadAlike, SaysTheSameOfEachFileOfTheSampleStore)
{
    for (const auto& entry : std::filesystem::recursive_directory_iterator(FromUtf8(NORV_SAMPLE_STORE)))
    {
        if (entry.path().extension() == L".xml" || entry.path().extension() == L".xsd")
        {
            EXPECT_NE(Said(entry.path().wstring()), std::nullopt) << entry.path();
        }
    }
}

TEST_F(DocumentLoadAlike, SaysTheSameOfALongText)
{
    EXPECT_NE(SaidOf("<a>" + std::string(1'000'000, 'x') + "</a>"), std::nullopt);
}

TEST_F(DocumentLoadAlike, FailsForWhatIsNoFile)
{
    EXPECT_EQ(Said(folder() / L"missing.xml"), std::nullopt);
    EXPECT_EQ(Said(folder() / L"nowhere\\missing.xml"), std::nullopt);
    EXPECT_EQ(Said(folder().path()), std::nullopt);
    EXPECT_EQ(Said(L""), std::nullopt);
    EXPECT_EQ(Said(folder() / std::wstring(300, L'x')), std::nullopt);
    EXPECT_EQ(Said(folder() / std::wstring(40'000, L'x')), std::nullopt);
    EXPECT_EQ(Said(folder() / L"a\"b.xml"), std::nullopt);
}

TEST_F(DocumentLoadAlike, FailsWhileAnotherKeepsTheFileToHimself)
{
    WriteBytes(file(), "<a/>");
    {
        const OpenFile holder(file(), 0);
        EXPECT_EQ(Said(file()), std::nullopt);
    }
    EXPECT_NE(Said(file()), std::nullopt);
}

TEST_F(DocumentLoadAlike, LoadsAFileThatAnotherReads)
{
    WriteBytes(file(), "<a/>");
    const OpenFile reader(file());

    EXPECT_NE(Said(file()), std::nullopt);
}

} // namespace
} // namespace norvepa::test
