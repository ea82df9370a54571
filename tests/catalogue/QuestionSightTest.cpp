#include "catalogue/CatalogueScene.h"
#include "catalogue/EveryQuestion.h"
#include "meta/cEpaBlCache.h"
#include "meta/cMetaFiles.h"

#include <windows.h>

#include <filesystem>

namespace norvepa::test
{
namespace
{

// What the queries see of a file that changes behind their back.
class QuestionSight : public CatalogueScene, public testing::WithParamInterface<Question>
{
protected:
    void Write(std::string_view bytes) const { WriteBytes(m_path + L".xml", bytes); }

    // The file that has been asked once and answered so, and then says something else.
    void GivenOldAndNew() const
    {
        Write(FileAnswering(L"old"));
        ASSERT_EQ(Ask(L"old"), PGSP_OK);
        Write(FileAnswering(L"new"));
    }

    [[nodiscard]] Result Ask(const wchar_t* answer) const { return GetParam().ask(m_path.c_str(), answer); }

    [[nodiscard]] bool IsAnswered(const wchar_t* answer) const { return Ask(answer) == PGSP_OK; }

    // All of an enumeration of the file's values, past its end.
    void WalkAllValues() const
    {
        std::uint32_t index = 0;
        const auto next = [&](const PairBuffers& pair) {
            return NorvXMLEnumValue(m_path.c_str(), index++, pair);
        };
        while (PairOf(next).result == PGSP_OK)
        {
        }
    }

