#include "store/EveryRead.h"

#include "store/ReadScene.h"
#include "support/FreshThread.h"

#include <windows.h>

#include <filesystem>
#include <regex>

namespace norvepa::test
{
namespace
{

class EveryReadTest : public ReadScene, public testing::WithParamInterface<Read>
{
protected:
    [[nodiscard]] static Outcome Call(const std::wstring& file) { return GetParam().call(file.c_str()); }
};

INSTANTIATE_TEST_SUITE_P(, EveryReadTest, testing::ValuesIn(EveryRead()), NameOf);

TEST_P(EveryReadTest, FindsWhatTheFileHolds)
{
    EXPECT_EQ(Call(File(LogDeviceFile(ReadableContent()))), GetParam().found);
}

TEST_P(EveryReadTest, FindsNothingWhereTheFileHoldsNothingOfTheKind)
{
    EXPECT_EQ(Call(File(LogDeviceFile(XmlContent()))), GetParam().notFound);
}

TEST_P(EveryReadTest, RefusesAPathThatIsNullOrEmpty)
{
    const Outcome refused = GetParam().Refused(PGSP_ERR_INVALID_PARAMETERS);

    EXPECT_EQ(GetParam().call(nullptr), refused);
    EXPECT_EQ(GetParam().call(L""), refused);
}

TEST_P(EveryReadTest, CanNotLoadAFileThatIsMissing)
{
    const Outcome refused = GetParam().Refused(GetParam().missing);

    EXPECT_EQ(Call(folder() / L"missing"), refused);
    EXPECT_EQ(Call(folder() / L"missing folder\\file"), refused);
}

TEST_P(EveryReadTest, CanNotLoadAFolder)
{
    MakeFolders(folder() / L"file.xml");

    EXPECT_EQ(Call(folder() / L"file"), GetParam().Refused(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_P(EveryReadTest, CanNotLoadAFileThatAnotherHandleSharesWithNobody)
{
    const std::wstring file = File(LogDeviceFile(ReadableContent()));
    const HANDLE locked =
        CreateFileW((file + L".xml").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(locked, INVALID_HANDLE_VALUE);

    const Outcome outcome = Call(file);
    CloseHandle(locked);

    EXPECT_EQ(outcome, GetParam().Refused(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_P(EveryReadTest, LeavesTheFileAsItIsAndFree)
{
    const std::string document = LogDeviceFile(ReadableContent());
    const std::wstring file = File(document);
    ASSERT_EQ(Call(file), GetParam().found);

    const HANDLE alone = CreateFileW((file + L".xml").c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                     OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(alone, INVALID_HANDLE_VALUE);
    CloseHandle(alone);

    EXPECT_EQ(ReadBytes(file + L".xml"), document);
    EXPECT_EQ(FileNames(folder().path()), std::vector<std::wstring>{L"file.xml"});
}

TEST_P(EveryReadTest, LeavesTheFileFreeAlsoWhenItIsMalformed)
{
    const std::wstring file = File("<LogDevice></wrong>");
    ASSERT_NE(Call(file).result, PGSP_OK);

    EXPECT_TRUE(std::filesystem::remove(file + L".xml"));
}

TEST_P(EveryReadTest, SeesTheFileAsItIsNow)
{
    ASSERT_EQ(Call(File(LogDeviceFile(XmlContent()))), GetParam().notFound);
    EXPECT_EQ(Call(File(LogDeviceFile(ReadableContent()))), GetParam().found);
    EXPECT_EQ(Call(File(LogDeviceFile(XmlContent()))), GetParam().notFound);
}

TEST_P(EveryReadTest, ReadsAReadOnlyFile)
{
    const std::wstring file = File(LogDeviceFile(ReadableContent()));
    SetFileAttributesW((file + L".xml").c_str(), FILE_ATTRIBUTE_READONLY);

    const Outcome outcome = Call(file);
    SetFileAttributesW((file + L".xml").c_str(), FILE_ATTRIBUTE_NORMAL);

    EXPECT_EQ(outcome, GetParam().found);
}

// A document that says all that is asked, in more bytes than the DOM engine is given.
std::string TooLarge()
{
    XmlContent padding;
    for (int i = 0; i < 110; ++i)
    {
        padding.Text(L"padding", std::wstring(100'000, L'x'));
    }
    return LogDeviceFile(XmlContent().Raw(ReadableContent().utf8()).Element(L"Padding", padding));
}

using PullReadTest = EveryReadTest;

INSTANTIATE_TEST_SUITE_P(, PullReadTest, testing::ValuesIn(PullReads()), NameOf);

TEST_P(PullReadTest, ReadsAFileThatIsTooLargeForWriting)
{
    const std::string document = TooLarge();
    ASSERT_GT(document.size(), 10'000'000u);

    EXPECT_EQ(Call(File(document)), GetParam().found);
}

using DocumentReadTest = EveryReadTest;

INSTANTIATE_TEST_SUITE_P(, DocumentReadTest, testing::ValuesIn(DocumentReads()), NameOf);

TEST_P(DocumentReadTest, CanNotLoadAFileThatIsTooLarge)
{
    EXPECT_EQ(Call(File(TooLarge())), GetParam().Refused(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_P(DocumentReadTest, CanNotLoadAFileThatIsMalformedAnywhere)
{
    const std::string malformed = "<LogDevice>" + ReadableContent().utf8() + "<odd></wrong></LogDevice>";

    EXPECT_EQ(Call(File(malformed)), GetParam().Refused(PGSP_ERR_CANT_LOAD_XML_FILE));
}

TEST_P(DocumentReadTest, FindsNoElementBehindAPrefix)
{
    const std::string plain = ReadableContent().utf8();
    const std::string prefixed = std::regex_replace(plain, std::regex("<(/?)"), "<$1d:");

    EXPECT_EQ(Call(File("<d:LogDevice xmlns:d='urn:d'>" + prefixed + "</d:LogDevice>")), GetParam().notFound);
}

TEST_P(DocumentReadTest, HasNoEngineOnAThreadWithoutComAndBringsNone)
{
    const std::wstring file = File(LogDeviceFile(ReadableContent()));

    OnFreshThread([&] {
        EXPECT_EQ(Call(file), GetParam().Refused(PGSP_ERR_CANT_CREATE_XML_ENGINE));
        EXPECT_FALSE(ThisThreadHasCom());
    });
}

} // namespace
} // namespace norvepa::test
