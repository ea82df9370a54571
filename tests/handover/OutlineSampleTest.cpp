#include "handover/OutlineScene.h"
#include "support/TemporaryFolder.h"
#include "support/XmlFiles.h"

namespace norvepa::test
{
namespace
{

using OutlineSample = OutlineScene;

// What is written for a store is to be read by its bytes.
TEST_F(OutlineSample, OfEachLogDeviceAndTemplateIsReadAlike)
{
    for (const wchar_t* place :
         {L"\\data-root\\data\\LogDevices\\", L"\\program-root\\meta\\DefaultLogDevices\\"})
    {
        const std::wstring folder = FromUtf8(NORV_SAMPLE_STORE) + place;
        const auto files = FileNames(folder);
        ASSERT_GT(files.size(), 5U);
        for (const std::wstring& file : files)
        {
            const std::string bytes = ReadBytes(folder + file);

            const OutlineLine line = ByTheEngine(bytes);

            ASSERT_THAT(line, testing::Optional(testing::HasSubstr(" LocalSettings{"))) << ToUtf8(file);
            EXPECT_EQ(ByTheBytes(bytes), line) << ToUtf8(file);
        }
    }
}

TEST_F(OutlineSample, OfTenThousandParametersIsReadAlike)
{
    XmlContent parameters;
    std::string line = "load 'S' S";
    for (int number = 0; number < 10'000; ++number)
    {
        const std::wstring text = std::to_wstring(number);
        parameters.Int(L"Größe <" + text, text);
        line += (number == 0 ? "{1 'Größe <" : ", 1 'Größe <") + ToUtf8(text + L"'='" + text + L"'");
    }

    ExpectAlike(LogDeviceFile(XmlContent().Element(L"S", parameters).Load({L"S"})), line + '}');
}

TEST_F(OutlineSample, OfManySectionsIsReadAlike)
{
    XmlContent content;
    std::string line = "load";
    for (int number = 0; number < 2'000; ++number)
    {
        content.Element(L"S" + std::to_wstring(number), XmlContent().Bool(L"b", L"true"));
        line += " S" + std::to_string(number) + "{0 'b'='true'}";
    }

    ExpectAlike(LogDeviceFile(content), line);
}

// A section in a section in a section, each with a parameter behind it.
std::string Nested(int depth)
{
    std::string begin;
    std::string end;
    for (int level = 0; level < depth; ++level)
    {
        begin += "<S>";
        end += "<Parameter/></S>";
    }
    return "<d>" + begin + end + "</d>";
}

TEST_F(OutlineSample, OfSectionsDeepInOneAnotherIsReadAlike)
{
    std::string line = "load";
    for (int level = 0; level < 200; ++level)
    {
        line += " S{2 -=-}";
    }

    ExpectAlike(Nested(200), line);
}

// Not every engine goes down that far.
TEST_F(OutlineSample, OfSectionsHoweverDeepComesToAnEnd)
{
    const std::string bytes = Nested(10'000);

    const OutlineLine line = ByTheBytes(bytes);

    ASSERT_NE(line, std::nullopt);
    if (const OutlineLine engineLine = ByTheEngine(bytes))
    {
        EXPECT_EQ(line, engineLine);
    }
}

} // namespace
} // namespace norvepa::test
