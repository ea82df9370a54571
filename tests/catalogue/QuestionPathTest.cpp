#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"

namespace norvepa::test
{
namespace
{

// A question with a folder of its own.
struct Place
{
    Question question;
    std::wstring folder;

    // The file that answers, under exactly this name.
    void Write(std::wstring_view fileName) const
    {
        WriteBytes(folder + std::wstring(fileName), FileAnswering(L"yes"));
    }

    [[nodiscard]] Result Ask(std::wstring_view name) const
    {
        return question.ask((folder + std::wstring(name)).c_str(), L"yes");
    }

    // A name whose path is `length` characters long.
    [[nodiscard]] std::wstring NameOf(std::size_t length) const
    {
        return std::wstring(length - folder.size(), L'x');
    }
};

// How the queries come from a path to a file.
class QuestionPath : public CatalogueScene
{
protected:
    [[nodiscard]] std::vector<Place> Places(const std::vector<Question>& questions) const
    {
        std::vector<Place> places;
        for (const Question& question : questions)
        {
            places.push_back({question, folder() / FromUtf8(question.name) + L"\\"});
        }
        return places;
    }
};

constexpr std::wstring_view NamesOnDisk[] = {L"a%b.xml", L"a#25b.xml", L"a(nmbr)25b.xml"};

TEST_F(QuestionPath, TheNameIsWrittenByTheQuerysOwnRule)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(NamesOnDisk[static_cast<std::size_t>(place.question.nameOnDisk)]);

        EXPECT_EQ(place.Ask(L"a%b"), PGSP_OK);
    }
}

TEST_F(QuestionPath, TheNameIsWrittenByNoOtherRule)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        for (const std::wstring_view name : NamesOnDisk)
        {
            if (name != NamesOnDisk[static_cast<std::size_t>(place.question.nameOnDisk)])
            {
                place.Write(name);
            }
        }

        EXPECT_EQ(place.Ask(L"a%b"), place.question.missing);
    }
}

TEST_F(QuestionPath, ANumberSignComesThroughOneEscapingAndTwo)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(place.question.nameOnDisk == NameOnDisk::AsGiven ? L"a#b.xml" : L"a(nmbr)b.xml");

        EXPECT_EQ(place.Ask(L"a#b"), PGSP_OK);
    }
}

TEST_F(QuestionPath, TheFolderIsNotEscaped)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(L"100% #1\\file.xml");

        EXPECT_EQ(place.Ask(L"100% #1\\file"), PGSP_OK);
    }
}

TEST_F(QuestionPath, AnExtensionInAnotherCaseIsNone)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(L"file.XML.xml");

        EXPECT_EQ(place.Ask(L"file.XML"), PGSP_OK);
    }
}

TEST_F(QuestionPath, AFileWithoutExtensionIsNotFound)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(L"file");

        EXPECT_EQ(place.Ask(L"file"), place.question.missing);
    }
}

TEST_F(QuestionPath, AnExtensionIsNotDoubled)
{
    for (const Place& place : Places(ExtendingQuestions()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(L"file.xml");

        EXPECT_EQ(place.Ask(L"file.xml"), PGSP_OK);
    }
}

TEST_F(QuestionPath, AnExtensionIsLookedForAnywhere)
{
    for (const Place& place : Places(ExtendingQuestions()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(L"folder.xml\\file");
        place.Write(L"file.xml.old");

        EXPECT_EQ(place.Ask(L"folder.xml\\file"), PGSP_OK);
        EXPECT_EQ(place.Ask(L"file.xml.old"), PGSP_OK);
    }
}

TEST_F(QuestionPath, MayBeAsLongAsAFilesPathMay)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(place.NameOf(255) + L".xml");

        EXPECT_EQ(place.Ask(place.NameOf(255)), PGSP_OK);
    }
}

TEST_F(QuestionPath, IsNotCutWhenItIsTooLong)
{
    for (const Place& place : Places(EveryQuestion()))
    {
        SCOPED_TRACE(place.question.name);
        place.Write(place.NameOf(255) + L".xml");

        for (const std::size_t length : {256U, 260U, 300U, 5000U})
        {
            EXPECT_NE(place.Ask(place.NameOf(length)), PGSP_OK) << length;
        }
    }
}

TEST_F(QuestionPath, MakesNoDocumentWhenItIsTooLongWithItsExtension)
{
    for (const Place& place : Places(QuestionsSeeing({Sight::Parsed, Sight::Answered})))
    {
        SCOPED_TRACE(place.question.name);

        EXPECT_EQ(place.Ask(place.NameOf(256)), place.question.missing);
    }
}

// On disk it would have the length of a path and more: the code has three characters.
TEST_F(QuestionPath, MakesNoDocumentWhenItIsTooLongOnDisk)
{
    for (const Place& place : Places(QuestionsSeeing({Sight::Parsed})))
    {
        SCOPED_TRACE(place.question.name);

        EXPECT_EQ(place.Ask(std::wstring(90, L'%')), place.question.missing);
    }
}

TEST_F(QuestionPath, IsRefusedByTheOutputRuleWhereTheQueryItselfEscapesIt)
{
    const std::wstring path = folder() / std::wstring(90, L'%');
    std::wstring attribute(Before);
    std::wstring item(Before);

    EXPECT_EQ(NorvXMLElementGetAttribute(path.c_str(), L"CP_TYPE", &attribute), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLBoardKeyExists(path.c_str(), L"Constraints", 0), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLProtocolKeyExists(path.c_str(), L"Constraints", 0), PGSP_ERR_BUFFER_TOO_SHORT);
    EXPECT_EQ(NorvXMLEnumValueCollectionRaw(path.c_str(), L"Constraints\\p", 0, &item),
              PGSP_ERR_BUFFER_TOO_SHORT);

    EXPECT_EQ(attribute, L"") << "emptied before the file is asked for";
    EXPECT_EQ(item, Before);
}

TEST_F(QuestionPath, OfProtocolGetValueIsAlwaysExtended)
{
    const std::wstring path = File(FileAnswering(L"without"));
    WriteBytes(path + L".xml.xml", FileAnswering(L"with"));
    const auto ask = [](const std::wstring& file) {
        return TextOf(
            [&](auto* out) { return NorvXMLProtocolGetValue(file.c_str(), L"p", L"default", out); });
    };

    EXPECT_EQ(ask(path), Found(L"without"));
    EXPECT_EQ(ask(path + L".xml"), Found(L"with"));
    EXPECT_EQ(ask(path + L".xml.xml"), NoText(PGSP_ERR_CANT_LOAD_XML_FILE));
}

} // namespace
} // namespace norvepa::test