    const std::wstring m_path = folder() / L"file";
};

class QuestionsNow : public QuestionSight
{
};

INSTANTIATE_TEST_SUITE_P(, QuestionsNow,
                         testing::ValuesIn(QuestionsSeeing({Sight::Now, Sight::NowAsDocument})), NameOf);

TEST_P(QuestionsNow, FollowTheFile)
{
    GivenOldAndNew();

    EXPECT_TRUE(IsAnswered(L"new"));
    EXPECT_FALSE(IsAnswered(L"old"));
}

TEST_P(QuestionsNow, HaveNoAnswerWhenTheFileIsGone)
{
    GivenOldAndNew();
    std::filesystem::remove(m_path + L".xml");

    EXPECT_EQ(Ask(L"new"), GetParam().missing);
}

class QuestionsParsed : public QuestionSight
{
};

INSTANTIATE_TEST_SUITE_P(, QuestionsParsed,
                         testing::ValuesIn(QuestionsSeeing({Sight::Parsed, Sight::Answered})), NameOf);

TEST_P(QuestionsParsed, SeeTheFileAsItWasAtFirst)
{
    GivenOldAndNew();
    EXPECT_TRUE(IsAnswered(L"old"));
    EXPECT_FALSE(IsAnswered(L"new"));

    std::filesystem::remove(m_path + L".xml");
    EXPECT_TRUE(IsAnswered(L"old"));
}

TEST_P(QuestionsParsed, ShareTheFileUnderAllItsSpellings)
{
    GivenOldAndNew();
    std::wstring other = m_path;
    CharUpperW(other.data());

    EXPECT_EQ(GetParam().ask(other.c_str(), L"old"), PGSP_OK);
    EXPECT_EQ(GetParam().ask((other + L".xml").c_str(), L"old"), PGSP_OK);
}

TEST_P(QuestionsParsed, ReadTheFileAgainAfterAnEnumerationPastItsEnd)
{
    GivenOldAndNew();
    WalkAllValues();

    EXPECT_TRUE(IsAnswered(L"new"));
}

TEST_P(QuestionsParsed, KeepTheirAnswersLongerThanTheDocumentWhenTheyAreCached)
{
    const bool cached = GetParam().sight == Sight::Answered;
    GivenOldAndNew();
    MetaDropDocument(m_path);
    EXPECT_TRUE(IsAnswered(cached ? L"old" : L"new"));

    MetaCacheDropFile(m_path + L".xml");
    EXPECT_TRUE(IsAnswered(L"new"));
}

TEST_P(QuestionsParsed, SeeWhatStoodAheadOfABrokenPlace)
{
    std::string document = FileAnswering(L"yes");
    document.replace(document.rfind("</Profile>"), 10, "</wrong>");
    Write(document);

    EXPECT_TRUE(IsAnswered(L"yes"));
}

TEST_P(QuestionsParsed, HaveNoFileWhereNothingIsKnown)
{
    Write("<wholly><unknown/></wholly>");
    EXPECT_EQ(Ask(L"yes"), GetParam().missing);

    Write(FileAnswering(L"yes"));
    EXPECT_TRUE(IsAnswered(L"yes")) << "nothing is remembered of a file without a document";
}

class QuestionsRemembered : public QuestionSight
{
};

INSTANTIATE_TEST_SUITE_P(, QuestionsRemembered, testing::ValuesIn(QuestionsSeeing({Sight::Remembered})),
                         NameOf);

TEST_P(QuestionsRemembered, KeepTheFirstAnswerForGood)
{
    GivenOldAndNew();
    EXPECT_TRUE(IsAnswered(L"old"));

    WalkAllValues();
    std::filesystem::remove(m_path + L".xml");
    EXPECT_TRUE(IsAnswered(L"old"));
}

class QuestionsToDocuments : public QuestionSight
{
};

INSTANTIATE_TEST_SUITE_P(, QuestionsToDocuments, testing::ValuesIn(QuestionsSeeing({Sight::NowAsDocument})),
                         NameOf);

TEST_P(QuestionsToDocuments, CanNotLoadAFileThatIsNotWellFormed)
{
    Write(FileAnswering(L"yes") + "</wrong>");

    EXPECT_EQ(Ask(L"yes"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_P(QuestionsToDocuments, CanNotLoadAnEmptyFile)
{
    Write("");

    EXPECT_EQ(Ask(L"yes"), PGSP_ERR_CANT_LOAD_XML_FILE);
}

TEST_P(QuestionsToDocuments, CompareWordsExactly)
{
    std::string document = FileAnswering(L"yes");
    for (std::size_t at = document.find("ParamSection"); at != std::string::npos;
         at = document.find("ParamSection", at))
    {
        document.replace(at, 12, "PARAMSECTION");
    }
    Write(document);

    EXPECT_EQ(Ask(L"yes"), GetParam().absent);
}

class QuestionsBeyondDocuments : public QuestionSight
{
};

INSTANTIATE_TEST_SUITE_P(, QuestionsBeyondDocuments,
                         testing::ValuesIn(QuestionsSeeing({Sight::Now, Sight::Parsed, Sight::Answered,
                                                            Sight::Remembered})),
                         NameOf);

TEST_P(QuestionsBeyondDocuments, CompareWordsWithoutRegardToCase)
{
    std::string document = FileAnswering(L"yes");
    CharLowerBuffA(document.data(), static_cast<DWORD>(document.size()));
    Write(document);

    EXPECT_TRUE(IsAnswered(L"yes"));
}

TEST_P(QuestionsBeyondDocuments, TakeWordsByTheirLocalNames)
{
    std::string document = FileAnswering(L"yes");
    for (const std::string_view tag : {"<ParamSection", "</ParamSection", "<Value", "</Value"})
    {
        for (std::size_t at = document.find(tag); at != std::string::npos; at = document.find(tag, at + 1))
        {
            document.insert(document.find_first_not_of("</", at), "x:");
        }
    }
    document.insert(document.find("xmlns="), "xmlns:x=\"urn:x\" ");
    Write(document);

    EXPECT_TRUE(IsAnswered(L"yes"));
}

TEST_P(QuestionsBeyondDocuments, FindNothingBehindADocumentType)
{
    std::string document = FileAnswering(L"yes");
    document.insert(document.find("<Profile"), "<!DOCTYPE Profile [<!ELEMENT Profile ANY>]>");
    Write(document);

    const bool parsed = GetParam().sight == Sight::Parsed || GetParam().sight == Sight::Answered;
    EXPECT_EQ(Ask(L"yes"), parsed ? GetParam().missing : GetParam().absent);
}

TEST_P(QuestionsBeyondDocuments, FindNothingBehindABrokenPlace)
{
    std::string document = FileAnswering(L"yes");
    document.insert(document.find("<Profile"), "<Path></wrong>");
    Write(document);

    EXPECT_EQ(Ask(L"yes"), GetParam().absent);
}

} // namespace
} // namespace norvepa::test
