#include "support/PortableExecutable.h"
#include "support/TemporaryFolder.h"

#include <windows.h>

#include <filesystem>
#include <gmock/gmock.h>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSubsetOf;
using testing::Not;

using Texts = std::map<int, std::string>; // by number, UTF-8
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, decltype(&FreeLibrary)>;

std::wstring LibraryOf(const std::wstring& language)
{
    return FromUtf8(NORV_SAMPLE_RESOURCES) + L"\\" + language + L"\\AuentalTexte.dll";
}

std::string SampleFile(const std::wstring& path)
{
    return ReadBytes(FromUtf8(NORV_SAMPLE_STORE) + L"\\" + path);
}

// Strings are kept in blocks of 16, each as its length and its characters; those that aren't there are empty.
constexpr int BlockSize = 16;

void AddBlock(int block, const wchar_t* text, Texts& texts)
{
    for (int number = (block - 1) * BlockSize; number < block * BlockSize; ++number)
    {
        const std::wstring_view string(text + 1, *text);
        if (!string.empty())
        {
            texts.emplace(number, ToUtf8(string));
        }
        text += 1 + string.size();
    }
}

Texts TextsOf(const std::wstring& language)
{
    const Library library(LoadLibraryExW(LibraryOf(language).c_str(), nullptr,
                                         LOAD_LIBRARY_AS_IMAGE_RESOURCE | LOAD_LIBRARY_AS_DATAFILE_EXCLUSIVE),
                          &FreeLibrary);
    if (library == nullptr)
    {
        throw std::runtime_error("there is no library of this language");
    }

    constexpr int LastBlock = 0x10000 / BlockSize;
    Texts texts;
    for (int block = 1; block <= LastBlock; ++block)
    {
        HRSRC const place = FindResourceW(library.get(), MAKEINTRESOURCEW(block), MAKEINTRESOURCEW(6));
        if (place != nullptr)
        {
            const void* const bytes = LockResource(LoadResource(library.get(), place));
            AddBlock(block, static_cast<const wchar_t*>(bytes), texts);
        }
    }
    return texts;
}

std::set<int> NumbersOf(const Texts& texts)
{
    std::set<int> numbers;
    for (const auto& [number, text] : texts)
    {
        numbers.insert(number);
    }
    return numbers;
}

// What a pattern finds in a file, match by match.
std::vector<std::smatch> FindAll(const std::string& bytes, const std::string& pattern)
{
    const std::regex regex(pattern);
    return {std::sregex_iterator(bytes.begin(), bytes.end(), regex), std::sregex_iterator()};
}

// The README's table: number, owner, German, English.
Texts ReadmesTexts(std::size_t column)
{
    const std::string readme = SampleFile(L"README.md");
    Texts texts;
    for (const std::smatch& row : FindAll(readme, R"(\| (\d{4}) \| ([^|]*) \| ([^|]*) \| ([^|]*) \|)"))
    {
        texts.emplace(std::stoi(row[1]), row[column]);
    }
    return texts;
}

// The numbers of a document's resources. Throws when it has one of another library or in another form.
std::set<int> NumbersNamedBy(const std::string& document)
{
    const auto resources =
        FindAll(document, "<Assembly>AuentalTexte\\.dll</Assembly>\\s*(?:<Path>[^<]*</Path>\\s*)?"
                          "<ResourceId>(\\d+)</ResourceId>");
    if (resources.size() != FindAll(document, "<ResourceId").size())
    {
        throw std::runtime_error("a resource that isn't a text of the sample store");
    }
    std::set<int> numbers;
    for (const std::smatch& resource : resources)
    {
        numbers.insert(std::stoi(resource[1]));
    }
    return numbers;
}

std::set<int> NumbersNamedBySampleStore()
{
    std::set<int> numbers;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(FromUtf8(NORV_SAMPLE_STORE)))
    {
        if (entry.path().extension() == L".xml")
        {
            numbers.merge(NumbersNamedBy(ReadBytes(entry.path().wstring())));
        }
    }
    return numbers;
}

// What stands behind the slashes in a parameter's list of values.
std::vector<std::string> ValueTexts(const std::string& document, const std::string& parameter)
{
    const std::size_t begin = document.find("Param=\"" + parameter + "\"");
    const std::size_t end = document.find("<ParamSection", begin);
    const std::string section = document.substr(begin, end - begin);
    std::vector<std::string> texts;
    for (const std::smatch& value : FindAll(section, "<Value>[^/<]*/([^<]*)</Value>"))
    {
        texts.push_back(value[1]);
    }
    return texts;
}

