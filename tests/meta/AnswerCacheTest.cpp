#include "meta/MetaScene.h"
#include "meta/cEpaBlCache.h"
#include "meta/cMetaFiles.h"

namespace norvepa::test
{
namespace
{

using testing::ElementsAre;
using testing::Pointee;

using enum AnswerKind;

class AnswerCache : public testing::Test
{
protected:
    [[nodiscard]] static std::shared_ptr<const Answer> Answered(const wchar_t* text)
    {
        return std::make_shared<const Answer>(Answer{text});
    }

    [[nodiscard]] win::Borrowed<const Answer> Find(std::wstring_view key, AnswerKind kind) const
    {
        return MetaCacheFind(file, key, kind);
    }

    const TemporaryFolder folder; // no file is there: the cache never looks
    const std::wstring file = folder / L"a.xml";
};

TEST_F(AnswerCache, NumbersTheKindsOfAnswers)
{
    EXPECT_EQ(static_cast<std::int32_t>(ValueCollection), 0);
    EXPECT_EQ(static_cast<std::int32_t>(Section), 1);
    EXPECT_EQ(static_cast<std::int32_t>(WholeFile), 2);
}

TEST_F(AnswerCache, HasNoAnswersInTheBeginning)
{
    EXPECT_EQ(Find(L"", WholeFile), nullptr);
    EXPECT_EQ(MetaCacheDropFile(file), -1);
}

TEST_F(AnswerCache, FindsWhatWasStored)
{
    const auto answer = std::make_shared<const Answer>(Answer{L"9600", L"19200"});

    EXPECT_EQ(MetaCacheStore(file, L"Constraints\\baudrate", ValueCollection, answer), PGSP_OK);

    EXPECT_EQ(Find(L"Constraints\\baudrate", ValueCollection).get(), answer.get());
}

TEST_F(AnswerCache, KeepsTheThreeKindsApart)
{
    EXPECT_EQ(MetaCacheStore(file, L"key", ValueCollection, Answered(L"collection")), PGSP_OK);
    EXPECT_EQ(MetaCacheStore(file, L"key", Section, Answered(L"section")), PGSP_OK);
    EXPECT_EQ(MetaCacheStore(file, L"key", WholeFile, Answered(L"file")), PGSP_OK);

    EXPECT_THAT(Find(L"key", ValueCollection), Pointee(ElementsAre(L"collection")));
    EXPECT_THAT(Find(L"key", Section), Pointee(ElementsAre(L"section")));
    EXPECT_THAT(Find(L"key", WholeFile), Pointee(ElementsAre(L"file")));
}

TEST_F(AnswerCache, KeepsKeysApart)
{
    EXPECT_EQ(MetaCacheStore(file, L"first", Section, Answered(L"1")), PGSP_OK);
    EXPECT_EQ(MetaCacheStore(file, L"second", Section, Answered(L"2")), PGSP_OK);

    EXPECT_THAT(Find(L"first", Section), Pointee(ElementsAre(L"1")));
    EXPECT_THAT(Find(L"second", Section), Pointee(ElementsAre(L"2")));
    EXPECT_EQ(Find(L"third", Section), nullptr);
    EXPECT_EQ(Find(L"", Section), nullptr);
}

TEST_F(AnswerCache, KeepsFilesApart)
{
    EXPECT_EQ(MetaCacheStore(file, L"", WholeFile, Answered(L"1")), PGSP_OK);

    EXPECT_EQ(MetaCacheFind(folder / L"b.xml", L"", WholeFile), nullptr);
    EXPECT_EQ(MetaCacheFind(folder / L"a", L"", WholeFile), nullptr); // adds no extension
}

TEST_F(AnswerCache, ComparesFilesAndKeysWithoutRegardToCase)
{
    EXPECT_EQ(MetaCacheStore(file, L"BaudRate", Section, Answered(L"1")), PGSP_OK);

    EXPECT_THAT(MetaCacheFind(folder / L"A.XML", L"bAUDrATE", Section), Pointee(ElementsAre(L"1")));
    EXPECT_EQ(MetaCacheStore(folder / L"A.XML", L"BAUDRATE", Section, Answered(L"2")), -1);
    EXPECT_EQ(MetaCacheDropFile(folder / L"A.XML"), PGSP_OK);
}

TEST_F(AnswerCache, RefusesTheKeyThatWasStoredFirst)
{
    EXPECT_EQ(MetaCacheStore(file, L"first", Section, Answered(L"1")), PGSP_OK);
    EXPECT_EQ(MetaCacheStore(file, L"second", Section, Answered(L"2")), PGSP_OK);

    EXPECT_EQ(MetaCacheStore(file, L"first", Section, Answered(L"later")), -1);

    EXPECT_THAT(Find(L"first", Section), Pointee(ElementsAre(L"1")));
}

TEST_F(AnswerCache, TakesAnyOtherKeyAgainAndFindsTheOlderAnswer)
{
    EXPECT_EQ(MetaCacheStore(file, L"first", Section, Answered(L"1")), PGSP_OK);
    EXPECT_EQ(MetaCacheStore(file, L"second", Section, Answered(L"2")), PGSP_OK);

    EXPECT_EQ(MetaCacheStore(file, L"second", Section, Answered(L"later")), PGSP_OK);

    EXPECT_THAT(Find(L"second", Section), Pointee(ElementsAre(L"2")));
}

TEST_F(AnswerCache, TakesTheFirstKeyOfOneKindForAnother)
{
    EXPECT_EQ(MetaCacheStore(file, L"", WholeFile, Answered(L"1")), PGSP_OK);

    EXPECT_EQ(MetaCacheStore(file, L"", Section, Answered(L"2")), PGSP_OK);
}

TEST_F(AnswerCache, DropsAllAnswersOfOneFile)
{
    EXPECT_EQ(MetaCacheStore(file, L"", WholeFile, Answered(L"1")), PGSP_OK);
    EXPECT_EQ(MetaCacheStore(file, L"key", Section, Answered(L"2")), PGSP_OK);
    EXPECT_EQ(MetaCacheStore(folder / L"b.xml", L"", WholeFile, Answered(L"3")), PGSP_OK);

    EXPECT_EQ(MetaCacheDropFile(file), PGSP_OK);

    EXPECT_EQ(Find(L"", WholeFile), nullptr);
    EXPECT_EQ(Find(L"key", Section), nullptr);
    EXPECT_EQ(MetaCacheDropFile(file), -1);
    EXPECT_THAT(MetaCacheFind(folder / L"b.xml", L"", WholeFile), Pointee(ElementsAre(L"3")));
}

TEST_F(AnswerCache, TakesADroppedKeyAgain)
{
    EXPECT_EQ(MetaCacheStore(file, L"", WholeFile, Answered(L"1")), PGSP_OK);
    EXPECT_EQ(MetaCacheDropFile(file), PGSP_OK);

    EXPECT_EQ(MetaCacheStore(file, L"", WholeFile, Answered(L"2")), PGSP_OK);

    EXPECT_THAT(Find(L"", WholeFile), Pointee(ElementsAre(L"2")));
}

TEST_F(AnswerCache, LeavesABorrowedAnswerReadable)
{
    EXPECT_EQ(MetaCacheStore(file, L"", WholeFile, Answered(L"1")), PGSP_OK);
    const auto borrowed = Find(L"", WholeFile);

    EXPECT_EQ(MetaCacheDropFile(file), PGSP_OK);

    EXPECT_THAT(borrowed, Pointee(ElementsAre(L"1")));
}

TEST_F(AnswerCache, OutlivesTheDocuments)
{
    EXPECT_EQ(MetaCacheStore(file, L"", WholeFile, Answered(L"1")), PGSP_OK);

    EXPECT_EQ(MetaDropDocument(file), PGSP_OK);
    MetaDropAllDocuments();

    EXPECT_THAT(Find(L"", WholeFile), Pointee(ElementsAre(L"1")));
}

} // namespace
} // namespace norvepa::test
