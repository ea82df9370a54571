#include "xml/PullScene.h"

namespace norvepa::test
{
namespace
{

using PullReaderEncoding = PullScene;

// UTF-16, the low byte first, as the machine has it.
std::string BytesOf(std::wstring_view text)
{
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

TEST_F(PullReaderEncoding, Utf8IsReadWithADeclaration)
{
    PullReader reader = InsideRoot("<?xml version='1.0' encoding='UTF-8'?><a>Größe Ω</a>");

    EXPECT_EQ(RestOf(reader), "Größe Ω </a>");
}

TEST_F(PullReaderEncoding, Utf8IsReadWithoutADeclaration)
{
    PullReader reader = InsideRoot("<a>Größe Ω</a>");

    EXPECT_EQ(RestOf(reader), "Größe Ω </a>");
}

TEST_F(PullReaderEncoding, Utf8IsReadWithAByteOrderMark)
{
    PullReader reader = InsideRoot("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?><a>Größe Ω</a>");

    EXPECT_EQ(RestOf(reader), "Größe Ω </a>");
}

TEST_F(PullReaderEncoding, Utf16IsReadWithAByteOrderMark)
{
    PullReader reader = InsideRoot(BytesOf(L"\xFEFF<?xml version='1.0' encoding='UTF-16'?><a>Größe Ω</a>"));

    EXPECT_EQ(RestOf(reader), "Größe Ω </a>");
}

TEST_F(PullReaderEncoding, AnEncodingThatIsNotKnownStopsTheReader)
{
    PullReader reader = Reading("<?xml version='1.0' encoding='x-unknown'?><a>1</a>");

    EXPECT_EQ(RestOf(reader), "");

    EXPECT_FALSE(XmlReaderActive(reader));
}

} // namespace
} // namespace norvepa::test