std::vector<std::string> Block(const Texts& texts, int first, std::size_t count)
{
    std::vector<std::string> block;
    for (auto each = texts.lower_bound(first); each != texts.end() && block.size() < count; ++each)
    {
        block.push_back(each->second);
    }
    return block;
}

TEST(SampleTexts, AreThoseOfTheReadme)
{
    EXPECT_EQ(TextsOf(L"de"), ReadmesTexts(3));
    EXPECT_EQ(TextsOf(L"en"), ReadmesTexts(4));
}

TEST(SampleTexts, HaveTheSameNumbersInBothLanguages)
{
    EXPECT_EQ(NumbersOf(TextsOf(L"de")), NumbersOf(TextsOf(L"en")));
}

TEST(SampleTexts, KeepTheirLettersInGerman)
{
    const Texts texts = TextsOf(L"de");

    EXPECT_EQ(texts.at(1002), "Rübenwäsche bis Schnitzelmaschine");
    EXPECT_EQ(texts.at(1009), "Laborgeräte und Probennahme");
    EXPECT_EQ(texts.at(3003), "93,75 kbit/s");
    EXPECT_EQ(texts.at(5060), "Vorlage SERIAL-ASK040");
}

TEST(SampleTexts, AreTranslatedInEnglish)
{
    const Texts texts = TextsOf(L"en");

    EXPECT_EQ(texts.at(1002), "Beet washer to beet slicer");
    EXPECT_EQ(texts.at(3003), "93.75 kbit/s");
    EXPECT_EQ(texts.at(7002), "Control room");
}

TEST(SampleTexts, HoldEveryNumberThatADocumentNames)
{
    const std::set<int> named = NumbersNamedBySampleStore();

    EXPECT_THAT(named, Not(IsEmpty()));
    EXPECT_THAT(named, IsSubsetOf(NumbersOf(TextsOf(L"de"))));
    EXPECT_THAT(named, IsSubsetOf(NumbersOf(TextsOf(L"en"))));
}

TEST(SampleTexts, DescribeLogDevicesInGermanAsTheirFilesDo)
{
    const Texts texts = TextsOf(L"de");
    const std::wstring folder = L"data-root\\data\\LogDevices\\";
    int described = 0;

    for (const std::wstring& file : FileNames(FromUtf8(NORV_SAMPLE_STORE) + L"\\" + folder))
    {
        SCOPED_TRACE(ToUtf8(file));
        const std::string device = SampleFile(folder + file);
        const auto descriptions = FindAll(device, "<Name>Description</Name><Value>([^<]*)</Value>");
        for (const std::smatch& text : FindAll(device, "<Name>DescText</Name>[^]*?<ResourceId>(\\d+)<"))
        {
            EXPECT_EQ(texts.at(std::stoi(text[1])), descriptions.at(0)[1]);
            ++described;
        }
    }
    EXPECT_EQ(described, 2 * 13); // a text in either user interface of all devices but one
}

TEST(SampleTexts, NameValuesInGermanAsTheProtocolsDo)
{
    const Texts texts = TextsOf(L"de");
    const std::wstring protocols = L"program-root\\meta\\Protocols\\Automation-OnlineAccess-PT-";
    const std::string bus = SampleFile(protocols + L"L2.xml");
    const std::string serial = SampleFile(protocols + L"SERIAL.xml");

    EXPECT_EQ(Block(texts, 3000, 10), ValueTexts(bus, "baudrate"));
    EXPECT_EQ(Block(texts, 3100, 4), ValueTexts(bus, "busparam"));
    EXPECT_EQ(Block(texts, 3200, 8), ValueTexts(serial, "baudrate"));
}

TEST(SampleTexts, LieInLibrariesOfNothingButResources)
{
    EXPECT_THAT(PortableExecutable(LibraryOf(L"de")).sectionNames(), ElementsAre(".rsrc"));
    EXPECT_THAT(PortableExecutable(LibraryOf(L"en")).sectionNames(), ElementsAre(".rsrc"));
}

} // namespace
} // namespace norvepa::test
